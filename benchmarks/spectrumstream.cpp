// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarkframes.h"
#include "benchmarks.h"

#include "centredisplay.h"
#include "fakealgspectrometer.h"
#include "fakeframemanager.h"
#include "fakepreviewmanager.h"
#include "fakespectrumuimanager.h"
#include "fakeuiconfigmanager.h"
#include "fieldform.h"
#include "peakfinding.h"
#include "spectrum2ddrawframebase.h"
#include "spectrumfields.h"
#include "spectrumpipeline.h"
#include "spectrumranges.h"
#include "spectrumsettings.h"
#include "trackdesk.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include <qcustomplot.h>

#include <cmath>
#include <ctime>
#include <memory>
#include <random>
#include <thread>

namespace {

constexpr double MostLoad = 50; ///< percent
constexpr double MostMissed = 0;
constexpr int FrameSide = 1024;
constexpr int FramesInTurn = 8;
constexpr int Spectra = 500;
constexpr std::chrono::milliseconds Period(10);
constexpr QSize PageSize(1200, 900);
constexpr double Percent = 100;

/// What the calling thread has had of a processor.
double ThreadMs()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

CameraFrame FrameOf(const std::shared_ptr<SpecimenFrame> &specimen)
{
    const SampleView view = specimen->View();
    CameraFrame frame;
    frame.pixels = std::shared_ptr<const uchar>(specimen, view.samples);
    frame.width = view.width;
    frame.height = view.height;
    frame.strideBytes = view.strideBytes;
    frame.layout = PixelLayout::Mono16;
    return frame;
}

/// Level lines over a band of columns, on noise: the spectrum of a lamp that runs along the columns.
CameraFrame LampFrame(int number)
{
    constexpr int apart = 60;
    constexpr double sigma = 2.5;
    constexpr int firstColumn = 400;
    constexpr int lastColumn = 620;
    std::mt19937 random(unsigned(number) + 1);
    auto samples = std::make_shared<std::vector<quint16>>(size_t(FrameSide) * FrameSide);
    for (int y = 0; y < FrameSide; ++y) {
        const double fromLine = (y + apart / 2) % apart - apart / 2;
        const double light = 1000.0 * (1 + (y + apart / 2) / apart % 5) * std::exp(-fromLine * fromLine / (2 * sigma * sigma));
        for (int x = 0; x < FrameSide; ++x) {
            const bool isLit = x >= firstColumn && x <= lastColumn;
            (*samples)[size_t(y) * FrameSide + size_t(x)] = quint16(500 + random() % 30 + (isLit ? 200 + light : 0));
        }
    }
    CameraFrame frame;
    frame.pixels = std::shared_ptr<const uchar>(samples, reinterpret_cast<const uchar *>(samples->data()));
    frame.width = frame.height = FrameSide;
    frame.strideBytes = 2 * FrameSide;
    frame.layout = PixelLayout::Mono16;
    return frame;
}

/// Sends a frame every 10 ms, as the camera's thread does.
void Send(SpectrumPipeline *pipeline, const std::vector<CameraFrame> &frames)
{
    auto next = std::chrono::steady_clock::now();
    for (int i = 0; i < Spectra; ++i) {
        CameraFrame frame = frames[size_t(i) % frames.size()];
        frame.frameId = quint64(i + 1);
        pipeline->OnFrame(frame);
        next += Period;
        std::this_thread::sleep_until(next);
    }
}

/// What 500 of them, at 100 a second, cost the GUI thread, and how many never became a spectrum.
QVector<BenchmarkResult> MeasureStream(SpectrumPipeline *pipeline, const std::vector<CameraFrame> &frames, const QString &what)
{
    QEventLoop loop;
    QTimer end;
    QObject::connect(&end, &QTimer::timeout, &loop, [&] {
        if (pipeline->Ledger().computed + pipeline->Ledger().missed >= quint64(Spectra))
            loop.quit();
    });
    end.start(Period);
    QElapsedTimer wall;
    wall.start();
    const double before = ThreadMs();
    std::thread camera([&] { Send(pipeline, frames); });
    loop.exec();
    const double load = Percent * (ThreadMs() - before) / double(wall.elapsed());
    camera.join();
    const double missed = double(pipeline->Ledger().missed + quint64(Spectra) - pipeline->Ledger().taken);
    return { { "GUI thread at 100 spectra a second" + what, "%", 0.0, load, MostLoad },
             { "spectra missed of 500" + what, "", 0.0, missed, MostMissed } };
}

void ShowSpectraOn(Spectrum2DDrawFrameBase *page, const SpectrumPipeline &pipeline)
{
    page->setFixedSize(PageSize);
    page->show();
    QObject::connect(&pipeline, &SpectrumPipeline::SignalUpdateFVB, page, &Spectrum2DDrawFrameBase::SlotUpdateFVB, Qt::QueuedConnection);
}

/// The curve alone, of all rows.
QVector<BenchmarkResult> StreamOfCurves()
{
    std::vector<CameraFrame> frames;
    for (int i = 0; i < FramesInTurn; ++i)
        frames.push_back(FrameOf(std::make_shared<SpecimenFrame>(FrameSide, i)));
    FakeAlgSpectrometer peaks;
    FakeFrameManager frameSize;
    FakePreviewManager preview;
    FakeUIConfigManager config;
    FakeSpectrumUIManager settings;
    frameSize.frameWidth = FrameSide;
    settings.displayMode2D = true;
    settings.zoomAutoFlag = true;
    SpectrumPipeline pipeline;
    Spectrum2DDrawFrameBase page(nullptr);
    ShowSpectraOn(&page, pipeline);
    SpectrumRecipe recipe;
    recipe.isBinning = true;
    pipeline.SetRecipe(recipe);
    return MeasureStream(&pipeline, frames, QString());
}

/// As a person sees it: the band found among the columns, its peaks found and marked, and the panel beside it.
QVector<BenchmarkResult> StreamOfPeaks()
{
    std::vector<CameraFrame> frames;
    for (int i = 0; i < FramesInTurn; ++i)
        frames.push_back(LampFrame(i));
    const QTemporaryDir folder;
    QSettings stored(folder.filePath("settings.ini"), QSettings::IniFormat);
    FakeFrameManager frameSize;
    FakePreviewManager preview;
    FakeUIConfigManager config;
    frameSize.frameWidth = frameSize.frameHeight = FrameSide;
    SpectrumRanges ranges;
    CentreDisplay centre(&stored);
    SpectrumSettings settings(&ranges, &centre);
    settings.slotSetFrameSize(QSize(FrameSide, FrameSide));
    SpectrumPipeline pipeline;
    QObject::connect(&settings, &SpectrumSettings::signalRecipeChanged, &pipeline, [&] { pipeline.SetRecipe(settings.Recipe()); });
    const PeakFinding peaks([&pipeline] { return &pipeline.Shown(); });
    TrackDesk tracks(&settings);
    SpectrumFields fields(&settings, &pipeline, &tracks);
    FieldForm panel(&fields, QString());
    panel.show();
    Spectrum2DDrawFrameBase page(nullptr);
    ShowSpectraOn(&page, pipeline);
    settings.SetMode(DisplayMode::PlotPeak);
    settings.SetHorizontal(false);
    settings.SetBinnedRows(BinnedRows::Auto);
    settings.SetFVBOnFlag(1);
    settings.SetZoomAutoFlag(true);
    const QVector<BenchmarkResult> results = MeasureStream(&pipeline, frames, ", with peaks and panel");
    if (page.findChild<QCustomPlot *>()->itemCount() == 0)
        qFatal("benchmark: no peak was marked");
    return results;
}

} // namespace

QVector<BenchmarkResult> BenchmarkSpectrumStream()
{
    return StreamOfCurves() + StreamOfPeaks();
}
