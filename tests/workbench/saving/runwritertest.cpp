// SPDX-License-Identifier: GPL-3.0-or-later
#include "runwriter.h"
#include "guardedtest.h"
#include "openpicture.h"
#include "runchecksum.h"
#include "runsample.h"
#include "spectralmetadata.h"
#include "tiffrunwriter.h"
#include "omedescription.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <csignal>
#include <cstring>
#include <limits>
#include <sys/resource.h>

namespace {

constexpr QSize Size(37, 21);

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
class RunWriterTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        StartGuard();
        m_folder = std::make_unique<QTemporaryDir>();
    }

    void cleanup() override
    {
        m_folder.reset();
        EndGuard();
    }

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

    void theCalibrationIsInTheFile_data()
    {
        QTest::addColumn<RunFormat>("format");
        QTest::addColumn<bool>("ofColumns");
        for (const bool ofColumns : { true, false }) {
            const char *side = ofColumns ? "columns" : "rows";
            QTest::addRow("TIFF, %s", side) << RunFormat::Tiff << ofColumns;
            QTest::addRow("FITS, %s", side) << RunFormat::Fits << ofColumns;
            QTest::addRow("PNG, %s", side) << RunFormat::Png << ofColumns;
        }
    }

    /// Also in one that is finished later, by what the journal kept of it.
    void theCalibrationIsInTheFile()
    {
        QFETCH(RunFormat, format);
        QFETCH(bool, ofColumns);
        SpectralRecord record;
        record.side = ofColumns ? SpectralSide::Columns : SpectralSide::Rows;
        record.coefficients = { 400, 0.5, 1e-3 };
        record.width = ofColumns ? Size.width() : Size.height();
        RunFacts first = RunSample::Facts(Size, PixelLayout::Mono16);
        first.calibration = SpectralMetadata(record);
        RunFacts facts;
        QVERIFY(RunFacts::FromJson(first.ToJson(), &facts));
        const auto writer = CreateRunWriter(format, Path(format));
        QString error;
        QVERIFY2(writer->Begin(facts, &error), qPrintable(error));
        QVERIFY2(writer->Write(RunSample::Frame(Size, PixelLayout::Mono16, 0), &error), qPrintable(error));
        QVERIFY2(Finish(writer.get(), 1, &error), qPrintable(error));
        const auto file = OpenPicture(writer->Files().value(0), error);
        QVERIFY2(file, qPrintable(error));
        const SpectralAxis axis = file->AxisOf(0);
        QCOMPARE(int(axis.unit), int(SpectralUnit::Nanometre));
        QCOMPARE(int(axis.side), int(record.side));
        QCOMPARE(axis.values.size(), record.width);
        QCOMPARE(axis.values[0], 400.0);
        QVERIFY(qAbs(axis.values[20] - 410.4) < 1e-9);
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

    void theFileTellsTheTruth_data() { AddFormats(); }

    void theFileTellsTheTruth()
    {
        QFETCH(RunFormat, format);
        const std::unique_ptr<RunWriter> writer = Record(format, PixelLayout::Mono12, 3, 0);
        QString error;
        const auto file = OpenPicture(writer->Files().first(), error);
        QVERIFY2(file, qPrintable(error));
        QString all;
        for (const MetadataEntry &entry : file->Info().metadata)
            all += entry.key + '=' + entry.value + '\n';
        for (const char *fact :
             { "S/N 42", "12500 us", "1.5", "74 x 42 from (16, 8)", "2 x 2", "12 bit", "workbench test" })
            QVERIFY2(all.contains(fact), qPrintable(QString(fact) + " is not in " + all));
        QVERIFY2(!all.contains("Pixel size") && !all.contains("PhysicalSize"), qPrintable(all));
    }

    void theSummaryIsReadable()
    {
        const auto writer = Begin(RunFormat::Tiff, PixelLayout::Mono8);
        QString error;
        for (int frame : { 0, 1, 4, 9 })
            QVERIFY(writer->Write(RunSample::Frame(Size, PixelLayout::Mono8, frame), &error));
        RunOutcome outcome;
        outcome.end = RunEnd::Stopped;
        outcome.counts.captured = 5;
        outcome.counts.saved = 4;
        outcome.counts.lostAt[size_t(LossStage::SaveQueue)] = 1;
        outcome.counts.lostAt[size_t(LossStage::Transfer)] = 5;
        QVERIFY2(writer->Finish(&outcome, &error), qPrintable(error));
        QFile file(m_folder->filePath("run.txt"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        for (const char *line :
             { "Recording: run.tif\n", "Run: stopped by the user\n", "Frames captured: 5\n",
               "Frames saved: 4\n",
               "Frames lost: 6 (5 arrived incomplete, 1 the disk was too slow and the queue full)\n",
               "Frame ids missing: 102-103, 105-108\n", "Average rate: 166.67 frames/s\n",
               "Camera: Maker & Sons C-1\n", "Exposure: 12500 us\n", "Bit depth: 8 bit\n",
               "\n4\t109\t9000000\t" })
            QVERIFY2(text.contains(line), qPrintable(QString(line) + " is not in\n" + text));
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

    /// Recordings that differ by their format only.
    void eachRecordingHasItsOwnSummary()
    {
        QStringList summaries;
        for (const RunFormat format : { RunFormat::Tiff, RunFormat::Fits, RunFormat::Png }) {
            const auto writer = Record(format, PixelLayout::Mono8, 1, 0);
            QFile summary(writer->Files().last());
            QVERIFY(summary.open(QIODevice::ReadOnly));
            QVERIFY(summary.readLine().contains(QFileInfo(writer->Files().first()).fileName().toUtf8()));
            summaries << QFileInfo(summary).fileName();
            QCOMPARE(writer->Warning(), QString());
        }
        QCOMPARE(summaries, QStringList({ "run.txt", "run.fits.txt", "run.png.txt" }));
    }

    void aSummaryThatCanNotBeWrittenIsSaid()
    {
        const auto writer = Begin(RunFormat::Png, PixelLayout::Mono8);
        QString error;
        for (int frame = 0; frame < 3; ++frame)
            QVERIFY(writer->Write(RunSample::Frame(Size, PixelLayout::Mono8, frame), &error));
        for (const char *name : { "run.txt", "run.png.txt" })
            QVERIFY(QFile(m_folder->filePath(name)).open(QIODevice::WriteOnly));
        m_outcome.reason = QString(100000, 'x'); // longer than a file may be now
        {
            const FileSizeLimit limit(90000);
            writer->Finish(&m_outcome, &error);
        }
        QVERIFY2(writer->Warning().contains("its summary could not be written"), qPrintable(writer->Warning() + error));
        QCOMPARE(writer->Files().size(), 3);
        QVERIFY(!QFile::exists(m_folder->filePath("run.png.2.txt")));
    }

    void settingsChangedInMidRunAreTold_data() { AddFormats(); }

    void settingsChangedInMidRunAreTold()
    {
        QFETCH(RunFormat, format);
        const auto writer = Begin(format, PixelLayout::Mono8);
        QString error;
        SettingsChange change;
        change.exposureUs = 20000;
        change.gain = 3;
        change.framesPerSecond = 50;
        QVERIFY(writer->Write(RunSample::Frame(Size, PixelLayout::Mono8, 0), &error));
        QVERIFY(writer->ChangeSettings(change, &error));
        QVERIFY(writer->Write(RunSample::Frame(Size, PixelLayout::Mono8, 1), &error));
        QVERIFY2(Finish(writer.get(), 2, &error), qPrintable(error));
        QStringList told;
        for (const QString &path : writer->Files()) {
            if (path.endsWith(".txt"))
                continue;
            const auto file = OpenPicture(path, error);
            QVERIFY2(file, qPrintable(error));
            QString all;
            for (const MetadataEntry &entry : file->Info().metadata)
                all += entry.key + '=' + entry.value + '\n';
            told << all;
        }
        if (format == RunFormat::Png) { // each frame its own
            QVERIFY2(told[0].contains("12500 us") && !told[0].contains("20000 us"), qPrintable(told[0]));
            QVERIFY2(told[1].contains("20000 us") && !told[1].contains("12500 us"), qPrintable(told[1]));
            return;
        }
        QVERIFY2(told[0].contains("12500 to 20000 us") && told[0].contains("exposure 20000 us, gain 3, 50 frames/s"),
                 qPrintable(told[0]));
        QVERIFY2(!told[0].contains("EXPTIME"), qPrintable(told[0])); // no one number holds for all
        if (format == RunFormat::Tiff) {
            QFile file(writer->Files().first());
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QByteArray bytes = file.readAll();
            QVERIFY(bytes.contains("TheT=\"0\" DeltaT=\"0\" ExposureTime=\"0.0125\""));
            QVERIFY(bytes.contains("TheT=\"1\" DeltaT=\"0.001\" ExposureTime=\"0.02\""));
        }
    }

    void anAutomaticExposureClaimsNoNumberForAFrame()
    {
        RunFacts facts = RunSample::Facts(Size, PixelLayout::Mono8);
        facts.isAutoExposure = true;
        const auto writer = CreateRunWriter(RunFormat::Tiff, Path(RunFormat::Tiff));
        QString error;
        QVERIFY(writer->Begin(facts, &error));
        QVERIFY(writer->Write(RunSample::Frame(Size, PixelLayout::Mono8, 0), &error));
        QVERIFY(Finish(writer.get(), 1));
        QFile file(writer->Files().first());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        QVERIFY(!bytes.contains("ExposureTime=") && bytes.contains("automatic, 12500 us"));
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

    /// One block of memory of less than 2 GiB holds it, however long the numbers are.
    void whatIsToldOfAllFramesFitsIntoMemory()
    {
        RunFacts facts = RunSample::Facts(Size, PixelLayout::Mono8);
        facts.exposureUs = 123456.789012345;
        constexpr quint64 LongNumber = quint64(std::numeric_limits<qint64>::max());
        QVector<FrameStamp> stamps(1, FrameStamp{ 0, 0, 0, 0 });
        const int one = OmeDescription(facts, RunOutcome(), stamps, "run.tif").size();
        constexpr int More = 1000;
        for (int i = 0; i < More; ++i)
            stamps.append({ LongNumber - More + quint64(i), qint64(LongNumber) - 7 * i, qint64(LongNumber), LongNumber });
        const qint64 ofEach = (OmeDescription(facts, RunOutcome(), stamps, "run.tif").size() - one) / More + 1;
        const qint64 longerNumbers = 2 * 4; // those of the frames have up to 7 digits
        QVERIFY2((ofEach + longerNumbers) * MostRunFrames < (qint64(1) << 31) - (1 << 20),
                 qPrintable(QString::number(ofEach)));
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

private:
    /// Lowers the process's limit; a write beyond it fails like one on a full disk.
    class FileSizeLimit
    {
    public:
        explicit FileSizeLimit(rlim_t bytes)
        {
            m_handler = std::signal(SIGXFSZ, SIG_IGN);
            getrlimit(RLIMIT_FSIZE, &m_before);
            const rlimit lower{ bytes, m_before.rlim_max };
            setrlimit(RLIMIT_FSIZE, &lower);
        }
        ~FileSizeLimit()
        {
            setrlimit(RLIMIT_FSIZE, &m_before);
            std::signal(SIGXFSZ, m_handler);
        }

    private:
        void (*m_handler)(int);
        rlimit m_before;
    };

    void AddFormats()
    {
        QTest::addColumn<RunFormat>("format");
        QTest::newRow("TIFF") << RunFormat::Tiff;
        QTest::newRow("FITS") << RunFormat::Fits;
        QTest::newRow("PNG") << RunFormat::Png;
    }

    /// Formats with all frames in one file.
    void AddCubes()
    {
        QTest::addColumn<RunFormat>("format");
        QTest::newRow("TIFF") << RunFormat::Tiff;
        QTest::newRow("FITS") << RunFormat::Fits;
    }

    QString Path(RunFormat format) const { return m_folder->filePath("run." + RunSuffix(format)); }

    QStringList LeftOvers() const
    {
        return QDir(m_folder->path()).entryList({ "*.part", "*.journal" }, QDir::Files);
    }

    std::unique_ptr<RunWriter> Begin(RunFormat format, PixelLayout layout)
    {
        QString error;
        std::unique_ptr<RunWriter> writer = CreateRunWriter(format, Path(format));
        if (!writer->Begin(RunSample::Facts(Size, layout), &error))
            qFatal("%s", qPrintable(error));
        return writer;
    }

    bool Finish(RunWriter *writer, int frames, QString *error = nullptr)
    {
        QString text;
        m_outcome = RunOutcome();
        m_outcome.counts.captured = quint64(frames);
        m_outcome.counts.saved = quint64(frames);
        const bool done = writer->Finish(&m_outcome, &text);
        if (error)
            *error = text;
        return done;
    }

    std::unique_ptr<RunWriter> Record(RunFormat format, PixelLayout layout, int frames, int padding)
    {
        std::unique_ptr<RunWriter> writer = Begin(format, layout);
        QString error;
        for (int frame = 0; frame < frames; ++frame) {
            if (!writer->Write(RunSample::Frame(Size, layout, frame, padding), &error))
                qFatal("%s", qPrintable(error));
        }
        if (!Finish(writer.get(), frames, &error))
            qFatal("%s", qPrintable(error));
        return writer;
    }

    void CompareFrames(const QStringList &files, PixelLayout layout, int frames)
    {
        int seen = 0;
        for (const QString &path : files) {
            if (path.endsWith(".txt"))
                continue;
            QString error;
            const auto file = OpenPicture(path, error);
            QVERIFY2(file, qPrintable(error));
            QVERIFY2(file->Info().warning.isEmpty(), qPrintable(file->Info().warning));
            for (int i = 0; i < file->Info().frames; ++i, ++seen) {
                Picture picture;
                QVERIFY2(file->ReadFrame(i, picture, error), qPrintable(error));
                QCOMPARE(picture.Size(), Size);
                const QByteArray expected = RunSample::Samples(Size, layout, seen);
                QCOMPARE(picture.ByteCount(), qint64(expected.size()));
                const Picture &samples = picture;
                QVERIFY(std::memcmp(samples.Data(), expected.constData(), size_t(expected.size())) == 0);
            }
        }
        QCOMPARE(seen, frames);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    RunOutcome m_outcome;
};

GUARDED_TEST_MAIN(RunWriterTest)
#include "runwritertest.moc"
