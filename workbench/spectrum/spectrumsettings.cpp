// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrumsettings.h"

#include "centredisplay.h"
#include "displaymodemanager.h"

SpectrumSettings::SpectrumSettings(DisplayModeManager *ranges, CentreDisplay *centre, QObject *parent)
    : SpectrumUIManager(parent)
    , m_ranges(ranges)
    , m_centre(centre)
{
    connect(centre, &CentreDisplay::signalModeChanged, this, &SpectrumSettings::signalDisplayModeChange);
    connect(centre, &CentreDisplay::signalPreviewAreaWanted, this, &SpectrumSettings::AnnounceLiveArea);
}

DisplayMode SpectrumSettings::Mode() const
{
    return m_centre->Mode();
}

void SpectrumSettings::SetMode(DisplayMode mode)
{
    m_centre->SetMode(mode);
}

int SpectrumSettings::GetDisplayMode() const
{
    return m_centre->GetCurrentDisplayMode();
}

bool SpectrumSettings::IsDisplayModeGeneral() const
{
    return Mode() == DisplayMode::General;
}

bool SpectrumSettings::IsDisplayMode2D() const
{
    return Mode() == DisplayMode::Plot;
}

bool SpectrumSettings::IsDisplayMode2DPeak() const
{
    return Mode() == DisplayMode::PlotPeak;
}

bool SpectrumSettings::IsDisplayMode3D() const
{
    return Mode() == DisplayMode::Tracks3D;
}

bool SpectrumSettings::IsDisplayModePhysics() const
{
    return Mode() == DisplayMode::Physics;
}

void SpectrumSettings::SetDisplayModeGeneral()
{
    SetMode(DisplayMode::General);
}

void SpectrumSettings::UpdateDisplayModeProperty()
{
    emit signalDisplayModePropertyChange();
}

DisplayModeManager *SpectrumSettings::GetDisplayModeManager() const
{
    return m_ranges;
}

int SpectrumSettings::GetFVBOnFlag() const
{
    return 0;
}

void SpectrumSettings::SetFVBOnFlag(int) {}

bool SpectrumSettings::IsFVBModeAll() const
{
    return true;
}

bool SpectrumSettings::IsFVBModeAuto() const
{
    return false;
}

bool SpectrumSettings::GetManualFlag() const
{
    return false;
}

int SpectrumSettings::GetTop() const
{
    return 0;
}

void SpectrumSettings::SetTop(int) {}

int SpectrumSettings::GetBottom() const
{
    return 0;
}

void SpectrumSettings::SetBottom(int) {}

bool SpectrumSettings::GetMultiTrackOnFlag() const
{
    return false;
}

void SpectrumSettings::SetMultiTrackOnFlag(bool) {}

QList<QRectF> SpectrumSettings::GetMultiTrackList() const
{
    return {};
}

bool SpectrumSettings::GetSpeSelectionFlag() const
{
    return false;
}

int SpectrumSettings::GetSpectrumSelectionMode() const
{
    return 0;
}

bool SpectrumSettings::GetFocusAssitanceFlag() const
{
    return false;
}

void SpectrumSettings::SetFocusAssitanceFlag(bool) {}

bool SpectrumSettings::IsDirectionHorinzontal() const
{
    return true;
}

void SpectrumSettings::SetDirectionHorizontal() {}

void SpectrumSettings::SlotNewArea(double xmin, double xmax, double ymin, double ymax)
{
    const Area area{xmin, xmax, ymin, ymax};
    if (!IsArea(area))
        return; // the rulers stay
    m_liveArea = area;
    AnnounceLiveArea();
}

void SpectrumSettings::SlotImageNewArea(double xmin, double xmax, double ymin, double ymax)
{
    const Area area{xmin, xmax, ymin, ymax};
    if (!IsArea(area))
        return; // the rulers stay
    m_imageArea = area;
    CalculateImageArea();
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
    emit (m_ranges->*horizontal)(RulerValue(area.left, isHorizontal), RulerValue(area.right, isHorizontal));
    emit (m_ranges->*vertical)(RulerValue(area.top, !isHorizontal), RulerValue(area.bottom, !isHorizontal));
}

/// Along the spectrum a calibrated value, where there is one; else the pixel itself.
double SpectrumSettings::RulerValue(double pixel, bool isSpectralSide) const
{
    double value = pixel;
    return isSpectralSide && Calculate(qRound(pixel), value) ? value : pixel;
}

bool SpectrumSettings::Calculate(int, double &) const
{
    return false;
}

bool SpectrumSettings::IsValidConversation(QString *) const
{
    return false;
}

QPen SpectrumSettings::GetLinePen() const
{
    return QPen(Qt::blue, 1.0);
}

QColor SpectrumSettings::GetLineColor() const
{
    return GetLinePen().color();
}

double SpectrumSettings::GetLineWidth() const
{
    return GetLinePen().widthF();
}

int SpectrumSettings::GetLineStyle() const
{
    return 0;
}

QPen SpectrumSettings::GetPeakPen() const
{
    return QPen(Qt::red, 1.0);
}

QColor SpectrumSettings::GetPeakColor() const
{
    return GetPeakPen().color();
}

double SpectrumSettings::GetPeakSize() const
{
    return 8.0;
}

int SpectrumSettings::GetPeakNumber() const
{
    return 0;
}

QColor SpectrumSettings::GetBackgroundColor() const
{
    return Qt::white;
}

double SpectrumSettings::GetBlankRatio() const
{
    return 0.1;
}

QString SpectrumSettings::GetTitleName() const
{
    return tr("Pixel Number");
}

bool SpectrumSettings::GetZoomAutoFlag() const
{
    return false;
}

void SpectrumSettings::SetZoomAutoFlag(bool) {}
