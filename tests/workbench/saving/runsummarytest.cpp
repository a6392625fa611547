// SPDX-License-Identifier: GPL-3.0-or-later
#include "filesizelimit.h"
#include "omedescription.h"
#include "openpicture.h"
#include "runwriterfixture.h"
#include "spectralmetadata.h"

#include <QFile>
#include <QFileInfo>

#include <limits>

/// What a recording tells of itself: in its files, and in the summary beside them.
class RunSummaryTest : public RunWriterFixture
{
    Q_OBJECT

private slots:
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
};

GUARDED_TEST_MAIN(RunSummaryTest)
#include "runsummarytest.moc"
