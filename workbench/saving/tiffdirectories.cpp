// SPDX-License-Identifier: GPL-3.0-or-later
#include "tiffdirectories.h"

#include <cstring>
#include <limits>
#include <tiff.h>
#include <utility>

namespace {

template <typename Number>
void Put(QByteArray *bytes, Number number)
{
    bytes->append(reinterpret_cast<const char *>(&number), int(sizeof number));
}

void PadToEven(QByteArray *bytes)
{
    if (bytes->size() % 2 != 0)
        bytes->append('\0');
}

/// One page's directory in either kind of TIFF. Values that do not fit into an entry go into an area behind the
/// entries.
class Directory
{
public:
    Directory(qint64 offset, bool isBig, int entries)
        : m_isBig(isBig)
        , m_areaOffset(offset + DirectoryBytes(isBig, entries))
    {
        if (isBig)
            Put(&m_entries, quint64(entries));
        else
            Put(&m_entries, quint16(entries));
    }

    static int DirectoryBytes(bool isBig, int entries)
    {
        return isBig ? 8 + 20 * entries + 8 : 2 + 12 * entries + 4;
    }

    void AddShort(quint16 tag, quint16 value)
    {
        Add(tag, TIFF_SHORT, 1, QByteArray(reinterpret_cast<char *>(&value), 2));
    }
    void AddShorts(quint16 tag, const QVector<quint16> &values)
    {
        Add(tag, TIFF_SHORT, quint64(values.size()),
            QByteArray(reinterpret_cast<const char *>(values.constData()), values.size() * 2));
    }
    void AddLong(quint16 tag, quint32 value)
    {
        Add(tag, TIFF_LONG, 1, QByteArray(reinterpret_cast<char *>(&value), 4));
    }
    void AddOffset(quint16 tag, quint64 value)
    {
        if (m_isBig)
            Add(tag, TIFF_LONG8, 1, QByteArray(reinterpret_cast<char *>(&value), 8));
        else
            AddLong(tag, quint32(value));
    }
    void AddText(quint16 tag, const QByteArray &text)
    {
        Add(tag, TIFF_ASCII, quint64(text.size()) + 1, QByteArray(text.constData(), text.size() + 1));
    }
    /// A text of so many bytes that stands outside of the directory, longer than fits into an entry.
    void AddTextAt(quint16 tag, qint64 offset, int bytes)
    {
        Put(&m_entries, tag);
        Put(&m_entries, quint16(TIFF_ASCII));
        AddNumber(quint64(bytes));
        AddNumber(quint64(offset));
    }
    void AddRational(quint16 tag, quint32 numerator, quint32 denominator)
    {
        QByteArray value;
        Put(&value, numerator);
        Put(&value, denominator);
        Add(tag, TIFF_RATIONAL, 1, value);
    }

    /// The whole of it, with the link to the next one, which begins right behind unless this is the last.
    QByteArray Bytes(bool isLast) const
    {
        QByteArray bytes = m_entries;
        const quint64 next = isLast ? 0 : quint64(m_areaOffset + m_area.size());
        if (m_isBig)
            Put(&bytes, next);
        else
            Put(&bytes, quint32(next));
        return bytes + m_area;
    }

private:
    void Add(quint16 tag, quint16 type, quint64 count, const QByteArray &value)
    {
        const int room = m_isBig ? 8 : 4;
        Put(&m_entries, tag);
        Put(&m_entries, type);
        AddNumber(count);
        if (value.size() <= room) {
            m_entries.append(value + QByteArray(room - value.size(), '\0'));
            return;
        }
        AddNumber(quint64(m_areaOffset + m_area.size()));
        m_area.append(value);
        PadToEven(&m_area);
    }
    /// A count or a place.
    void AddNumber(quint64 number)
    {
        if (m_isBig)
            Put(&m_entries, number);
        else
            Put(&m_entries, quint32(number));
    }

    const bool m_isBig;
    const qint64 m_areaOffset;
    QByteArray m_entries;
    QByteArray m_area;
};

constexpr double MicrometresPerCentimetre = 10000.0;
constexpr quint32 ResolutionDenominator = 1000;
constexpr int PlainEntries = 12;
constexpr int ShortestDescription = 9; ///< shorter ones would have to stand in their entries
constexpr int PieceBytes = 1 << 20;
/// Of a directory but for its texts; deciding the kind of the file needs no exact number.
constexpr qint64 LargestPlainDirectory = 512;

} // namespace

TiffDirectories::TiffDirectories(const RunFacts &facts, int frames)
    : m_facts(facts)
    , m_frames(frames)
{
    DecideKind();
}

