// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "displaymode.h"
#include "displaymodeuimanager.h"

class QSettings;

/// What the centre pages show: the picture, or one of the spectrum pages; and the calibrated area that an opened
/// spectrum brought with it. GUI thread.
class CentreDisplay : public DisplayModeUIManager
{
    Q_OBJECT

public:
    /// Begins with the picture. `settings` is borrowed and outlives this object.
    explicit CentreDisplay(QSettings *settings, QObject *parent = nullptr);

    DisplayMode Mode() const { return m_mode; }
    /// A spectrum page is remembered as the one to come back to. While pictures are compared it ends the comparison.
    void SetMode(DisplayMode mode);
    /// Pictures are compared side by side: a spectrum page gives way to them, and comes back when they are not any more.
    void SetComparing(bool comparing);
    /// To the spectrum page that was shown last, or from it to the picture.
    void ShowSpectrum(bool spectrum);
    /// Null unless an opened picture brought a valid area.
    QString ExpansionArea() const { return m_isAreaValid ? m_area : QString(); }

    int GetCurrentDisplayMode() const override;
    void CalculatePreviewArea() override;
    void SetImageExpansionAreaFlag(bool valid) override;
    void SetImageExpansionArea(const QString &area) override;

signals:
    void signalModeChanged();
    /// A spectrum page was chosen in the comparison.
    void signalEndComparisonWanted();
    /// The rulers of the live picture are to be told their ranges anew.
    void signalPreviewAreaWanted();

private:
    DisplayMode LastSpectrumMode() const;

    QSettings *m_settings;
    DisplayMode m_mode = DisplayMode::General;
    DisplayMode m_modeAfterComparison = DisplayMode::General;
    bool m_isComparing = false;
    bool m_isAreaValid = false;
    QString m_area;
};
