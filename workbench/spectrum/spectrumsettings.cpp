// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrumsettings.h"

#include "centredisplay.h"

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

// Tracks

bool SpectrumSettings::GetMultiTrackOnFlag() const { return m_recipe.hasTracks; }

void SpectrumSettings::SetMultiTrackOnFlag(bool on)
{
    if (m_recipe.hasTracks == on)
        return;
    const QString fault = on ? TracksFault(m_tracks, m_frameSize, MostTracks(m_recipe.isHorizontal)) : QString();
    if (!fault.isEmpty()) {
        emit signalMessage(fault);
        return;
    }
    m_recipe.hasTracks = on;
    if (on)
        SetFVBOnFlag(0);
    emit SignalMultiTrackOnFlagChanged();
    emit signalRecipeChanged();
}

/// Drawn across the tracks, the plot has room for 20 of them.
int SpectrumSettings::MostTracks(bool horizontal) const
{
    constexpr int mostInVerticalPlot = 20;
    return horizontal ? MostTracksAtAll : mostInVerticalPlot;
}

bool SpectrumSettings::SetTracks(const QList<QRectF> &tracks)
{
    const QString fault = TracksFault(tracks, m_frameSize, MostTracks(m_recipe.isHorizontal));
    if (!fault.isEmpty()) {
        emit signalMessage(fault);
        return false;
    }
    m_tracks.clear();
    m_recipe.tracks.clear();
    for (const QRectF &track : tracks) {
        RowBand band;
        band.top = qRound(track.top());
        band.bottom = qRound(track.bottom());
        m_recipe.tracks.push_back(band);
        // A track is as wide as the frame: the plots count on it.
        m_tracks << QRectF(0, band.top, m_frameSize.width(), band.bottom - band.top);
    }
    if (m_recipe.hasTracks)
        emit SignalMultiTrackOnFlagChanged();
    emit signalRecipeChanged();
    return true;
}

QList<QRectF> SpectrumSettings::GetMultiTrackList() const { return m_tracks; }

void SpectrumSettings::SwitchTracksOff(const QString &reason)
{
    m_tracks.clear();
    m_recipe.tracks.clear();
    SetMultiTrackOnFlag(false);
    emit signalMessage(reason);
}

void SpectrumSettings::slotSetFrameSize(QSize size)
{
    if (m_frameSize == size)
        return;
    m_frameSize = size;
    UpdateLiveSpectrum();
    if (KeepBandInPicture())
        emit signalRecipeChanged();
    for (QRectF &track : m_tracks)
        track.setWidth(size.width());
    if (!m_tracks.isEmpty()) {
        const QString fault = TracksFault(m_tracks, size, MostTracks(m_recipe.isHorizontal));
        if (!fault.isEmpty())
            SwitchTracksOff(fault);
        else if (m_recipe.hasTracks)
            emit SignalMultiTrackOnFlagChanged();
    }
    if (!Calibration().IsNull())
        AnnounceAxis();
}

bool SpectrumSettings::GetSpeSelectionFlag() const { return false; }

/// Rectangles and lines.
int SpectrumSettings::GetSpectrumSelectionMode() const { return 0; }

bool SpectrumSettings::GetFocusAssitanceFlag() const { return m_recipe.isFocusing; }

void SpectrumSettings::SetFocusAssitanceFlag(bool on)
{
    if (m_recipe.isFocusing == on)
        return;
    m_recipe.isFocusing = on;
    emit SignalFocusOnChanged(on);
    emit SignalFocusCrossLineFlagChanged(on);
    if (!on)
        emit SignalAssitanceFocusClose();
    emit signalRecipeChanged();
}

// Direction and corrections

bool SpectrumSettings::IsDirectionHorinzontal() const { return m_recipe.isHorizontal; }

void SpectrumSettings::SetDirectionHorizontal() { SetHorizontal(true); }

void SpectrumSettings::SetHorizontal(bool horizontal)
{
    if (m_recipe.isHorizontal == horizontal)
        return;
    if (m_recipe.hasTracks && m_tracks.size() > MostTracks(horizontal)) {
        emit signalMessage(TracksFault(m_tracks, m_frameSize, MostTracks(horizontal)));
        return;
    }
    m_recipe.isHorizontal = horizontal;
    UpdateLiveSpectrum();
    KeepBandInPicture();
    emit signalRecipeChanged();
    if (m_recipe.hasTracks)
        emit SignalMultiTrackOnFlagChanged(); // the range of the track bar is another
    AnnounceAxis();
}

void SpectrumSettings::SetCorrections(const CorrectionSettings &corrections)
{
    if (m_recipe.corrections == corrections)
        return;
    m_recipe.corrections = corrections;
    emit signalRecipeChanged();
}

// Calibration

void SpectrumSettings::SetCalibration(const SpectralCalibration &calibration, const SpectralFrame &frame)
{
    m_liveAxis.SetCalibration(calibration, frame);
    m_imageAxis.SetCalibration(calibration, frame);
    TellOfMisfit();
    AnnounceAxis();
}

