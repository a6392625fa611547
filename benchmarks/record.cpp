// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarkframes.h"
#include "benchmarks.h"
#include "framesaving.h"
#include "frametee.h"
#include "levelsmodel.h"
#include "livelevels.h"
#include "liveorientation.h"
#include "livepreview.h"
#include "liveview.h"
#include "streambufferpool.h"

#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>

#include <atomic>
#include <chrono>
#include <cstring>
#include <thread>
#include <unistd.h>

namespace {

constexpr double DiskBound = 1 / 0.9;     // at least 0.9 times the plain rate
constexpr double DisplayBound = 1 / 0.98; // at least 0.98 times the rate without display
constexpr int Side = 2048;
constexpr int FramesOnDisk = 48;
constexpr int DiskRounds = 5;
constexpr qint64 CameraBytesPerSecond = 1000000000;
constexpr int LongRunFrames = 20000;

CameraFrame FrameOf(int side, int number)
{
    const SpecimenFrame specimen(side, number);
    std::shared_ptr<uchar> pixels(new uchar[specimen.ByteCount()], std::default_delete<uchar[]>());
    std::memcpy(pixels.get(), specimen.View().samples, specimen.ByteCount());
    CameraFrame frame;
    frame.pixels = pixels;
    frame.width = side;
    frame.height = side;
    frame.strideBytes = side * 2;
    frame.layout = PixelLayout::Mono16;
    return frame;
}

RunFacts FactsOf(const CameraFrame &frame)
{
    RunFacts facts;
    facts.frameSize = QSize(frame.width, frame.height);
    facts.layout = frame.layout;
    facts.start = QDateTime::currentDateTimeUtc();
    return facts;
}

/// Each call writes a file of its own, removed by the next: what is timed is the writing.
class PlainWrite
{
public:
    void Run(const QString &folder, const CameraFrame &frame)
    {
        if (!m_path.isEmpty())
            QFile::remove(m_path);
        m_path = folder + QString("/plain%1").arg(m_number++);
        QFile file(m_path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
            qFatal("cannot write %s", qPrintable(m_path));
        for (int i = 0; i < FramesOnDisk; ++i)
            file.write(reinterpret_cast<const char *>(frame.pixels.get()), frame.ByteCount());
        ::fsync(file.handle());
    }

private:
    QString m_path;
    int m_number = 0;
};

/// A camera that sends at a rate, or as fast as the recording takes frames without losing one.
class PacedCamera : public FrameSource
{
public:
    PacedCamera(const QVector<CameraFrame> &frames, double framesPerSecond)
        : m_frames(frames)
        , m_framesPerSecond(framesPerSecond)
    {
    }
    ~PacedCamera() override { StopFrames(); }

    void Follow(const FrameSaving *saving) { m_saving = saving; }
    /// Each frame gets memory of its own and is filled, as a camera's are.
    void FillEach() { m_pool = StreamBufferPool::Create(size_t(m_frames.first().ByteCount())); }

    bool StartFrames(FrameSink *sink) override
    {
        m_runs = true;
        m_thread = std::thread([this, sink] { Send(sink); });
        return true;
    }
    bool IsStarted() const override { return m_runs; }
    void StopFrames() override
    {
        m_runs = false;
        if (m_thread.joinable())
            m_thread.join();
    }

private:
    static constexpr int WaitingAtMost = 4;

    void Send(FrameSink *sink)
    {
        using namespace std::chrono;
        const auto start = steady_clock::now();
        for (quint64 id = 1; m_runs; ++id) {
            CameraFrame frame = m_frames[int(id % quint64(m_frames.size()))];
            frame.frameId = id;
            if (m_pool)
                frame.pixels = Filled(frame);
            if (m_framesPerSecond > 0)
                std::this_thread::sleep_until(
                    start + duration_cast<nanoseconds>(duration<double>(double(id) / m_framesPerSecond)));
            frame.hostTimeNs = duration_cast<nanoseconds>(system_clock::now().time_since_epoch()).count();
            while (m_framesPerSecond <= 0 && m_runs && m_saving->Queue().Count() >= WaitingAtMost)
                std::this_thread::sleep_for(microseconds(200));
            sink->OnFrame(frame);
        }
    }

    std::shared_ptr<const uchar> Filled(const CameraFrame &frame) const
    {
        const std::shared_ptr<const uchar> pixels = m_pool->Lend(m_pool->Take());
        std::memcpy(const_cast<uchar *>(pixels.get()), frame.pixels.get(), size_t(frame.ByteCount()));
        return pixels;
    }

    std::shared_ptr<StreamBufferPool> m_pool;
    const QVector<CameraFrame> m_frames;
    const double m_framesPerSecond;
    const FrameSaving *m_saving = nullptr;
    std::atomic<bool> m_runs{ false };
    std::thread m_thread;
};

struct RunTime
{
    RunReceipt receipt;
    double seconds = 0;
};

/// A run from its order to its receipt, with the event loop going.
RunTime Record(FrameSaving *saving, FrameTee *tee, const RunOrder &order)
{
    RunTime time;
    QEventLoop loop;
    QObject::connect(saving, &FrameSaving::signalRunEnded, &loop, [&](const RunReceipt &receipt) {
        time.receipt = receipt;
        loop.quit();
    });
    QElapsedTimer timer;
    timer.start();
    saving->StartRun(order);
    tee->StartRecording(saving);
    loop.exec();
    time.seconds = double(timer.nsecsElapsed()) / 1e9;
    tee->StopRecording();
    if (!time.receipt.error.isEmpty())
        qFatal("%s", qPrintable(time.receipt.error));
    for (const QString &file : time.receipt.files)
        QFile::remove(file);
    return time;
}

RunOrder OrderOf(const QString &folder, const CameraFrame &frame, int frames)
{
    RunOrder order;
    order.facts = FactsOf(frame);
    order.path = folder + "/run.tif";
    order.settings.mode = RecordingSettings::Mode::Count;
    order.settings.frames = frames;
    return order;
}

/// Camera, queue, thread and file, as the program records: as fast as the disk takes it without a loss.
class RecordedWrite
{
public:
    RecordedWrite(const QString &folder, const CameraFrame &frame)
        : m_camera({ frame }, 0)
        , m_saving(RunRegister(folder + "/register"))
        , m_order(OrderOf(folder, frame, FramesOnDisk))
    {
        m_camera.Follow(&m_saving);
    }

