// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrumsettings.h"

#include "centredisplay.h"

SpectrumSettings::SpectrumSettings(DisplayModeManager *ranges, CentreDisplay *centre, QObject *parent)
    : SpectrumUIManager(parent)
    , m_ranges(ranges)
    , m_centre(centre)
{
    connect(centre, &CentreDisplay::signalModeChanged, this, &SpectrumSettings::signalDisplayModeChange);
    connect(centre, &CentreDisplay::signalModeChanged, this, &SpectrumSettings::TellOfTooManyTracks);
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
    if (!m_recipe.isHorizontal)
        AnnounceAxis(); // the plot counts tracks, or pixels again
}

/// Drawn across the tracks, the plot has room for 20 of them; the other pages show all.
int SpectrumSettings::MostTracks(bool horizontal) const
{
    constexpr int mostInVerticalPlot = 20;
    const bool isPlot = Mode() == DisplayMode::Plot || Mode() == DisplayMode::PlotPeak;
    return isPlot && !horizontal ? mostInVerticalPlot : MostTracksAtAll;
}

/// The plot shows the first ones.
void SpectrumSettings::TellOfTooManyTracks()
{
    const int most = MostTracks(m_recipe.isHorizontal);
    if (m_recipe.hasTracks && m_tracks.size() > most)
        emit signalMessage(TracksFault(m_tracks, m_frameSize, most));
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

void SpectrumSettings::ClearTracks()
{
    m_tracks.clear();
    m_recipe.tracks.clear();
    SetMultiTrackOnFlag(false);
    emit signalRecipeChanged();
}

void SpectrumSettings::DropTracks(const QString &reason)
{
    ClearTracks();
    emit signalTracksDropped();
    emit signalMessage(reason);
}

/// Tracks count the rows of the picture.
void SpectrumSettings::TellOfOtherRows(const SensorFrame &before)
{
    const SpectralFrame rowsBefore = SpectralFrame::Of(before, false);
    if (m_tracks.isEmpty() || rowsBefore.IsNull() || rowsBefore == SpectralFrame::Of(m_sensorFrame, false))
        return;
    emit signalMessage(tr("The picture shows other rows of the sensor now, and the tracks stay where they are in the picture: move them, "
                          "or have them found again."));
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
        const QString fault = TracksFault(m_tracks, size, MostTracksAtAll);
        if (!fault.isEmpty())
            DropTracks(fault);
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

bool SpectrumSettings::IsImageHorizontal() const { return m_isImageHorizontal.value_or(m_recipe.isHorizontal); }

bool SpectrumSettings::IsDirectionHorinzontal() const { return m_isImageShown ? IsImageHorizontal() : m_recipe.isHorizontal; }

void SpectrumSettings::SetDirectionHorizontal() { SetImageHorizontal(true); }

/// Band and tracks of the camera stay as they are.
void SpectrumSettings::SetImageHorizontal(bool horizontal)
{
    const bool isOther = IsImageHorizontal() != horizontal;
    m_isImageHorizontal = horizontal;
    if (!isOther || !m_isImageShown)
        return;
    emit signalRecipeChanged();
    AnnounceAxis();
}

void SpectrumSettings::SetHorizontal(bool horizontal)
{
    if (m_isImageShown) {
        SetImageHorizontal(horizontal);
        return;
    }
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
    if (on)
        emit signalWholeCurveWanted();
    if (m_isZoomAutomatic == on)
        return;
    m_isZoomAutomatic = on;
    emit SignalZoomAutoFlagChange();
}
