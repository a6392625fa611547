// SPDX-License-Identifier: GPL-3.0-or-later
#include "savetask.h"

#include "createpicture.h"
#include "fitscoordinates.h"
#include "picturedisplay.h"
#include "spectralmetadata.h"
#include "speregions.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstring>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(SaveTask)
};

bool HoldsSamples(PictureFormat format, SampleType type)
{
    switch (format) {
    case PictureFormat::Png:
        return type == SampleType::U8 || type == SampleType::U16;
    case PictureFormat::Jpeg:
        return type == SampleType::U8;
    default:
        return true;
    }
}

/// The places on the sensor hold for whole frames of an SPE file, each for those of its region.
bool IsOfOtherFrames(const MetadataEntry &entry, const PictureInfo &info, const SaveRequest &request, const QSize &fileSize)
{
    if (info.format != PictureFormat::Spe || !IsSpeRegionKey(entry.key))
        return false;
    const bool isOfOne = info.kinds > 1 && request.frameCount == 1;
    return request.edit.FileRegion(fileSize) != QRect(QPoint(), fileSize)
        || (isOfOne && entry.key != SpeRegionKey(request.firstFrame % info.kinds, info.kinds));
}

/// But for the calibration, which may be another after the edit.
QVector<MetadataEntry> MetadataOf(const PictureInfo &info, const SaveRequest &request, const QSize &fileSize)
{
    QVector<MetadataEntry> metadata = info.format == PictureFormat::Fits
        ? FitsMetadataOfRegion(info.metadata, info.size, request.edit.FileRegion(info.size))
        : info.metadata;
    const auto isLeftOut = [&](const MetadataEntry &entry) {
        return IsSpectralMetadata(entry) || IsOfOtherFrames(entry, info, request, fileSize);
    };
    metadata.erase(std::remove_if(metadata.begin(), metadata.end(), isLeftOut), metadata.end());
    return metadata;
}

/// What the columns, or rows, of the frames to be saved mean. Frames of one file may differ in size: `fileSize` is that
/// of the first one to be saved.
QVector<MetadataEntry> CalibrationOf(const PictureFile &file, const SaveRequest &request, const QSize &fileSize)
{
    if (!request.calibration.isEmpty())
        return request.calibration;
    const SpectralAxis ofFile = file.AxisOf(request.firstFrame);
    // All regions of an SPE file go into one stack only when they have one size, but each has columns of its own.
    for (int frame = request.firstFrame + 1; frame < request.firstFrame + request.frameCount; ++frame) {
        if (!(file.AxisOf(frame) == ofFile))
            return {};
    }
    return SpectralMetadata(request.edit.SeenAxis(ofFile, fileSize));
}

Picture FromImage(const QImage &image)
{
    const int channels = image.format() == QImage::Format_Grayscale8 ? 1 : 3;
    Picture picture(image.width(), image.height(), channels, SampleType::U8);
    for (int y = 0; y < image.height(); ++y)
        std::memcpy(picture.Row(y), image.constScanLine(y), size_t(picture.BytesPerRow()));
    return picture;
}

} // namespace

SaveTask::SaveTask(const SaveRequest &request)
    : m_request(request)
{
}

bool SaveTask::Step(EditedFrames &frames, PictureDisplay &display)
{
    Picture frame;
    QSize fileSize;
    if (!Frame(frames, frame, fileSize) || (!m_writer && !Begin(*frames.Access(), fileSize))) {
        m_writer.reset();
        return false;
    }
    if (!HoldsSamples(FormatOfName(m_request.target), frame.Type())) {
        const int kind = (m_request.firstFrame + m_framesDone) % m_request.ranges.size();
        frame = FromImage(display.MakePlain(frame, m_request.ranges[kind]));
    }
    if (!m_writer->Append(frame, m_error)) {
        m_writer.reset();
        return false;
    }
    if (++m_framesDone < m_request.frameCount)
        return true;
    m_writer->Commit(m_error);
    m_writer.reset();
    return false;
}

bool SaveTask::Begin(PictureAccess &access, const QSize &fileSize)
{
    SaveOptions options;
    options.frameCount = m_request.frameCount;
    options.compress = m_request.compress;
    if (m_request.image.isNull()) {
        const PictureFile *file = access.Open(m_request.file, m_error);
        if (!file)
            return false;
        m_request.ranges.resize(std::max(1, file->Info().kinds));
        options.dpiX = file->Info().dpiX / m_request.edit.PixelsJoined();
        options.dpiY = file->Info().dpiY / m_request.edit.PixelsJoined();
        if (m_request.edit.GetOrientation().SwapsSides())
            std::swap(options.dpiX, options.dpiY);
        options.metadata = MetadataOf(file->Info(), m_request, fileSize) + CalibrationOf(*file, m_request, fileSize);
    }
    m_writer = CreatePicture(m_request.target, options, m_error);
    return m_writer != nullptr;
}

bool SaveTask::Frame(EditedFrames &frames, Picture &frame, QSize &fileSize)
{
    if (!m_request.image.isNull()) {
        frame = FromImage(m_request.image);
        return true;
    }
    const IsUnwanted isUnwanted = [] { return false; }; // a save that was begun is brought to an end
    return frames.Read(m_request.file, m_request.firstFrame + m_framesDone, m_request.edit, isUnwanted, frame, fileSize,
                       m_error);
}

QString SavingLossText(PictureFormat format, SampleType type, int channels)
{
    if (format == PictureFormat::Fits && channels == 3)
        return Text::tr("FITS has no colour: red, green and blue become three frames.");
    const QString holds = HoldsSamples(format, type)
                              ? QString()
                              : Text::tr("The %1 samples become 8 bits, with the levels of the screen.")
                                    .arg(SampleTypeName(type));
    if (format != PictureFormat::Jpeg)
        return holds;
    const QString changes = Text::tr("JPEG changes every sample a little.");
    return holds.isEmpty() ? changes : changes + ' ' + holds;
}
