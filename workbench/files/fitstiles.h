// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "filefault.h"
#include "fitslayout.h"
#include "picture.h"

#include <QByteArray>

#include <vector>

class FitsHeader;
class QFile;

/// The frames of a tile-compressed FITS picture: a table with a row for each tile. Unpacked here, because
/// the decoders of CFITSIO run past the end of damaged data. RICE and GZIP codings, and tiles that were
/// left unpacked; HCOMPRESS and PLIO are not supported.
class FitsTiles
{
public:
    /// Reads what the header says of the tiles.
    bool Open(const FitsHeader &header, const FitsLayout &layout, FileFault &fault);
    /// `frame` has the shape of the layout.
    bool ReadFrame(QFile &file, int index, Picture &frame, FileFault &fault) const;

private:
    enum class Coding { Rice, Gzip, ShuffledGzip, Plain };

    /// Where a tile lies in the picture; rows counted from the bottom.
    struct Place
    {
        int number; ///< among all tiles of the file, from 0
        int left;
        int bottom;
        int width;
        int height;
    };

    /// A column of the table; `offset` is -1 if it is not there.
    struct Column
    {
        int offset = -1; ///< in bytes from the start of a row
        char type = 0;   ///< of a number, or of an array's descriptor: P or Q
        char elementType = 0;

        bool IsThere() const { return offset >= 0; }
    };

    bool ReadCoding(const FitsHeader &header, FileFault &fault);
    bool ReadTileSize(const FitsHeader &header, FileFault &fault);
    void ReadColumns(const FitsHeader &header);
    void ReadQuantizing(const FitsHeader &header);
    int TilesAcross() const { return (m_layout.width - 1) / m_tileWidth + 1; }
    int TilesDown() const { return (m_layout.height - 1) / m_tileHeight + 1; }
    Place PlaceOf(int frame, int inFrame) const;
    bool ReadTile(QFile &file, const Place &place, std::vector<double> &values, QString &reason) const;
    QByteArray Cell(QFile &file, const Column &column, int tile, int bytes) const;
    QByteArray StoredBytes(QFile &file, const Column &column, int tile) const;
    double TileNumber(QFile &file, const Column &column, int tile, double otherwise) const;
    bool Unpack(Coding coding, bool isFloat, int sampleBytes, const QByteArray &bytes, std::vector<double> &values) const;
    /// Stored integers into samples.
    void Scale(std::vector<double> &values) const;
    /// Rounded floating point samples into what they were, nearly.
    void Restore(QFile &file, const Place &place, std::vector<double> &values) const;

    FitsLayout m_layout;
    Coding m_coding = Coding::Rice;
    int m_riceBlock = 32;
    int m_riceBytes = 4;
    int m_tileWidth = 0;
    int m_tileHeight = 0;
    qint64 m_tableOffset = 0; ///< in the file
    qint64 m_rowBytes = 0;    ///< of the table
    qint64 m_heapOffset = 0;  ///< first byte of the tiles' data in the file
    Column m_packed;
    Column m_gzipped;
    Column m_plain;
    Column m_scale;
    Column m_zero;
    Column m_blank;
    bool m_isQuantized = false; ///< floating point samples that were rounded to integers
    int m_dither = 0;           ///< 0: none; else the version of the standard's method
    int m_ditherSeed = 0;
    double m_blankNumber = 0; ///< stands for "undefined" where the table says nothing; NaN if nothing does
};
