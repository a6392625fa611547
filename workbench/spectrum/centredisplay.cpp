// SPDX-License-Identifier: GPL-3.0-or-later
#include "centredisplay.h"

#include <QSettings>

namespace {
constexpr char ModeKey[] = "spectrum/displayMode";
}

CentreDisplay::CentreDisplay(QSettings *settings, QObject *parent)
    : DisplayModeUIManager(parent)
    , m_settings(settings)
{
}

void CentreDisplay::SetMode(DisplayMode mode)
{
    if (m_isComparing) {
        m_modeAfterComparison = mode;
        if (mode != DisplayMode::General)
            emit signalEndComparisonWanted();
        return;
    }
    if (mode == m_mode)
        return;
    m_mode = mode;
    if (mode != DisplayMode::General)
        m_settings->setValue(ModeKey, int(mode));
    emit signalModeChanged();
}

void CentreDisplay::SetComparing(bool comparing)
{
    if (comparing == m_isComparing)
        return;
    if (comparing) {
        m_modeAfterComparison = m_mode;
        SetMode(DisplayMode::General);
    }
    m_isComparing = comparing;
    if (!comparing)
        SetMode(m_modeAfterComparison);
}

void CentreDisplay::ShowSpectrum(bool spectrum)
{
    const DisplayMode wanted = m_isComparing ? m_modeAfterComparison : m_mode;
    if (spectrum == (wanted == DisplayMode::General))
        SetMode(spectrum ? LastSpectrumMode() : DisplayMode::General);
}

/// The settings come from outside.
DisplayMode CentreDisplay::LastSpectrumMode() const
{
    const int stored = m_settings->value(ModeKey).toInt();
    const bool isSpectrum = stored > int(DisplayMode::General) && stored <= int(DisplayMode::Tracks3D);
    return isSpectrum ? DisplayMode(stored) : DisplayMode::Physics;
}

int CentreDisplay::GetCurrentDisplayMode() const
{
    return int(m_mode);
}

void CentreDisplay::CalculatePreviewArea()
{
    emit signalPreviewAreaWanted();
}

void CentreDisplay::SetImageExpansionAreaFlag(bool valid)
{
    m_isAreaValid = valid;
}

void CentreDisplay::SetImageExpansionArea(const QString &area)
{
    m_area = area;
}
