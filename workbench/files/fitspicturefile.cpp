// SPDX-License-Identifier: GPL-3.0-or-later
#include "fitspicturefile.h"

#include "fitsheader.h"
#include "fitssamples.h"
#include "sampleswap.h"

#include <QCoreApplication>
#include <QtGlobal>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(FitsPictureFile)
};

void FlipRows(Picture &picture)
{
    const qint64 rowBytes = picture.BytesPerRow();
    uchar *top = picture.Data();
    uchar *bottom = top + (picture.Height() - 1) * rowBytes;
    for (; top < bottom; top += rowBytes, bottom -= rowBytes)
        std::swap_ranges(top, top + rowBytes, bottom);
}

/// Adding half of the range is the same as turning the highest bit around.
template <typename Unsigned>
void TurnHighestBit(Picture &picture)
{
    constexpr Unsigned highest = Unsigned(Unsigned(1) << (8 * sizeof(Unsigned) - 1));
    auto *samples = picture.Samples<Unsigned>(0);
    const qint64 count = picture.ByteCount() / qint64(sizeof(Unsigned));
    for (qint64 i = 0; i < count; ++i)
        samples[i] ^= highest;
}

void AddUsualOffset(Picture &picture)
{
    switch (BytesPerSample(picture.Type())) {
    case 1: TurnHighestBit<quint8>(picture); break;
    case 2: TurnHighestBit<quint16>(picture); break;
    default: TurnHighestBit<quint32>(picture); break;
    }
}

} // namespace

FitsPictureFile::FitsPictureFile(const QString &path)
    : PictureFile(path)
    , m_file(path)
{
}

bool FitsPictureFile::Open(FileFault &fault)
{
    if (!m_file.open(QIODevice::ReadOnly))
        return fault.Set(m_file.errorString(), DamagedAdvice());
    FitsHeader header;
    int extension = 0;
    if (!FindPicture(header, extension, fault) || !ReadFitsLayout(header, m_file.size(), m_layout, fault))
        return false;
    if (m_layout.isCompressed) {
        m_tiles = std::make_unique<FitsTiles>();
        if (!m_tiles->Open(header, m_layout, fault))
            return false;
    }
    m_dataOffset = header.DataOffset();
    m_blank = m_layout.storedBits > 0 ? header.Number("BLANK", std::numeric_limits<double>::quiet_NaN())
                                      : std::numeric_limits<double>::quiet_NaN();
    FillInfo(header, extension);
    return true;
}

bool FitsPictureFile::FindPicture(FitsHeader &header, int &extension, FileFault &fault)
{
    qint64 offset = 0;
    for (extension = 0; offset < m_file.size(); ++extension) {
        if (!header.Read(m_file, offset, fault))
            return false;
        if (IsFitsPicture(header))
            return true;
        const double blocks = std::ceil(header.DataBytes() / FitsHeader::blockBytes);
        if (!(blocks >= 0) || blocks * FitsHeader::blockBytes >= double(m_file.size()))
            break;
        offset = header.DataOffset() + qint64(blocks) * FitsHeader::blockBytes;
    }
    return fault.Set(Text::tr("there is no picture in it, only tables or nothing"), UnsupportedAdvice());
}

void FitsPictureFile::FillInfo(const FitsHeader &header, int extension)
{
    PictureInfo &info = MutableInfo();
    info.format = PictureFormat::Fits;
    info.frames = m_layout.frames;
    info.size = QSize(m_layout.width, m_layout.height);
    info.sampleType = m_layout.type;
    info.metadata = header.Metadata();
    m_axis = AxisOfFirst(info.metadata);
    QStringList details;
    if (m_layout.isCompressed)
        details << Text::tr("compressed");
    if (extension > 0)
        details << Text::tr("in extension %1").arg(extension);
    info.formatDetail = details.join(", ");
    if (m_layout.missingFrames > 0) {
        AddWarning(ReadFaultText(Path(), {Text::tr("only the first %1 of its %2 frames are there")
                                              .arg(info.frames).arg(info.frames + m_layout.missingFrames),
                                          DamagedAdvice(), QString()}));
    }
}

bool FitsPictureFile::Decode(int index, Picture &frame, FrameRows *, FileFault &fault)
{
    frame.Reshape(m_layout.width, m_layout.height, 1, m_layout.type);
    if (m_tiles)
        return m_tiles->ReadFrame(m_file, index, frame, fault);
    m_file.seek(m_dataOffset + index * m_layout.FrameSamples() * m_layout.StoredBytes());
    if (m_layout.isDirect ? DecodeDirect(frame) : DecodeScaled(frame))
        return true;
    return fault.Set(Text::tr("frame %1 of %2 is not whole").arg(index + 1).arg(m_layout.frames), DamagedAdvice());
}

bool FitsPictureFile::DecodeDirect(Picture &frame)
{
    if (m_file.read(reinterpret_cast<char *>(frame.Data()), frame.ByteCount()) != frame.ByteCount())
        return false;
    if (Q_BYTE_ORDER == Q_LITTLE_ENDIAN)
        SwapSampleBytes(frame);
    if (m_layout.zero != 0)
        AddUsualOffset(frame);
    FlipRows(frame);
    return true;
}

bool FitsPictureFile::DecodeScaled(Picture &frame)
{
    const qint64 rowBytes = qint64(m_layout.width) * m_layout.StoredBytes();
    std::vector<double> values(size_t(m_layout.width));
    for (int y = m_layout.height - 1; y >= 0; --y) {
        if (!ConvertFitsSamples(m_file.read(rowBytes), m_layout.storedBits < 0, values))
            return false;
        for (double &value : values)
            value = value == m_blank ? std::numeric_limits<double>::quiet_NaN() : value * m_layout.scale + m_layout.zero;
        StoreSamples(values.data(), m_layout.width, frame, 0, y);
    }
    return true;
}
