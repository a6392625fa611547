// SPDX-License-Identifier: GPL-3.0-or-later
#include "runwriter.h"
#include "filesizelimit.h"
#include "openpicture.h"
#include "runchecksum.h"
#include "runwriterfixture.h"
#include "tiffrunwriter.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

/// Holds three frames.
class ShortTiff : public TiffRunWriter
{
public:
    using TiffRunWriter::TiffRunWriter;

protected:
    int MostFrames() const override { return 3; }
};

struct FormatRow
{
    const char *name;
    RunFormat format;
    PixelLayout layout;
};

const FormatRow formatTable[] = {
    { "TIFF, 8 bit", RunFormat::Tiff, PixelLayout::Mono8 },
    { "TIFF, 12 bit", RunFormat::Tiff, PixelLayout::Mono12 },
    { "TIFF, 16 bit", RunFormat::Tiff, PixelLayout::Mono16 },
    { "TIFF, colour", RunFormat::Tiff, PixelLayout::Rgb8 },
    { "FITS, 8 bit", RunFormat::Fits, PixelLayout::Mono8 },
    { "FITS, 12 bit", RunFormat::Fits, PixelLayout::Mono12 },
    { "FITS, 16 bit", RunFormat::Fits, PixelLayout::Mono16 },
    { "PNG, 8 bit", RunFormat::Png, PixelLayout::Mono8 },
    { "PNG, 12 bit", RunFormat::Png, PixelLayout::Mono12 },
    { "PNG, 16 bit", RunFormat::Png, PixelLayout::Mono16 },
    { "PNG, colour", RunFormat::Png, PixelLayout::Rgb8 },
};

} // namespace

/// What is recorded is what the files hold.
class RunWriterTest : public RunWriterFixture
{
    Q_OBJECT

private slots:
    void everySampleComesBack_data()
    {
        QTest::addColumn<RunFormat>("format");
        QTest::addColumn<PixelLayout>("layout");
        QTest::addColumn<int>("frames");
        QTest::addColumn<int>("padding");
        for (const FormatRow &row : formatTable) {
            QTest::newRow(row.name) << row.format << row.layout << 5 << 0;
            QTest::newRow(QByteArray(row.name) + ", one padded frame") << row.format << row.layout << 1 << 3;
        }
    }

    void everySampleComesBack()
    {
        QFETCH(RunFormat, format);
        QFETCH(PixelLayout, layout);
        QFETCH(int, frames);
        QFETCH(int, padding);
        const std::unique_ptr<RunWriter> writer = Record(format, layout, frames, padding);
        QVERIFY(writer);
        CompareFrames(writer->Files(), layout, frames);
        QCOMPARE(LeftOvers(), QStringList());
        quint64 checksum = 0;
        QString error;
        QVERIFY2(RunChecksum::OfFiles(writer->Files(), &checksum, &error), qPrintable(error));
        QCOMPARE(checksum, RunChecksum::OfRun(writer->Stamps()));
    }

