// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarkframes.h"
#include "benchmarks.h"
#include "levelsconverter.h"
#include "openpicture.h"

#include <QFile>
#include <QTemporaryDir>
#include <tiffio.h>

#include <memory>
#include <vector>

namespace {

constexpr double StackBound = 1.5;
constexpr int Side = 2048;
constexpr int Pages = 8;
constexpr int Rounds = 60;

/// How the pages of a stack lie in the file.
struct Layout
{
    const char *name;
    quint16 compression;
    quint32 rowsPerStrip;
};

struct CloseTiff
{
    void operator()(TIFF *tiff) const { TIFFClose(tiff); }
};
using Tiff = std::unique_ptr<TIFF, CloseTiff>;

void WriteStack(const QString &path, const Layout &layout)
{
    const Tiff tiff(TIFFOpen(QFile::encodeName(path).constData(), "w"));
    for (int page = 0; page < Pages; ++page) {
        const SpecimenFrame frame(Side, page);
        TIFFSetField(tiff.get(), TIFFTAG_IMAGEWIDTH, quint32(Side));
        TIFFSetField(tiff.get(), TIFFTAG_IMAGELENGTH, quint32(Side));
        TIFFSetField(tiff.get(), TIFFTAG_BITSPERSAMPLE, 16);
        TIFFSetField(tiff.get(), TIFFTAG_SAMPLESPERPIXEL, 1);
        TIFFSetField(tiff.get(), TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_MINISBLACK);
        TIFFSetField(tiff.get(), TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
        TIFFSetField(tiff.get(), TIFFTAG_COMPRESSION, layout.compression);
        TIFFSetField(tiff.get(), TIFFTAG_ROWSPERSTRIP, layout.rowsPerStrip);
        for (int y = 0; y < Side; ++y)
            TIFFWriteScanline(tiff.get(), const_cast<uchar *>(frame.View().Row8(y)), quint32(y));
        TIFFWriteDirectory(tiff.get());
    }
}

/// The library's own read of a page.
void ReadStrips(TIFF *tiff, int page, std::vector<uchar> *samples)
{
    TIFFSetDirectory(tiff, quint16(page));
    const tmsize_t stripBytes = TIFFStripSize(tiff);
    const quint32 strips = TIFFNumberOfStrips(tiff);
    for (quint32 strip = 0; strip < strips; ++strip)
        TIFFReadEncodedStrip(tiff, strip, samples->data() + size_t(strip) * size_t(stripBytes), stripBytes);
}

/// A page as it comes on the screen: read and made a picture of.
class ShownPage
{
public:
    explicit ShownPage(const QString &path)
        : m_file(OpenPicture(path, m_error))
    {
        if (!m_file)
            qFatal("%s", qPrintable(m_error));
    }

    void Show(int page)
    {
        if (!m_file->ReadFrame(page, m_samples, m_error))
            qFatal("%s", qPrintable(m_error));
        SampleView view;
        view.samples = m_samples.Data();
        view.width = m_samples.Width();
        view.height = m_samples.Height();
        view.strideBytes = int(m_samples.BytesPerRow());
        view.bitDepth = 16;
        m_converter.Convert(view, {100, 40000, 1.0}, &m_picture);
    }

private:
    QString m_error;
    std::unique_ptr<PictureFile> m_file;
    Picture m_samples;
    LevelsConverter m_converter;
    QImage m_picture;
};

BenchmarkResult MeasureStack(const Layout &layout)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("stack.tif");
    WriteStack(path, layout);
    const Tiff tiff(TIFFOpen(QFile::encodeName(path).constData(), "r"));
    std::vector<uchar> samples(size_t(Side) * Side * sizeof(quint16));
    ShownPage shown(path);
    int n = 0;
    return MeasureRatio(
        QString("frame of a 16-bit stack, %1 x %1, %2").arg(Side).arg(layout.name), StackBound, Rounds,
        [&] { ReadStrips(tiff.get(), n++ % Pages, &samples); }, [&] { shown.Show(n++ % Pages); });
}

} // namespace

QVector<BenchmarkResult> BenchmarkStack()
{
    return {MeasureStack({"one strip", COMPRESSION_NONE, Side}), MeasureStack({"strips", COMPRESSION_NONE, 2}),
            MeasureStack({"LZW", COMPRESSION_LZW, 16}), MeasureStack({"deflate", COMPRESSION_ADOBE_DEFLATE, 16})};
}
