// SPDX-License-Identifier: GPL-3.0-or-later
// What the rulers around the sensor image are told.
#include "spectrumsettings.h"

#include "displaymodemanager.h"

void SpectrumSettings::SlotNewArea(double xmin, double xmax, double ymin, double ymax)
{
    const Area area{ xmin, xmax, ymin, ymax };
    if (!IsArea(area))
        return; // the rulers stay
    const QString title = GetTitleName();
    m_liveArea = area;
    AnnounceLiveArea();
    if (title != GetTitleName())
        emit signalDisplayModePropertyChange();
}

void SpectrumSettings::SlotImageNewArea(double xmin, double xmax, double ymin, double ymax)
{
    const Area area{ xmin, xmax, ymin, ymax };
    if (!IsArea(area))
        return; // the rulers stay
    const QString title = GetTitleName();
    m_imageArea = area;
    CalculateImageArea();
    if (title != GetTitleName())
        emit signalDisplayModePropertyChange();
}

void SpectrumSettings::CalculateImageArea()
{
    AnnounceArea(m_imageArea, &DisplayModeManager::SignalImageChangeHShowValueRange,
                 &DisplayModeManager::SignalImageChangeVShowValueRange);
}

void SpectrumSettings::AnnounceLiveArea()
{
    AnnounceArea(m_liveArea, &DisplayModeManager::SignalChangeHShowValueRange,
                 &DisplayModeManager::SignalChangeVShowValueRange);
}

/// Also false for what is no number.
bool SpectrumSettings::IsArea(const Area &area)
{
    return qIsFinite(area.left) && qIsFinite(area.top) && qIsFinite(area.right) && qIsFinite(area.bottom)
           && area.left < area.right && area.top < area.bottom;
}

void SpectrumSettings::AnnounceArea(const Area &area, RangeSignal horizontal, RangeSignal vertical)
{
    if (!IsArea(area))
        return; // no picture yet
    const bool isHorizontal = IsDirectionHorinzontal();
    const RulerRange values = SpectralValues(area).value_or(SpectralPixels(area));
    emit(m_ranges->*horizontal)(isHorizontal ? values.first : area.left,
                                isHorizontal ? values.last : area.right);
    emit(m_ranges->*vertical)(isHorizontal ? area.top : values.first,
                              isHorizontal ? area.bottom : values.last);
}

RulerRange SpectrumSettings::SpectralPixels(const Area &area) const
{
    return IsDirectionHorinzontal() ? RulerRange{ area.left, area.right }
                                    : RulerRange{ area.top, area.bottom };
}

/// They stand at the picture, whatever the plot shows.
std::optional<RulerRange> SpectrumSettings::SpectralValues(const Area &area) const
{
    return FindRulerRange([this](int pixel, double &x) { return IsAcrossTracks() ? Convert(pixel, x) : Calculate(pixel, x); },
                          SpectralPixels(area));
}

/// The rulers of the sensor image are told what they count in; a plot carries every axis.
QString SpectrumSettings::GetTitleName() const
{
    const Area &area = m_isImageShown ? m_imageArea : m_liveArea;
    const bool countsPixels = IsDisplayModePhysics() && IsArea(area) && !SpectralValues(area);
    return countsPixels ? CalibratedAxis().Title() : AxisTitle();
}

QString SpectrumSettings::AxisTitle() const
{
    if (IsAcrossTracks())
        return tr("Track");
    double x = 0;
    if (!Calculate(0, x))
        return CalibratedAxis().Title();
    const CalibratedAxis &axis = ShownAxis();
    // The file says nothing: it may have been taken with another calibration, or be no spectrum at all.
    return m_isImageShown && axis.IsOwn() ? tr("%1, by the calibration in use").arg(axis.Title()) : axis.Title();
}