SpectralFrame SpectrumSettings::LiveFrame() const { return SpectralFrame::Of(m_sensorFrame, m_recipe.isHorizontal); }

SpectralFrame SpectrumSettings::ShownFrame() const { return m_isImageShown ? SpectralFrame() : LiveFrame(); }

void SpectrumSettings::SetSensorFrame(const SensorFrame &frame)
{
    if (m_sensorFrame == frame)
        return;
    m_sensorFrame = frame;
    UpdateLiveSpectrum();
    if (!Calibration().IsNull())
        AnnounceAxis();
}

void SpectrumSettings::UpdateLiveSpectrum()
{
    m_liveAxis.SetSpectrum(m_recipe.isHorizontal ? m_frameSize.width() : m_frameSize.height(), LiveFrame());
    TellOfMisfit();
}

/// Once, until there is another one.
void SpectrumSettings::TellOfMisfit()
{
    const QString misfit = m_liveAxis.Misfit();
    if (misfit == m_toldMisfit)
        return;
    m_toldMisfit = misfit;
    if (!misfit.isEmpty())
        emit signalMessage(misfit);
}

void SpectrumSettings::SetUnit(SpectralUnit unit)
{
    if (m_unit == unit)
        return;
    m_unit = unit;
    m_liveAxis.SetUnit(unit);
    m_imageAxis.SetUnit(unit);
    emit signalUnitChanged();
    AnnounceAxis();
    if (unit == SpectralUnit::Wavenumber && ShownAxis().Unit() == SpectralUnit::Nanometre)
        emit signalMessage(tr("A wavelength of 0 lies in this spectrum, which has no wavenumber: it is shown in nanometres."));
}

void SpectrumSettings::SetImageAxis(const SpectralAxis &axis, int width)
{
    if (m_imageAxis.FileAxis() == axis && m_imageAxis.Width() == width)
        return; // the next frame: what is announced asks for the curves anew
    m_imageAxis.SetFileAxis(axis);
    m_imageAxis.SetSpectrum(width, SpectralFrame());
    AnnounceAxis();
}

void SpectrumSettings::slotSetImageShown(bool shown)
{
    if (m_isImageShown == shown)
        return;
    m_isImageShown = shown;
    AnnounceAxis();
}

/// Rulers, titles and labels follow.
void SpectrumSettings::AnnounceAxis()
{
    AnnounceLiveArea();
    CalculateImageArea();
    emit signalDisplayModePropertyChange();
    emit SignalConversationFormulaChanged();
}

/// A file's axis is that of its columns: a profile along one of them has none.
const CalibratedAxis &SpectrumSettings::ShownAxis() const
{
    if (!m_isImageShown)
        return m_liveAxis;
    return m_recipe.isHorizontal ? m_imageAxis : m_plainAxis;
}

bool SpectrumSettings::Calculate(int pixel, double &x) const
{
    x = pixel;
    const CalibratedAxis &axis = ShownAxis();
    if (axis.Unit() == SpectralUnit::Pixel)
        return false;
    x = axis.At(pixel);
    return qIsFinite(x);
}

/// Two numbers that differ, as OpenedPicture::GetExpansionArea() writes them.
bool SpectrumSettings::IsValidConversation(QString *text) const
{
    const QStringList ends = text ? text->split(';') : QStringList();
    bool isFirst = false;
    bool isLast = false;
    return ends.size() == 2 && ends[0].toDouble(&isFirst) != ends[1].toDouble(&isLast) && isFirst && isLast;
}

// Style

void SpectrumSettings::SetStyle(const PlotStyle &style)
{
    m_style = style;
    emit SignalSpectralPropertyChanged();
}

QPen SpectrumSettings::GetLinePen() const { return m_style.line; }

QColor SpectrumSettings::GetLineColor() const { return m_style.line.color(); }

double SpectrumSettings::GetLineWidth() const { return m_style.line.widthF(); }

int SpectrumSettings::GetLineStyle() const { return int(m_style.line.style()) - 1; }

QPen SpectrumSettings::GetPeakPen() const { return m_style.peak; }

QColor SpectrumSettings::GetPeakColor() const { return m_style.peak.color(); }

double SpectrumSettings::GetPeakSize() const { return m_style.peakSize; }

int SpectrumSettings::GetPeakNumber() const { return m_style.peakNumber; }

QColor SpectrumSettings::GetBackgroundColor() const { return m_style.background; }

double SpectrumSettings::GetBlankRatio() const { return m_style.blankRatio; }

bool SpectrumSettings::GetZoomAutoFlag() const { return m_isZoomAutomatic; }

void SpectrumSettings::SetZoomAutoFlag(bool on)
{
    if (m_isZoomAutomatic == on)
        return;
    m_isZoomAutomatic = on;
    emit SignalZoomAutoFlagChange();
}