    void aFITSCubeTakesNoColour()
    {
        QString error;
        const auto writer = CreateRunWriter(RunFormat::Fits, Path(RunFormat::Fits));
        QVERIFY(!writer->Begin(RunSample::Facts(Size, PixelLayout::Rgb8), &error));
        QVERIFY2(error.contains("run.fits") && error.contains("not colour") && error.contains("TIFF or PNG"),
                 qPrintable(error));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList());
    }

    void neverReplacesAFile_data() { AddFormats(); }

    void neverReplacesAFile()
    {
        QFETCH(RunFormat, format);
        const QString taken = format == RunFormat::Png ? m_folder->filePath("run_000001.png") : Path(format);
        QFile file(taken);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("mine") == 4);
        file.close();
        QString error;
        const auto writer = CreateRunWriter(format, Path(format));
        QVERIFY(!writer->Begin(RunSample::Facts(Size, PixelLayout::Mono8), &error));
        QVERIFY2(error.contains("is there already") && error.contains("Choose another name"),
                 qPrintable(error));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("mine"));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files).size(), 1);
    }

    void aNameTakenDuringTheRunIsNotReplaced_data() { AddCubes(); }

    void aNameTakenDuringTheRunIsNotReplaced()
    {
        QFETCH(RunFormat, format);
        const auto writer = Begin(format, PixelLayout::Mono8);
        QString error;
        QVERIFY(writer->Write(RunSample::Frame(Size, PixelLayout::Mono8, 0), &error));
        QFile file(Path(format));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("mine") == 4);
        file.close();
        QFile second(m_folder->filePath("run_2." + RunSuffix(format)));
        QVERIFY(second.open(QIODevice::WriteOnly));
        RunOutcome outcome;
        QVERIFY2(writer->Finish(&outcome, &error), qPrintable(error));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("mine"));
        QCOMPARE(writer->Files(), QStringList({ m_folder->filePath("run_3." + RunSuffix(format)),
                                                m_folder->filePath("run_3.txt") }));
        CompareFrames(writer->Files(), PixelLayout::Mono8, 1);
        QCOMPARE(LeftOvers(), QStringList());
    }

    void anotherPngOfAnotherSequenceStays()
    {
        const auto writer = Begin(RunFormat::Png, PixelLayout::Mono8);
        QFile file(m_folder->filePath("run_000002.png"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("mine") == 4);
        file.close();
        QString error;
        QVERIFY(writer->Write(RunSample::Frame(Size, PixelLayout::Mono8, 0), &error));
        QVERIFY(!writer->Write(RunSample::Frame(Size, PixelLayout::Mono8, 1), &error));
        writer->Discard();
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList("run_000002.png"));
    }

    void discardLeavesNothing_data() { AddFormats(); }

    void discardLeavesNothing()
    {
        QFETCH(RunFormat, format);
        const auto writer = Begin(format, PixelLayout::Mono16);
        QString error;
        for (int frame = 0; frame < 3; ++frame)
            QVERIFY(writer->Write(RunSample::Frame(Size, PixelLayout::Mono16, frame), &error));
        writer->Discard();
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList());
    }

    void aFrameOfAnotherSizeIsRefused()
    {
        const auto writer = Begin(RunFormat::Tiff, PixelLayout::Mono8);
        QString error;
        QVERIFY(writer->Write(RunSample::Frame(Size, PixelLayout::Mono8, 0), &error));
        QVERIFY(!writer->Write(RunSample::Frame(QSize(10, 10), PixelLayout::Mono8, 1), &error));
        QVERIFY2(error.contains("10 x 10"), qPrintable(error));
        QVERIFY(Finish(writer.get(), 1));
        CompareFrames(writer->Files(), PixelLayout::Mono8, 1);
    }

    void moreFramesThanCanBeToldAreRefused()
    {
        ShortTiff writer(Path(RunFormat::Tiff));
        QString error;
        QVERIFY(writer.Begin(RunSample::Facts(Size, PixelLayout::Mono8), &error));
        for (int frame = 0; frame < 3; ++frame)
            QVERIFY(writer.Write(RunSample::Frame(Size, PixelLayout::Mono8, frame), &error));
        QVERIFY(!writer.Write(RunSample::Frame(Size, PixelLayout::Mono8, 3), &error));
        QVERIFY2(error.contains("run.tif") && error.contains("holds 3 frames at most")
                     && error.contains("another recording"),
                 qPrintable(error));
        QVERIFY2(Finish(&writer, 3, &error), qPrintable(error));
        CompareFrames(writer.Files(), PixelLayout::Mono8, 3);
    }

    void foldersThatCannotBe_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("reason");
        QTest::newRow("not there") << "nowhere"
                                   << "does not exist";
        QTest::newRow("a file") << "file"
                                << "does not exist";
        QTest::newRow("longer than any name") << QString(300, 'x') << "does not exist";
    }

    void foldersThatCannotBe()
    {
        QFETCH(QString, folder);
        QFETCH(QString, reason);
        QFile file(m_folder->filePath("file"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QString error;
        const auto writer = CreateRunWriter(RunFormat::Tiff, m_folder->filePath(folder + "/run.tif"));
        QVERIFY(!writer->Begin(RunSample::Facts(Size, PixelLayout::Mono8), &error));
        QVERIFY2(error.contains("run.tif") && error.contains(reason), qPrintable(error));
    }

    /// The kernel's own folders refuse new files even to an administrator.
    void aFolderThatMayNotBeWrittenIsSaid()
    {
        QString error;
        const auto writer = CreateRunWriter(RunFormat::Tiff, "/sys/run.tif");
        QVERIFY(!writer->Begin(RunSample::Facts(Size, PixelLayout::Mono8), &error));
        QVERIFY2(error.contains("run.tif") && error.contains("you may not write in that folder"),
                 qPrintable(error));
    }

    /// The largest file that the process may write stands for a full disk.
    void aFullDiskKeepsTheFramesBefore_data() { AddCubes(); }

    void aFullDiskKeepsTheFramesBefore()
    {
        QFETCH(RunFormat, format);
        const auto writer = Begin(format, PixelLayout::Mono16);
        constexpr int Limit = 200000;
        QString error;
        int written = 0;
        {
            const FileSizeLimit limit(Limit);
            while (writer->Write(RunSample::Frame(Size, PixelLayout::Mono16, written), &error))
                ++written;
            QVERIFY2(error.contains("larger than this disk allows"), qPrintable(error));
            QVERIFY(written > 80);
            QVERIFY2(Finish(writer.get(), written, &error), qPrintable(error));
        }
        QVERIFY(writer->FramesWritten() > 0 && writer->FramesWritten() <= written);
        CompareFrames(writer->Files(), PixelLayout::Mono16, writer->FramesWritten());
        QCOMPARE(m_outcome.counts.saved + m_outcome.counts.LostAt(LossStage::Disk), quint64(written));
        QCOMPARE(m_outcome.counts.saved, quint64(writer->FramesWritten()));
    }

    void aFullDiskEndsASequenceWithTheFramesBefore()
    {
        const auto writer = Begin(RunFormat::Png, PixelLayout::Mono16);
        QString error;
        for (int frame = 0; frame < 3; ++frame)
            QVERIFY(writer->Write(RunSample::Frame(Size, PixelLayout::Mono16, frame), &error));
        {
            const FileSizeLimit limit(500); // less than a frame
            QVERIFY(!writer->Write(RunSample::Frame(Size, PixelLayout::Mono16, 3), &error));
        }
        QVERIFY2(error.contains("run.png") && error.contains("larger than this disk allows"), qPrintable(error));
        QVERIFY2(Finish(writer.get(), 3, &error), qPrintable(error));
        CompareFrames(writer->Files(), PixelLayout::Mono16, 3);
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files),
                 QStringList({ "run.txt", "run_000001.png", "run_000002.png", "run_000003.png" }));
    }

    /// A disk that fails for good: nothing is cut away, so that the repair finds it all.
    void anotherFaultAtTheEndKeepsEveryFrame()
    {
        const auto writer = Begin(RunFormat::Tiff, PixelLayout::Mono8);
        QString error;
        for (int frame = 0; frame < 3; ++frame)
            QVERIFY(writer->Write(RunSample::Frame(Size, PixelLayout::Mono8, frame), &error));
        QDir parent(QFileInfo(m_folder->path()).path());
        const QString name = QFileInfo(m_folder->path()).fileName();
        QVERIFY(parent.rename(name, name + "-away"));
        QVERIFY(!Finish(writer.get(), 3, &error));
        QVERIFY(parent.rename(name + "-away", name));
        QCOMPARE(writer->FramesWritten(), 3);
        QCOMPARE(m_outcome.counts.Lost(), quint64(0));
        QVERIFY(QFile(Path(RunFormat::Tiff) + ".part").size() > 3 * Size.width() * Size.height());
    }
};

GUARDED_TEST_MAIN(RunWriterTest)
#include "runwritertest.moc"
