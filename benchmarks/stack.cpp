// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarkframes.h"
#include "benchmarks.h"
#include "levelsconverter.h"
#include "levelsmodel.h"
#include "openpicture.h"
#include "pictureloader.h"

#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>
#include <tiffio.h>

#include <memory>
#include <vector>

namespace {

constexpr double StackBound = 1.5;
constexpr int Side = 2048;
constexpr int Pages = 40;       ///< more than the program keeps in memory
constexpr int PagesOfFloor = 8; ///< that the library reads again and again
constexpr int DifferentPages = 4;
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
    std::vector<std::unique_ptr<SpecimenFrame>> frames;
    for (int number = 0; number < DifferentPages; ++number)
        frames.push_back(std::make_unique<SpecimenFrame>(Side, number));
    const Tiff tiff(TIFFOpen(QFile::encodeName(path).constData(), "w"));
    for (int page = 0; page < Pages; ++page) {
        const SpecimenFrame &frame = *frames[size_t(page % DifferentPages)];
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

/// A stack that is browsed by somebody who looks at each frame.
class BrowsedStack
{
public:
    explicit BrowsedStack(const QString &path)
        : m_loader(&m_levels)
    {
        m_request.file = { 1, path };
        QObject::connect(&m_loader, &PictureLoader::signalLoaded, &m_loop,
                         [this](const LoadedPicture &picture) {
                             if (!picture.error.isEmpty())
                                 qFatal("%s", qPrintable(picture.error));
                             m_request.range = picture.range;
                             m_shown = picture; // as the window does
                             m_loop.quit();
                         });
        QObject::connect(&m_loader, &PictureLoader::signalReadAhead, &m_loop, [this] {
            m_isSettled = true;
            m_loop.quit();
        });
        ShowNext();
    }

    void ShowNext() { ShowFrame((m_request.frame + 1) % Pages); }

    void ShowFrame(int frame)
    {
        m_request.frame = frame;
        m_isSettled = m_request.frame == 0 || m_request.frame == Pages - 1; // nothing lies ahead
        m_loader.Load(m_request);
        m_loop.exec();
    }

    void Settle()
    {
        if (!m_isSettled)
            m_loop.exec();
    }

private:
    LevelsModel m_levels;
    PictureLoader m_loader;
    PictureRequest m_request;
    LoadedPicture m_shown;
    QEventLoop m_loop;
    bool m_isSettled = false;
};

BenchmarkResult MeasureNextFrame(const Layout &layout, const QString &path)
{
    const Tiff tiff(TIFFOpen(QFile::encodeName(path).constData(), "r"));
    std::vector<uchar> samples(size_t(Side) * Side * sizeof(quint16));
    BrowsedStack stack(path);
    int n = 0;
    return MeasureRatio(
        QString("next frame of a 16-bit stack, %1 x %1, %2").arg(Side).arg(layout.name), StackBound, Rounds,
        [&] { ReadStrips(tiff.get(), n++ % PagesOfFloor, &samples); }, [&] { stack.ShowNext(); },
        [&] { stack.Settle(); });
}

/// Far from the frame before, which is what a drag of the frame browser's bar or a click in it asks for.
BenchmarkResult MeasureJump(const Layout &layout, const QString &path)
{
    // Only every second page is shown, so that none was read ahead; and between two visits of a page more are read than
    // the program keeps.
    constexpr int shownPages = Pages / 2;
    constexpr int jump = 7;
    const Tiff tiff(TIFFOpen(QFile::encodeName(path).constData(), "r"));
    std::vector<uchar> samples(size_t(Side) * Side * sizeof(quint16));
    BrowsedStack stack(path);
    const auto page = [](int jumps) { return 2 * (jump * jumps % shownPages); };
    int floorJumps = 0;
    int jumps = 0;
    return MeasureRatio(
        QString("jump of a 16-bit stack, %1 x %1, %2").arg(Side).arg(layout.name), StackBound, Rounds,
        [&] { ReadStrips(tiff.get(), page(++floorJumps), &samples); }, [&] { stack.ShowFrame(page(++jumps)); },
        [&] { stack.Settle(); });
}

/// Opens the file, reads a frame and makes a picture of it.
void ShowFirst(const QString &path, Picture *samples, QImage *picture)
{
    QString error;
    const std::unique_ptr<PictureFile> file = OpenPicture(path, error);
    if (!file || !file->ReadFrame(0, *samples, error))
        qFatal("%s", qPrintable(error));
    SampleView view;
    view.samples = samples->Data();
    view.width = samples->Width();
    view.height = samples->Height();
    view.strideBytes = int(samples->BytesPerRow());
    view.bitDepth = 16;
    LevelsConverter().Convert(view, { 100, 40000, 1.0 }, picture);
}

BenchmarkResult MeasureFirstFrame(const Layout &layout, const QString &path)
{
    std::vector<uchar> samples(size_t(Side) * Side * sizeof(quint16));
    Picture shown;
    QImage picture;
    return MeasureRatio(
        QString("first frame of a 16-bit file, %1 x %1, %2").arg(Side).arg(layout.name), StackBound, Rounds,
        [&] { ReadStrips(Tiff(TIFFOpen(QFile::encodeName(path).constData(), "r")).get(), 0, &samples); },
        [&] { ShowFirst(path, &shown, &picture); });
}

} // namespace

QVector<BenchmarkResult> BenchmarkStack()
{
    const Layout layouts[] = { { "one strip", COMPRESSION_NONE, Side },
                               { "strips", COMPRESSION_NONE, 2 },
                               { "LZW", COMPRESSION_LZW, 16 },
                               { "deflate", COMPRESSION_ADOBE_DEFLATE, 16 } };
    QVector<BenchmarkResult> results;
    for (const Layout &layout : layouts) {
        const QTemporaryDir folder;
        const QString path = folder.filePath("stack.tif");
        WriteStack(path, layout);
        results << MeasureNextFrame(layout, path) << MeasureJump(layout, path) << MeasureFirstFrame(layout, path);
    }
    return results;
}
