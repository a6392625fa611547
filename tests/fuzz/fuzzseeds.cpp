// SPDX-License-Identifier: GPL-3.0-or-later
// Writes small pictures of every kind for the fuzzers to begin with: fuzzseeds FOLDER
#include "createpicture.h"
#include "spectralmetadata.h"

#include <QDir>
#include <QtEndian>

#include <cstdio>
#include <fitsio.h>
#include <tiffio.h>

namespace {

Picture Ramp(int channels, SampleType type)
{
    Picture picture(17, 9, channels, type);
    for (qint64 i = 0; i < picture.ByteCount(); ++i)
        picture.Data()[i] = uchar(i);
    return picture;
}

/// Of the rows of it.
QVector<MetadataEntry> Calibration(const Picture &picture)
{
    SpectralRecord record;
    record.side = SpectralSide::Rows;
    record.coefficients = { 500, 0.5, 1e-3 };
    record.width = picture.Height();
    return SpectralMetadata(record);
}

bool Save(const QString &path, const Picture &picture, int frames, bool compress)
{
    SaveOptions options;
    options.frameCount = frames;
    options.compress = compress;
    options.dpiX = options.dpiY = 300;
    options.metadata = {{"ImageDescription", QString("ImageJ=1.53t\nimages=%1\n").arg(frames), QString(), true},
                        {"EXPTIME", "12.5", "seconds", false}};
    options.metadata += Calibration(picture);
    QString error;
    const auto writer = CreatePicture(path, options, error);
    bool done = writer != nullptr;
    for (int i = 0; i < frames && done; ++i)
        done = writer->Append(picture, error);
    done = done && writer->Commit(error);
    if (!done)
        std::fprintf(stderr, "%s\n", qPrintable(error));
    return done;
}

/// Kinds that our own writer does not write.
bool SaveCompressedFits(const QString &path, int method)
{
    Picture picture = Ramp(1, SampleType::U8);
    long sizes[] = {picture.Width(), picture.Height()};
    fitsfile *fits = nullptr;
    int status = 0;
    QFile::remove(path);
    fits_create_diskfile(&fits, QFile::encodeName(path).constData(), &status);
    fits_set_compression_type(fits, method, &status);
    fits_create_img(fits, BYTE_IMG, 2, sizes, &status);
    fits_write_img(fits, TBYTE, 1, picture.Width() * picture.Height(), picture.Data(), &status);
    fits_close_file(fits, &status);
    return status == 0;
}

bool SaveTiles(const QString &path, int compression, int planarConfiguration)
{
    constexpr int side = 16;
    std::vector<uchar> samples(side * side * 3, 7);
    TIFF *tiff = TIFFOpen(QFile::encodeName(path).constData(), "w");
    if (!tiff)
        return false;
    TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, 20);
    TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, 18);
    TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, 8);
    TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, 3);
    TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB);
    TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, planarConfiguration);
    TIFFSetField(tiff, TIFFTAG_TILEWIDTH, side);
    TIFFSetField(tiff, TIFFTAG_TILELENGTH, side);
    TIFFSetField(tiff, TIFFTAG_COMPRESSION, compression);
    bool done = true;
    for (uint32_t i = 0; i < TIFFNumberOfTiles(tiff); ++i)
        done = TIFFWriteEncodedTile(tiff, i, samples.data(), TIFFTileSize(tiff)) > 0 && done;
    TIFFClose(tiff);
    return done;
}

enum class SpeKind
{
    Two,
    TwoWithRegions, ///< of two columns each, one column apart
    Three           ///< with two regions
};

/// With a calibration; samples count up.
bool SaveSpe(const QString &path, SpeKind kind)
{
    const bool isThree = kind == SpeKind::Three;
    constexpr int headerBytes = 4100;
    QByteArray bytes(headerBytes, '\0');
    const auto set = [&](int offset, auto value) { qToLittleEndian(value, bytes.data() + offset); };
    set(42, quint16(isThree ? 0 : 5));
    set(656, quint16(isThree ? 0 : 3));
    set(108, qint16(3));
    set(1446, qint32(2));
    set(2996, quint32(0x01234567));
    set(1992, isThree ? 3.0F : 2.2F);
    set(3098, quint8(1));
    set(3100, quint8(4));
    set(3101, quint8(1));
    set(3263, 500.0);
    set(3271, 0.5);
    if (kind == SpeKind::TwoWithRegions) {
        set(1488, qint16(2));
        set(1510, qint16(2));
        const quint16 regions[] = { 11, 12, 1, 21, 23, 1, 14, 15, 1, 21, 23, 1 };
        for (int i = 0; i < 12; ++i)
            set(1512 + 2 * i, regions[i]);
    }
    for (int i = 0; i < 60; ++i)
        bytes += char(i);
    if (isThree) {
        set(678, quint64(bytes.size()));
        bytes += "<SpeFormat><DataFormat><DataBlock type=\"Frame\" count=\"2\" pixelFormat=\"MonochromeUnsigned16\" size=\"26\" "
                 "stride=\"30\" calibrations=\"1\"><DataBlock type=\"Region\" width=\"5\" height=\"1\" size=\"10\" stride=\"10\" "
                 "calibrations=\"2\"/><DataBlock type=\"Region\" width=\"4\" height=\"2\" size=\"16\" stride=\"16\"/></DataBlock>"
                 "</DataFormat><Calibrations><WavelengthMapping id=\"1\"><Wavelength>1,2,3,4,5,6,7</Wavelength></WavelengthMapping>"
                 "<SensorMapping id=\"2\" x=\"1\" y=\"0\" width=\"5\" height=\"1\" xBinning=\"1\" yBinning=\"1\"/>"
                 "</Calibrations></SpeFormat>";
    }
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

bool SaveOtherKinds(const QDir &folder)
{
    bool done = SaveSpe(folder.filePath("seed-2.spe"), SpeKind::Two)
                && SaveSpe(folder.filePath("seed-3.spe"), SpeKind::Three)
                && SaveSpe(folder.filePath("seed-2-regions.spe"), SpeKind::TwoWithRegions);
    for (const int method : {RICE_1, GZIP_1, GZIP_2, PLIO_1, HCOMPRESS_1})
        done = done && SaveCompressedFits(folder.filePath(QString("seed-compressed-%1.fits").arg(method)), method);
    for (const int compression : {COMPRESSION_NONE, COMPRESSION_LZW, COMPRESSION_PACKBITS, COMPRESSION_ADOBE_DEFLATE}) {
        for (const int planar : {PLANARCONFIG_CONTIG, PLANARCONFIG_SEPARATE})
            done = done && SaveTiles(folder.filePath(QString("seed-tiles-%1-%2.tif").arg(compression).arg(planar)), compression, planar);
    }
    return done;
}

} // namespace

int main(int argc, char **argv)
{
    const QDir folder(argc == 2 ? argv[1] : "");
    bool done = argc == 2;
    for (int type = 0; type <= int(SampleType::F64); ++type) {
        for (const int channels : {1, 3}) {
            const Picture picture = Ramp(channels, SampleType(type));
            const QString name = folder.filePath(QString("seed-%1-%2").arg(type).arg(channels));
            done = done && Save(name + ".tif", picture, 2, false) && Save(name + "-deflate.tif", picture, 1, true)
                && Save(name + ".fits", picture, 2, false);
            if (SampleType(type) == SampleType::U8 || SampleType(type) == SampleType::U16)
                done = done && Save(name + ".png", picture, 1, false);
        }
    }
    return done && SaveOtherKinds(folder) ? 0 : 1;
}
