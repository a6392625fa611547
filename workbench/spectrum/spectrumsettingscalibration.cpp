// SPDX-License-Identifier: GPL-3.0-or-later
// What pixels mean, live and of opened pictures.
#include "spectrumsettings.h"

#include <utility>

void SpectrumSettings::SetCalibration(const SpectralCalibration &calibration, const SpectralFrame &frame)
{
    m_liveAxis.SetCalibration(calibration, frame);
    m_imageAxis.SetCalibration(calibration, frame);
    m_imageColumnAxis.SetCalibration(calibration, frame);
    const bool replaces = m_isImageShown && frame.isAlongRows && frame.fileExtent == m_image.fileSize.width();
    m_replaced = replaces ? m_image : SpectralPicture();
    UpdateImageSpectra();
    TellOfMisfit();
    AnnounceAxis();
}

bool SpectrumSettings::IsAxisReplaced() const { return m_image.IsOfSameColumns(m_replaced); }

/// An axis of a file that does not follow its turns is not that of ours either.
void SpectrumSettings::UpdateImageSpectra()
{
    const bool isReplaced = IsAxisReplaced();
    const bool isLost = !isReplaced && m_image.axis.IsEmpty() && !m_image.fileAxis.IsEmpty();
    const SpectralFrame alongRows = isLost ? SpectralFrame() : m_image.Frame(true);
    const SpectralFrame alongColumns = isLost ? SpectralFrame() : m_image.Frame(false);
    m_imageAxis.SetFileAxis(isReplaced ? SpectralAxis() : m_image.axis);
    m_imageAxis.SetSpectrum(alongRows.count, alongRows);
    m_imageColumnAxis.SetSpectrum(alongColumns.count, alongColumns);
}

SpectralFrame SpectrumSettings::LiveFrame() const { return SpectralFrame::Of(m_sensorFrame, m_recipe.isHorizontal); }

SpectralFrame SpectrumSettings::ShownFrame() const { return m_isImageShown ? m_image.Frame(m_recipe.isHorizontal) : LiveFrame(); }

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

/// A file's own axis is that of its columns: a profile along one of them has ours at most.
const CalibratedAxis &SpectrumSettings::ShownAxis() const
{
    if (!m_isImageShown)
        return m_liveAxis;
    return m_recipe.isHorizontal ? m_imageAxis : m_imageColumnAxis;
}

CalibratedAxis SpectrumSettings::LiveAxis(int width, const SpectralFrame &frame) const
{
    CalibratedAxis axis = m_liveAxis;
    axis.SetSpectrum(width, frame);
    return axis;
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

QVector<MetadataEntry> SpectrumSettings::LiveCalibration(const SensorFrame &frames) const
{
    if (!m_recipe.isHorizontal)
        return {};
    const SpectralFrame columns = SpectralFrame::Of(frames, true);
    return SpectralMetadata(LiveAxis(columns.count, columns).Record());
}

QVector<MetadataEntry> SpectrumSettings::ImageCalibration() const
{
    return m_imageAxis.IsOwn() && m_recipe.isHorizontal ? SpectralMetadata(m_imageAxis.Record()) : QVector<MetadataEntry>();
}
