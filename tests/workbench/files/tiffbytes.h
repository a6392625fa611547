// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QMap>
#include <QVector>

/// The tags of a page; what a tag says is up to the test, right or wrong.
using TiffTags = QMap<quint16, QVector<quint32>>;

enum TiffTagNumber : quint16 {
    NewSubfileType = 254,
    ImageWidth = 256,
    ImageLength = 257,
    BitsPerSample = 258,
    Compression = 259,
    Photometric = 262,
    StripOffsets = 273,
    SamplesPerPixel = 277,
    RowsPerStrip = 278,
    StripByteCounts = 279,
    SampleFormat = 339,
};

/// Builds a TIFF file byte by byte, without libtiff, so that it can be as wrong as a test needs it.
class TiffBytes
{
public:
    explicit TiffBytes(bool isBigEndian = false);

    /// Adds bytes and returns where they begin.
    quint32 Append(const QByteArray &bytes);
    /// Adds a page description to the chain and returns where it begins. All numbers are 32 bit.
    quint32 AppendPage(const TiffTags &tags, const QByteArray &description = QByteArray());
    /// Makes the last page point to `next` instead of the end.
    void LinkLastPage(quint32 next);

    const QByteArray &Bytes() const { return m_bytes; }

    /// Tags of an uncompressed grey page of one strip.
    static TiffTags GreyPage(int width, int height, int bits, quint32 offset);

private:
    QByteArray Number16(quint16 value) const;
    QByteArray Number32(quint32 value) const;

    const bool m_isBigEndian;
    QByteArray m_bytes;
    int m_linkPlace = 4; ///< where the offset of the next page goes
};
