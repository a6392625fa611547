// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarkframes.h"
#include "benchmarks.h"

#include "fakealgspectrometer.h"
#include "fakeframemanager.h"
#include "fakepreviewmanager.h"
#include "fakespectrumuimanager.h"
#include "fakeuiconfigmanager.h"
#include "spectrum2ddrawframebase.h"
#include "spectrumpipeline.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include <ctime>
#include <memory>
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

} // namespace

QVector<BenchmarkResult> BenchmarkSpectrumStream()
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
    Spectrum2DDrawFrameBase page(nullptr);
    page.setFixedSize(PageSize);
    page.show();
    SpectrumPipeline pipeline;
    QObject::connect(&pipeline, &SpectrumPipeline::SignalUpdateFVB, &page, &Spectrum2DDrawFrameBase::SlotUpdateFVB, Qt::QueuedConnection);
    SpectrumRecipe recipe;
    recipe.isBinning = true;
    pipeline.SetRecipe(recipe);

    QEventLoop loop;
    QTimer end;
    QObject::connect(&end, &QTimer::timeout, &loop, [&] {
        if (pipeline.Ledger().computed + pipeline.Ledger().missed >= quint64(Spectra))
            loop.quit();
    });
    end.start(Period);
    QElapsedTimer wall;
    wall.start();
    const double before = ThreadMs();
    std::thread camera([&] { Send(&pipeline, frames); });
    loop.exec();
    const double load = Percent * (ThreadMs() - before) / double(wall.elapsed());
    camera.join();
    const double missed = double(pipeline.Ledger().missed + quint64(Spectra) - pipeline.Ledger().taken);
    return { { "GUI thread at 100 spectra a second", "%", 0.0, load, MostLoad },
             { "spectra missed of 500", "", 0.0, missed, MostMissed } };
}
