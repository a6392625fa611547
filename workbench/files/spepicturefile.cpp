// SPDX-License-Identifier: GPL-3.0-or-later
#include "spepicturefile.h"

#include "filenametext.h"
#include "sampleswap.h"

#include <QCoreApplication>
#include <QtEndian>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(SpePictureFile)
};

} // namespace

SpePictureFile::SpePictureFile(const QString &path)
    : PictureFile(path)
    , m_file(path)
{
}

bool SpePictureFile::Open(FileFault &fault)
{
    if (!m_file.open(QIODevice::ReadOnly))
        return fault.Set(m_file.errorString(), DamagedAdvice());
    if (!ReadSpeLayout(m_file, m_layout, fault))
        return false;
    FillInfo();
    return true;
}

void SpePictureFile::FillInfo()
{
    const SpeRegion &first = m_layout.regions.first();
    const int regions = m_layout.regions.size();
    PictureInfo &info = MutableInfo();
    info.format = PictureFormat::Spe;
    info.frames = m_layout.frames * regions;
    info.kinds = regions;
    info.size = QSize(first.width, first.height);
    info.sampleType = m_layout.type;
    info.metadata = m_layout.metadata;
    info.formatDetail = Text::tr("version %1").arg(m_layout.version < 3 ? 2 : 3);
    if (regions > 1)
        info.formatDetail += Text::tr(", %1 regions").arg(regions);
    for (const QString &warning : qAsConst(m_layout.warnings))
        AddWarning(Text::tr("\u201c%1\u201d: %2. %3").arg(FileNameTextOf(Path()), warning, DamagedAdvice()));
    if (m_layout.mergedRegions > 1) {
        AddWarning(
            Text::tr(
                "\u201c%1\u201d: its %2 regions are shown as one picture, with the filler that lies between them, as %3.")
                .arg(FileNameTextOf(Path()), QString::number(m_layout.mergedRegions),
                     m_layout.mergedReason));
    }
    if (m_layout.missingFrames > 0) {
        AddWarning(ReadFaultText(Path(), {Text::tr("only the first %1 of its %2 frames are there")
                                              .arg(m_layout.frames).arg(m_layout.frames + m_layout.missingFrames),
                                          DamagedAdvice(), QString()}));
    }
}

QString SpePictureFile::FrameDescription(int index) const
{
    const int regions = m_layout.regions.size();
    if (regions == 1)
        return QString();
    const SpeRegion &region = RegionOf(index);
    return Text::tr("exposure %1 of %2, region %3 of %4, from column %5 and row %6 of the sensor")
        .arg(index / regions + 1)
        .arg(m_layout.frames)
        .arg(index % regions + 1)
        .arg(regions)
        .arg(region.onSensor.pixels.x())
        .arg(region.onSensor.pixels.y());
}

SpectralAxis SpePictureFile::AxisOf(int index) const { return RegionOf(index).axis; }

bool SpePictureFile::ReadRows(qint64 start, int skippedBytes, Picture &frame)
{
    const int pieces = skippedBytes == 0 ? 1 : frame.Height();
    const qint64 pieceBytes = frame.ByteCount() / pieces;
    for (int i = 0; i < pieces; ++i) {
        const bool isThere = m_file.seek(start + i * (pieceBytes + skippedBytes));
        if (!isThere
            || m_file.read(reinterpret_cast<char *>(frame.Data()) + i * pieceBytes, pieceBytes) != pieceBytes)
            return false;
    }
    return true;
}

bool SpePictureFile::Decode(int index, Picture &frame, FrameRows *, FileFault &fault)
{
    const SpeRegion &region = RegionOf(index);
    frame.Reshape(region.width, region.height, 1, m_layout.type);
    const qint64 exposure = index / m_layout.regions.size();
    const qint64 start = SpeLayout::headerBytes + exposure * m_layout.frameStride + region.offset;
    if (!ReadRows(start, region.skipped * BytesPerSample(m_layout.type), frame))
        return fault.Set(Text::tr("frame %1 of %2 is not whole").arg(index + 1).arg(Info().frames), DamagedAdvice());
    if (Q_BYTE_ORDER == Q_BIG_ENDIAN)
        SwapSampleBytes(frame);
    return true;
}