    void Run()
    {
        if (Record(&m_saving, &m_tee, m_order).receipt.outcome.counts.Lost() > 0)
            qFatal("a frame was lost");
    }

private:
    PacedCamera m_camera;
    FrameTee m_tee{ &m_camera };
    FrameSaving m_saving;
    const RunOrder m_order;
};

QVector<BenchmarkResult> MeasureDisk()
{
    const QTemporaryDir folder(QDir::currentPath() + "/bench-XXXXXX"); // a disk; /tmp may be memory
    const CameraFrame frame = FrameOf(Side, 0);
    PlainWrite plain;
    RecordedWrite recorded(folder.path(), frame);
    return { MeasureRatio(
        QString("recording %1 frames %2 x %2, 16 bit, to disk").arg(FramesOnDisk).arg(Side), DiskBound,
        DiskRounds, [&] { plain.Run(folder.path(), frame); }, [&] { recorded.Run(); }) };
}

/// The services of the live view as the program has them, and the module's view in a window.
struct Display
{
    explicit Display(FrameSource *source)
        : preview(source, &orientation, &levels)
    {}

    LevelsModel model;
    LiveLevels levels{ &model };
    LiveOrientation orientation;
    LivePreview preview;
    LiveView window{ &preview };
};

/// Two results: what was lost, and whether the frames came at the rate of that camera.
QVector<BenchmarkResult> MeasureRam()
{
    constexpr int Seconds = 2;
    const QTemporaryDir folder(QDir::currentPath() + "/bench-XXXXXX");
    const CameraFrame frame = FrameOf(Side, 0);
    const double rate = double(CameraBytesPerSecond) / double(frame.ByteCount());
    PacedCamera camera({ frame }, rate);
    camera.FillEach();
    FrameTee tee(&camera);
    FrameSaving saving{ RunRegister(folder.filePath("register")) };
    RunOrder order = OrderOf(folder.path(), frame, int(rate * Seconds));
    order.settings.toRam = true;
    order.settings.queueMB = RecordingSettings::LeastQueueMB;
    const RunTime time = Record(&saving, &tee, order);
    const QVector<FrameStamp> &stamps = time.receipt.stamps;
    const double captureMs = double(stamps.last().hostTimeNs - stamps.first().hostTimeNs) / 1e6;
    const double heldMB = double(frame.ByteCount()) * double(stamps.size()) / 1e6;
    return { { QString("frames lost of a camera at 1 GB/s, %1 MB held in memory").arg(heldMB, 0, 'f', 0), "frames",
               0, double(time.receipt.outcome.counts.Lost()), 0 },
             { "time in which these frames came, against that camera's", "ms",
               double(stamps.size() - 1) * 1000 / rate, captureMs, DisplayBound } };
}

BenchmarkResult MeasureDisplay()
{
    constexpr int Rounds = 15; // the disk itself varies by more than what is sought
    const QTemporaryDir folder(QDir::currentPath() + "/bench-XXXXXX");
    const QVector<CameraFrame> frames{ FrameOf(Side, 0), FrameOf(Side, 1) };
    double best[2] = { 0, 0 };
    for (int round = 0; round < 2 * Rounds; ++round) {
        const bool isShown = round % 2 == 1;
        PacedCamera camera(frames, 0);
        FrameTee tee(&camera);
        FrameSaving saving{ RunRegister(folder.filePath("register")) };
        camera.Follow(&saving);
        Display display(&tee);
        display.preview.SetLeastPeriod( // as the program does
            [&saving] { return LivePreview::PeriodBesideRecording(saving.Queue().Count()); });
        if (isShown)
            display.preview.StartPreview();
        const RunTime time = Record(&saving, &tee, OrderOf(folder.path(), frames.first(), FramesOnDisk * 2));
        if (isShown && display.preview.DeliveredCount() == 0)
            qFatal("no frame was shown");
        display.preview.StopPreview();
        if (best[isShown] == 0 || time.seconds < best[isShown])
            best[isShown] = time.seconds;
    }
    return { "recording to disk while it is shown, against not shown", "ms", best[0] * 1000, best[1] * 1000,
             DisplayBound };
}

BenchmarkResult MeasureLongRun()
{
    constexpr int SmallSide = 256;
    constexpr double Rate = 1000;
    const QTemporaryDir folder(QDir::currentPath() + "/bench-XXXXXX");
    const CameraFrame frame = FrameOf(SmallSide, 0);
    PacedCamera camera({ frame }, Rate);
    FrameTee tee(&camera);
    FrameSaving saving{ RunRegister(folder.filePath("register")) };
    const RunTime time = Record(&saving, &tee, OrderOf(folder.path(), frame, LongRunFrames));
    return { QString("frames lost of %1 at %2 frames/s").arg(LongRunFrames).arg(Rate), "frames", 0,
             double(time.receipt.outcome.counts.Lost()), 0 };
}

} // namespace

QVector<BenchmarkResult> BenchmarkRecord()
{
    QVector<BenchmarkResult> results = MeasureDisk();
    results << MeasureDisplay() << MeasureRam() << MeasureLongRun();
    return results;
}
