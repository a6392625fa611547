// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrumsettings.h"

SpectrumSettings::SpectrumSettings(DisplayModeManager *ranges, QObject *parent)
    : SpectrumUIManager(parent)
    , m_ranges(ranges)
{
}

int SpectrumSettings::GetDisplayMode() const
{
    return 0;
}

bool SpectrumSettings::IsDisplayModeGeneral() const
{
    return true;
}

bool SpectrumSettings::IsDisplayMode2D() const
{
    return false;
}

bool SpectrumSettings::IsDisplayMode2DPeak() const
{
    return false;
}

bool SpectrumSettings::IsDisplayMode3D() const
{
    return false;
}

bool SpectrumSettings::IsDisplayModePhysics() const
{
    return false;
}

void SpectrumSettings::SetDisplayModeGeneral() {}

void SpectrumSettings::UpdateDisplayModeProperty() {}

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

void SpectrumSettings::SlotNewArea(double, double, double, double) {}

void SpectrumSettings::SlotImageNewArea(double, double, double, double) {}

void SpectrumSettings::CalculateImageArea() {}

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
    return {};
}

bool SpectrumSettings::GetZoomAutoFlag() const
{
    return false;
}

void SpectrumSettings::SetZoomAutoFlag(bool) {}
