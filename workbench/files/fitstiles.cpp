// SPDX-License-Identifier: GPL-3.0-or-later
#include "fitstiles.h"

#include "fitsdither.h"
#include "fitsheader.h"
#include "fitssamples.h"
#include "ricedecoder.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <limits>
#include <zlib.h>

namespace {

/// What the standard's second way of dithering stores for a sample of exactly zero.
constexpr double ditheredZero = -2147483646.0;
/// Of a floating point sample that was rounded to an integer.
constexpr int roundedBytes = 4;
/// GZIP makes 258 bytes from two bits at best, RICE 32 samples from three bits.
constexpr size_t mostSamplesPerByte = 1032;
constexpr double nothing = std::numeric_limits<double>::quiet_NaN();

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(FitsTiles)
};

QString UnpackAdvice()
{
    return Text::tr("Unpack it with funpack.");
}

/// At most `limit` bytes; empty when the data is damaged or unpacks to more.
QByteArray Gunzip(const QByteArray &packed, int limit)
{
    constexpr int gzipOrZlib = 15 + 32;
    QByteArray unpacked(limit, Qt::Uninitialized);
    z_stream stream = {};
    if (inflateInit2(&stream, gzipOrZlib) != Z_OK)
        return QByteArray();
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(packed.constData()));
    stream.avail_in = uInt(packed.size());
    stream.next_out = reinterpret_cast<Bytef *>(unpacked.data());
    stream.avail_out = uInt(limit);
    const int result = inflate(&stream, Z_FINISH);
    unpacked.truncate(int(stream.total_out));
    inflateEnd(&stream);
    return result == Z_STREAM_END ? unpacked : QByteArray();
}

/// All first bytes of the samples, then all second ones... becomes sample after sample.
QByteArray Unshuffled(const QByteArray &bytes, int samples)
{
    QByteArray result(bytes.size(), '\0');
    const int sampleBytes = bytes.size() / samples;
    for (int i = 0; i < samples; ++i) {
        for (int byte = 0; byte < sampleBytes; ++byte)
            result[i * sampleBytes + byte] = bytes[byte * samples + i];
    }
    return result;
}

/// Bytes of one element of a column type, 0 for types that FITS does not have.
int BytesOfType(char type)
{
    switch (type) {
    case 'L':
    case 'A':
    case 'B': return 1;
    case 'I': return 2;
    case 'J':
    case 'E': return 4;
    case 'K':
    case 'D':
    case 'C':
    case 'P': return 8;
    case 'M':
    case 'Q': return 16;
    default: return 0;
    }
}

} // namespace

bool FitsTiles::Open(const FitsHeader &header, const FitsLayout &layout, FileFault &fault)
{
    m_layout = layout;
    constexpr double largestTable = 1e15; // keeps sums in 64 bits
    const double rowBytes = header.Number("NAXIS1", 0);
    const double rows = header.Number("NAXIS2", 0);
    const double heap = header.Number("THEAP", rowBytes * rows);
    if (!(rowBytes >= 1 && rowBytes <= INT_MAX && rows >= 1 && rows <= INT_MAX && heap >= 0 && heap <= largestTable))
        return fault.Set(Text::tr("the table of its tiles has no size"), DamagedAdvice());
    m_tableOffset = header.DataOffset();
    m_rowBytes = qint64(rowBytes);
    m_heapOffset = m_tableOffset + qint64(heap);
    ReadColumns(header);
    ReadQuantizing(header);
    if (!ReadCoding(header, fault) || !ReadTileSize(header, fault))
        return false;
    if (double(TilesAcross()) * TilesDown() * layout.frames > rows)
        return fault.Set(Text::tr("the table of its tiles is not whole"), DamagedAdvice());
    return true;
}

bool FitsTiles::ReadCoding(const FitsHeader &header, FileFault &fault)
{
    const QString name = header.Text("ZCMPTYPE");
    if (name == "RICE_1" || name == "RICE_ONE")
        m_coding = Coding::Rice;
    else if (name == "GZIP_1")
        m_coding = Coding::Gzip;
    else if (name == "GZIP_2")
        m_coding = Coding::ShuffledGzip;
    else if (name == "NOCOMPRESS")
        m_coding = Coding::Plain;
    else
        return fault.Set(Text::tr("its compression (%1) is not supported").arg(name), UnpackAdvice());
    double block = m_riceBlock;
    double bytes = m_riceBytes;
    for (int i = 1; i <= 2; ++i) {
        const QString parameter = header.Text("ZNAME", i);
        if (parameter == "BLOCKSIZE")
            block = header.Number("ZVAL", i, block);
        else if (parameter == "BYTEPIX")
            bytes = header.Number("ZVAL", i, bytes);
    }
    constexpr double largestBlock = 4096;
    if (!(block >= 1 && block <= largestBlock && (bytes == 1 || bytes == 2 || bytes == 4)))
        return fault.Set(Text::tr("its compression has parameters that make no sense"), DamagedAdvice());
    m_riceBlock = int(block);
    m_riceBytes = int(bytes);
    return true;
}