/// It may be as large as half of the memory: there is only one of it.
void TiffDirectories::SetFirstDescription(QByteArray text)
{
    m_description = std::move(text);
    m_description.append(QByteArray(qMax(1, ShortestDescription - m_description.size()), '\0'));
    DecideKind();
}

void TiffDirectories::DecideKind()
{
    const qint64 end = DataEnd() + m_description.size() + m_frames * LargestPlainDirectory;
    m_isBig = end > qint64(std::numeric_limits<quint32>::max());
}

qint64 TiffDirectories::FirstDirectoryOffset() const
{
    return m_description.isEmpty() ? DescriptionOffset()
                                   : DescriptionOffset() + m_description.size() + m_description.size() % 2;
}

QByteArray TiffDirectories::Header() const
{
    const quint64 first = m_frames > 0 ? quint64(FirstDirectoryOffset()) : 0;
    QByteArray header = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? "II" : "MM";
    if (m_isBig) {
        Put(&header, quint16(TIFF_VERSION_BIG));
        Put(&header, quint16(8)); // bytes of an offset
        Put(&header, quint16(0));
        Put(&header, first);
    } else {
        Put(&header, quint16(TIFF_VERSION_CLASSIC));
        Put(&header, quint32(first));
        header.append(QByteArray(HeaderBytes - header.size(), '\0'));
    }
    return header;
}

bool TiffDirectories::Write(const Sink &sink) const
{
    if (DataEnd() % 2 != 0 && !sink(QByteArray(1, '\0')))
        return false;
    if (!m_description.isEmpty()
        && !(sink(m_description) && (m_description.size() % 2 == 0 || sink(QByteArray(1, '\0')))))
        return false;
    QByteArray piece;
    qint64 pieceOffset = FirstDirectoryOffset();
    for (int frame = 0; frame < m_frames; ++frame) {
        piece.append(DirectoryAt(pieceOffset + piece.size(), frame));
        if (piece.size() < PieceBytes && frame + 1 < m_frames)
            continue;
        if (!sink(piece))
            return false;
        pieceOffset += piece.size();
        piece.clear();
    }
    return true;
}

QByteArray TiffDirectories::DirectoryAt(qint64 offset, int frame) const
{
    const bool hasResolution = m_facts.pixelSizeUm > 0;
    const bool hasDescription = frame == 0 && !m_description.isEmpty();
    const quint16 channels = quint16(m_facts.Channels());
    const int entries = PlainEntries + (hasDescription ? 1 : 0) + (hasResolution ? 3 : 0);
    Directory directory(offset, m_isBig, entries);
    directory.AddLong(TIFFTAG_SUBFILETYPE, m_frames > 1 ? FILETYPE_PAGE : 0);
    directory.AddLong(TIFFTAG_IMAGEWIDTH, quint32(m_facts.frameSize.width()));
    directory.AddLong(TIFFTAG_IMAGELENGTH, quint32(m_facts.frameSize.height()));
    directory.AddShorts(TIFFTAG_BITSPERSAMPLE, QVector<quint16>(channels, quint16(m_facts.BitsPerSample())));
    directory.AddShort(TIFFTAG_COMPRESSION, COMPRESSION_NONE);
    directory.AddShort(TIFFTAG_PHOTOMETRIC, channels == 3 ? PHOTOMETRIC_RGB : PHOTOMETRIC_MINISBLACK);
    if (hasDescription)
        directory.AddTextAt(TIFFTAG_IMAGEDESCRIPTION, DescriptionOffset(), m_description.size());
    directory.AddOffset(TIFFTAG_STRIPOFFSETS, quint64(HeaderBytes + frame * m_facts.FrameBytes()));
    directory.AddShort(TIFFTAG_SAMPLESPERPIXEL, channels);
    directory.AddLong(TIFFTAG_ROWSPERSTRIP, quint32(m_facts.frameSize.height()));
    directory.AddOffset(TIFFTAG_STRIPBYTECOUNTS, quint64(m_facts.FrameBytes()));
    if (hasResolution) {
        const auto perCentimetre =
            quint32(MicrometresPerCentimetre / m_facts.pixelSizeUm * ResolutionDenominator + 0.5);
        directory.AddRational(TIFFTAG_XRESOLUTION, perCentimetre, ResolutionDenominator);
        directory.AddRational(TIFFTAG_YRESOLUTION, perCentimetre, ResolutionDenominator);
    }
    directory.AddShort(TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
    if (hasResolution)
        directory.AddShort(TIFFTAG_RESOLUTIONUNIT, RESUNIT_CENTIMETER);
    directory.AddText(TIFFTAG_SOFTWARE, m_facts.software.toUtf8());
    return directory.Bytes(frame == m_frames - 1);
}
