// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "useareamanager.h"

class QSettings;

/// What the workbench is used for and which aids are shown for it, as the settings say. GUI thread.
class UseArea : public UseAreaManager
{
    Q_OBJECT

public:
    /// `settings` is borrowed and outlives this object.
    explicit UseArea(QSettings *settings, QObject *parent = nullptr);

    int GetUseAreaType() const override;
    bool IsSpectrumHidden() const override;
    bool IsAxisVisible() const override;
    bool IsCurveVisible() const override;
    bool IsColorCardVisible() const override;
    bool IsToolBarVisible() const override;
    bool IsInfoBarVisible() const override;

public slots:
    /// Spectroscopy, or pictures again. Each change here is kept and announced; what is set already changes nothing.
    void slotSetSpectrum(bool spectrum);
    void slotSetAxisVisible(bool visible);
    void slotSetCurveVisible(bool visible);
    void slotSetColorCardVisible(bool visible);

private:
    bool Stored(const char *key, bool standard) const;
    void SetAid(const char *key, bool visible);

    QSettings *m_settings;
};
