// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "levelsmodel.h"
#include "openpicture.h"
#include "pictureloader.h"
#include "tiffbytes.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>

namespace {

constexpr int Side = 2048;
constexpr qint64 FrameBytes = qint64(Side) * Side * 2;
constexpr int Frames = 500; ///< what a file with 32 bit offsets can hold: 4 GB
constexpr quint32 FirstFrame = 1 << 20;

/// A number behind a key in a file of the process; ends the test when there is none.
qint64 ProcessNumber(const char *path, const QByteArray &key)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s", qPrintable(file.errorString()));
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (line.startsWith(key))
            return line.mid(key.size()).trimmed().split(' ').first().toLongLong();
    }
    qFatal("no %s in %s", key.constData(), path);
}

qint64 BytesRead() { return ProcessNumber("/proc/self/io", "rchar:"); }

qint64 MemoryKB(const char *key) { return ProcessNumber("/proc/self/status", key); }

/// From here on the peak is that of what follows.
void ForgetPeak()
{
    QFile file("/proc/self/clear_refs");
    if (!file.open(QIODevice::WriteOnly) || file.write("5") != 1)
        qFatal("%s", qPrintable(file.errorString()));
}

QByteArray Directories(bool isOneForAll)
{
    TiffBytes tiff;
    if (isOneForAll) {
        tiff.AppendPage(TiffBytes::GreyPage(Side, Side, 16, FirstFrame), "ImageJ=1.53t\nimages=500\nslices=500\n");
    } else {
        for (int frame = 0; frame < Frames; ++frame)
            tiff.AppendPage(TiffBytes::GreyPage(Side, Side, 16, quint32(FirstFrame + frame * FrameBytes)));
    }
    return tiff.Bytes();
}

} // namespace

/// A stack that is larger than the memory that is meant for pictures. The file has holes, the samples in them are 0.
class LargeStackTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        for (const bool isOneForAll : { true, false }) {
            QFile file(Path(isOneForAll));
            QVERIFY(file.open(QIODevice::WriteOnly));
            QVERIFY(file.write(Directories(isOneForAll)) > 0);
            QVERIFY(file.resize(FirstFrame + Frames * FrameBytes));
        }
    }

    void opensAtOnce_data() { Layouts(); }

    /// By what is read for it, which no other load of the machine changes.
    void opensAtOnce()
    {
        QFETCH(bool, isOneForAll);
        QString error;
        QElapsedTimer timer;
        timer.start();
        const qint64 before = BytesRead();
        const auto file = OpenPicture(Path(isOneForAll), error);
        const qint64 read = BytesRead() - before;
        QVERIFY2(file, qPrintable(error));
        QCOMPARE(file->Info().frames, Frames);
        QVERIFY2(read < (4 << 20), qPrintable(QString("%1 bytes").arg(read)));
        QVERIFY2(timer.elapsed() < 2000, qPrintable(QString("%1 ms").arg(timer.elapsed())));
    }

    void browsingHoldsABoundedNumberOfFrames_data() { Layouts(); }

    void browsingHoldsABoundedNumberOfFrames()
    {
        QFETCH(bool, isOneForAll);
        constexpr int shown = 150;
        constexpr qint64 boundKB = 640 << 10; // 256 MiB are kept; what was shown is more than 1.2 GB
        LevelsModel levels;
        PictureLoader loader(&levels);
        ForgetPeak();
        const qint64 before = MemoryKB("VmRSS:");
        for (int i = 0; i < shown; ++i) {
            // Forwards, and every third one far away.
            const int frame = i % 3 == 2 ? Frames - 1 - i : i;
            QVERIFY2(IsShown(loader, Path(isOneForAll), frame), qPrintable(QString::number(frame)));
        }
        const qint64 grown = MemoryKB("VmHWM:") - before;
        QVERIFY2(grown > FrameBytes / 1024, "nothing was measured");
        QVERIFY2(grown < boundKB, qPrintable(QString("%1 MiB").arg(grown >> 10)));
    }

private:
    static void Layouts()
    {
        QTest::addColumn<bool>("isOneForAll");
        QTest::newRow("one description") << true;
        QTest::newRow("a directory for each frame") << false;
    }

    QString Path(bool isOneForAll) const { return m_folder.filePath(isOneForAll ? "one.tif" : "many.tif"); }

    static bool IsShown(PictureLoader &loader, const QString &path, int frame)
    {
        QEventLoop loop;
        bool isShown = false;
        connect(&loader, &PictureLoader::signalLoaded, &loop, [&](const LoadedPicture &picture) {
            isShown = picture.error.isEmpty() && picture.request.frame == frame && picture.image.width() == Side;
            loop.quit();
        });
        PictureRequest request;
        request.file = { 1, path };
        request.frame = frame;
        loader.Load(request);
        QTimer::singleShot(20000, &loop, &QEventLoop::quit);
        loop.exec();
        return isShown;
    }

    QTemporaryDir m_folder;
};

GUARDED_TEST_MAIN(LargeStackTest)
#include "largestacktest.moc"