bool FitsTiles::ReadTileSize(const FitsHeader &header, FileFault &fault)
{
    double frames = 1;
    const int axes = int(qBound(0.0, header.Number("ZNAXIS", 0), 999.0));
    for (int axis = 3; axis <= axes; ++axis)
        frames *= header.Number("ZTILE", axis, 1);
    if (frames != 1)
        return fault.Set(Text::tr("its compressed tiles reach over several frames, which is not supported"), UnpackAdvice());
    // A tile larger than the picture is as large as the picture.
    m_tileWidth = int(qBound(1.0, header.Number("ZTILE", 1, m_layout.width), double(m_layout.width)));
    m_tileHeight = int(qBound(1.0, header.Number("ZTILE", 2, 1), double(m_layout.height)));
    return true;
}

void FitsTiles::ReadColumns(const FitsHeader &header)
{
    // Repeat count, type, and for arrays the type of their elements: 1PB(1234)
    static const QRegularExpression format("^\\s*(\\d{0,8})([A-Z])([A-Z]?)");
    const int fields = int(qBound(0.0, header.Number("TFIELDS", 0), 999.0));
    qint64 offset = 0;
    for (int field = 1; field <= fields; ++field) {
        const QRegularExpressionMatch match = format.match(header.Text("TFORM", field));
        const qint64 repeat = match.captured(1).isEmpty() ? 1 : match.captured(1).toInt();
        const char type = match.captured(2).isEmpty() ? 0 : match.captured(2)[0].toLatin1();
        const char elementType = match.captured(3).isEmpty() ? 0 : match.captured(3)[0].toLatin1();
        const qint64 bytes = type == 'X' ? (repeat + 7) / 8 : repeat * BytesOfType(type);
        if (offset + bytes > m_rowBytes)
            return; // the rest is not in the table
        const Column column{int(offset), type, elementType};
        const QString name = header.Text("TTYPE", field).toUpper();
        if (name == "COMPRESSED_DATA")
            m_packed = column;
        else if (name == "GZIP_COMPRESSED_DATA")
            m_gzipped = column;
        else if (name == "UNCOMPRESSED_DATA")
            m_plain = column;
        else if (name == "ZSCALE")
            m_scale = column;
        else if (name == "ZZERO")
            m_zero = column;
        else if (name == "ZBLANK")
            m_blank = column;
        offset += bytes;
    }
}

void FitsTiles::ReadQuantizing(const FitsHeader &header)
{
    m_isQuantized = m_layout.storedBits < 0 && m_scale.IsThere();
    const QString method = header.Text("ZQUANTIZ");
    m_dither = method == "SUBTRACTIVE_DITHER_1" ? 1 : method == "SUBTRACTIVE_DITHER_2" ? 2 : 0;
    m_ditherSeed = int(qBound(1.0, header.Number("ZDITHER0", 1), 10000.0));
    m_blankNumber = header.Number("ZBLANK", header.Number("BLANK", nothing));
}

FitsTiles::Place FitsTiles::PlaceOf(int frame, int inFrame) const
{
    const int left = inFrame % TilesAcross() * m_tileWidth;
    const int bottom = inFrame / TilesAcross() * m_tileHeight;
    return {frame * TilesAcross() * TilesDown() + inFrame, left, bottom, std::min(m_tileWidth, m_layout.width - left),
            std::min(m_tileHeight, m_layout.height - bottom)};
}

bool FitsTiles::ReadFrame(QFile &file, int index, Picture &frame, FileFault &fault) const
{
    std::vector<double> values;
    const int tiles = TilesAcross() * TilesDown();
    for (int i = 0; i < tiles; ++i) {
        const Place place = PlaceOf(index, i);
        QString reason;
        if (!ReadTile(file, place, values, reason)) {
            return fault.Set(Text::tr("frame %1 of %2: tile %3 cannot be decoded").arg(index + 1).arg(m_layout.frames).arg(i + 1),
                             DamagedAdvice(), reason);
        }
        for (int y = 0; y < place.height; ++y)
            StoreSamples(&values[size_t(y) * size_t(place.width)], place.width, frame, place.left, m_layout.height - 1 - place.bottom - y);
    }
    return true;
}

