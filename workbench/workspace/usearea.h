// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "useareamanager.h"

class QSettings;

/// What the workbench is used for and which aids are shown for it. The settings are read at the start: every live frame
/// asks. GUI thread.
class UseArea : public UseAreaManager
{
    Q_OBJECT

public:
    /// `settings` is borrowed and outlives this object.
    explicit UseArea(QSettings *settings, QObject *parent = nullptr);

    int GetUseAreaType() const override { return m_type; }
    bool IsSpectrumHidden() const override { return m_isSpectrumHidden; }
    bool IsAxisVisible() const override { return m_isAxisVisible; }
    bool IsCurveVisible() const override { return m_isCurveVisible; }
    bool IsColorCardVisible() const override { return m_isColorCardVisible; }
    bool IsToolBarVisible() const override { return m_isToolBarVisible; }
    bool IsInfoBarVisible() const override { return m_isInfoBarVisible; }

public slots:
    /// Spectroscopy, or pictures again. Each change here is kept and announced; what is set already changes nothing.
    void slotSetSpectrum(bool spectrum);
    void slotSetAxisVisible(bool visible);
    void slotSetCurveVisible(bool visible);
    void slotSetColorCardVisible(bool visible);

private:
    bool Stored(const char *key, bool standard) const;
    void SetAid(bool *aid, const char *key, bool visible);

    QSettings *m_settings;
    int m_type;
    bool m_isSpectrumHidden;
    bool m_isAxisVisible;
    bool m_isCurveVisible;
    bool m_isColorCardVisible;
    bool m_isToolBarVisible;
    bool m_isInfoBarVisible;
};
