// SPDX-License-Identifier: GPL-3.0-or-later
// What pixels mean, live and of opened pictures.
#include "spectrumsettings.h"

#include "camerainfo.h"

#include <utility>

void SpectrumSettings::SetCalibration(const SpectralCalibration &calibration, const SpectralFrame &frame, const QString &camera)
{
    m_calibratedCamera = camera;
    m_liveAxis.SetCalibration(calibration, frame);
    m_imageAxis.SetCalibration(calibration, frame);
    m_imageColumnAxis.SetCalibration(calibration, frame);
    const SpectralSide side = frame.isAlongRows ? SpectralSide::Columns : SpectralSide::Rows;
    const bool replaces = m_isImageShown && side == m_image.fileAxis.side
                          && frame.fileExtent == PixelsOf(side, m_image.fileSize);
    m_replaced = replaces ? m_image : SpectralPicture();
    UpdateImageSpectra();
    TellOfMisfit();
    TellOfCamera();
    AnnounceAxis();
}

void SpectrumSettings::SetCamera(const QString &name)
{
    if (m_camera == name)
        return;
    m_camera = name;
    TellOfCamera();
}

QString SpectrumSettings::CameraNote() const
{
    const bool isOther = !m_camera.isEmpty() && !m_calibratedCamera.isEmpty() && m_camera != m_calibratedCamera;
    if (!isOther || m_isImageShown || !m_liveAxis.IsCalibrated())
        return QString();
    return tr("The calibration was made with the camera %1: calibrate anew if this one does not stand in its place.")
        .arg(ShownCameraName(m_calibratedCamera));
}

/// Once, until it is another one.
void SpectrumSettings::TellOfCamera()
{
    const QString note = CameraNote();
    if (note == m_toldCamera)
        return;
    m_toldCamera = note;
    emit signalUnitChanged(); // the panel says what the unit is worth
    if (!note.isEmpty())
        emit signalMessage(note);
}

bool SpectrumSettings::IsAxisReplaced() const { return m_image.IsOfSameColumns(m_replaced); }

/// An axis of a file that cannot follow what was done to it is not that of ours either.
void SpectrumSettings::UpdateImageSpectra()
{
    const bool isReplaced = IsAxisReplaced();
    const bool isLost = !isReplaced && m_image.axis.IsEmpty() && !m_image.fileAxis.IsEmpty();
    const SpectralFrame alongRows = isLost ? SpectralFrame() : m_image.Frame(true);
    const SpectralFrame alongColumns = isLost ? SpectralFrame() : m_image.Frame(false);
    const SpectralAxis ofFile = isReplaced ? SpectralAxis() : m_image.axis;
    m_imageAxis.SetFileAxis(ofFile);
    m_imageColumnAxis.SetFileAxis(ofFile);
    m_imageAxis.SetSpectrum(alongRows.count, alongRows);
    m_imageColumnAxis.SetSpectrum(alongColumns.count, alongColumns);
}

SpectralFrame SpectrumSettings::LiveFrame() const { return SpectralFrame::Of(m_sensorFrame, m_recipe.isHorizontal); }

SpectralFrame SpectrumSettings::ShownFrame() const { return m_isImageShown ? m_image.Frame(IsImageHorizontal()) : LiveFrame(); }

void SpectrumSettings::SetSensorFrame(const SensorFrame &frame)
{
    if (m_sensorFrame == frame)
        return;
    TellOfOtherRows(std::exchange(m_sensorFrame, frame));
    UpdateLiveSpectrum();
    if (!Calibration().IsNull())
        AnnounceAxis();
}

void SpectrumSettings::UpdateLiveSpectrum()
{
    m_liveAxis.SetSpectrum(m_recipe.isHorizontal ? m_frameSize.width() : m_frameSize.height(), LiveFrame());
    TellOfMisfit();
    TellOfCamera();
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
    m_imageColumnAxis.SetUnit(unit);
    emit signalUnitChanged();
    AnnounceAxis();
    if (unit == SpectralUnit::Wavenumber && ShownAxis().Unit() == SpectralUnit::Nanometre)
        emit signalMessage(tr("A wavelength of 0 lies in this spectrum, which has no wavenumber: it is shown in nanometres."));
}

void SpectrumSettings::SetImage(const SpectralPicture &picture)
{
    const bool isSameButTheFile = m_image.IsLike(picture);
    const bool wasReplaced = IsAxisReplaced();
    m_image = picture;
    UpdateImageSpectra();
    // Not for the next frame: what is announced asks for the curves anew.
    if (!isSameButTheFile || IsAxisReplaced() != wasReplaced)
        AnnounceAxis();
}

void SpectrumSettings::slotSetImageShown(bool shown)
{
    if (m_isImageShown == shown)
        return;
    const bool wasHorizontal = IsDirectionHorinzontal();
    m_isImageShown = shown;
    if (wasHorizontal != IsDirectionHorinzontal()) {
        emit signalRecipeChanged();
        if (m_recipe.hasTracks && !shown)
            emit SignalMultiTrackOnFlagChanged(); // the camera's track bar ranges by the direction on the screen
    }
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

const CalibratedAxis &SpectrumSettings::ImageAxis() const
{
    return IsImageHorizontal() ? m_imageAxis : m_imageColumnAxis;
}

const CalibratedAxis &SpectrumSettings::ShownAxis() const
{
    return m_isImageShown ? ImageAxis() : m_liveAxis;
}

CalibratedAxis SpectrumSettings::LiveAxis(int width, const SpectralFrame &frame) const
{
    CalibratedAxis axis = m_liveAxis;
    axis.SetSpectrum(width, frame);
    return axis;
}

bool SpectrumSettings::IsAcrossTracks() const
{
    const bool isPlot = Mode() == DisplayMode::Plot || Mode() == DisplayMode::PlotPeak;
    return isPlot && !m_isImageShown && m_recipe.hasTracks && !m_recipe.isHorizontal;
}

/// Tracks have a number, from 1.
bool SpectrumSettings::Calculate(int pixel, double &x) const
{
    if (!IsAcrossTracks())
        return Convert(pixel, x);
    x = pixel + 1;
    return true;
}

bool SpectrumSettings::Convert(int pixel, double &x) const
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

QVector<MetadataEntry> SpectrumSettings::LiveCalibration(const SensorFrame &frames) const
{
    const SpectralFrame side = SpectralFrame::Of(frames, m_recipe.isHorizontal);
    return SpectralMetadata(LiveAxis(side.count, side).Record());
}

QVector<MetadataEntry> SpectrumSettings::ImageCalibration() const
{
    const CalibratedAxis &axis = ImageAxis();
    return axis.IsOwn() ? SpectralMetadata(axis.Record()) : QVector<MetadataEntry>();
}