bool FitsTiles::ReadTile(QFile &file, const Place &place, std::vector<double> &values, QString &reason) const
{
    const size_t samples = size_t(place.width) * size_t(place.height);
    const struct
    {
        const Column &column;
        Coding coding;
        bool isRounded; ///< floating point samples that did not suit rounding are in another column
    } sources[] = {{m_packed, m_coding, m_isQuantized}, {m_gzipped, Coding::Gzip, false}, {m_plain, Coding::Plain, false}};
    for (const auto &source : sources) {
        const QByteArray bytes = StoredBytes(file, source.column, place.number);
        if (bytes.isEmpty())
            continue; // the tile is in another column
        const int sampleBytes = source.isRounded ? roundedBytes : m_layout.StoredBytes();
        const bool canHold = samples <= size_t(bytes.size()) * mostSamplesPerByte && samples <= size_t(INT_MAX / sampleBytes);
        values.resize(canHold ? samples : 0);
        if (!canHold || !Unpack(source.coding, m_layout.storedBits < 0 && !source.isRounded, sampleBytes, bytes, values)) {
            reason = Text::tr("its packed data is damaged");
            return false;
        }
        if (source.isRounded)
            Restore(file, place, values);
        else if (m_layout.storedBits > 0)
            Scale(values);
        return true;
    }
    reason = Text::tr("it has no data in the file");
    return false;
}

QByteArray FitsTiles::Cell(QFile &file, const Column &column, int tile, int bytes) const
{
    if (!column.IsThere() || BytesOfType(column.type) != bytes || column.offset + bytes > m_rowBytes)
        return QByteArray();
    file.seek(m_tableOffset + tile * m_rowBytes + column.offset);
    const QByteArray cell = file.read(bytes);
    return cell.size() == bytes ? cell : QByteArray();
}

QByteArray FitsTiles::StoredBytes(QFile &file, const Column &column, int tile) const
{
    // A descriptor: number of elements, and where they begin behind the table.
    const bool isLong = column.type == 'Q';
    if (!isLong && column.type != 'P')
        return QByteArray();
    const QByteArray descriptor = Cell(file, column, tile, isLong ? 16 : 8);
    const int elementBytes = BytesOfType(column.elementType);
    if (descriptor.isEmpty() || elementBytes == 0)
        return QByteArray();
    const qint64 elements = isLong ? qFromBigEndian<qint64>(descriptor.constData()) : qFromBigEndian<qint32>(descriptor.constData());
    const qint64 offset = isLong ? qFromBigEndian<qint64>(descriptor.constData() + 8) : qFromBigEndian<qint32>(descriptor.constData() + 4);
    const qint64 room = file.size() - m_heapOffset;
    if (elements < 1 || offset < 0 || offset > room || elements > (room - offset) / elementBytes || elements > INT_MAX / elementBytes)
        return QByteArray();
    file.seek(m_heapOffset + offset);
    return file.read(elements * elementBytes);
}

double FitsTiles::TileNumber(QFile &file, const Column &column, int tile, double otherwise) const
{
    const QByteArray cell = Cell(file, column, tile, BytesOfType(column.type));
    std::vector<double> number(1);
    const bool isFloat = column.type == 'E' || column.type == 'D';
    return !cell.isEmpty() && ConvertFitsSamples(cell, isFloat, number) ? number[0] : otherwise;
}

bool FitsTiles::Unpack(Coding coding, bool isFloat, int sampleBytes, const QByteArray &bytes, std::vector<double> &values) const
{
    const int samples = int(values.size());
    switch (coding) {
    case Coding::Rice: return DecodeRice(bytes, m_riceBytes, m_riceBlock, values);
    case Coding::Gzip: return ConvertFitsSamples(Gunzip(bytes, samples * sampleBytes), isFloat, values);
    case Coding::ShuffledGzip: return ConvertFitsSamples(Unshuffled(Gunzip(bytes, samples * sampleBytes), samples), isFloat, values);
    case Coding::Plain: break;
    }
    return ConvertFitsSamples(bytes, isFloat, values);
}

void FitsTiles::Scale(std::vector<double> &values) const
{
    for (double &value : values) {
        const bool isUndefined = value == m_blankNumber && IsFloat(m_layout.type);
        value = isUndefined ? nothing : value * m_layout.scale + m_layout.zero;
    }
}

void FitsTiles::Restore(QFile &file, const Place &place, std::vector<double> &values) const
{
    const double blank = TileNumber(file, m_blank, place.number, m_blankNumber);
    const double scale = TileNumber(file, m_scale, place.number, 1);
    const double zero = TileNumber(file, m_zero, place.number, 0);
    FitsDither dither(place.number, m_ditherSeed);
    for (double &value : values) {
        const double shift = m_dither > 0 ? 0.5 - dither.Next() : 0;
        if (value == blank)
            value = nothing;
        else if (m_dither == 2 && value == ditheredZero)
            value = 0;
        else
            value = (value + shift) * scale + zero;
    }
}
