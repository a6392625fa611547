// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "openpicture.h"
#include "runchecksum.h"
#include "runregister.h"
#include "runsample.h"
#include "runwriter.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QThread>

#include <cstring>

namespace {
constexpr QSize Size(64, 48);
constexpr PixelLayout Layout = PixelLayout::Mono16;
constexpr int MsToWait = 20000;
} // namespace

/// A recording whose program died is whole again at the next start, but for the last frames.
class RunRepairTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        StartGuard();
        m_folder = std::make_unique<QTemporaryDir>();
        m_register = std::make_unique<RunRegister>(m_folder->filePath("register"));
    }

    void cleanup() override
    {
        m_folder.reset();
        EndGuard();
    }

    void aKilledProgramLosesNoFrameItHadWritten_data()
    {
        QTest::addColumn<RunFormat>("format");
        QTest::newRow("TIFF") << RunFormat::Tiff;
        QTest::newRow("FITS") << RunFormat::Fits;
        QTest::newRow("PNG") << RunFormat::Png;
    }

    void aKilledProgramLosesNoFrameItHadWritten()
    {
        QFETCH(RunFormat, format);
        const QString path = m_folder->filePath("run." + RunSuffix(format));
        QString entry;
        QVERIFY(m_register->Add(path, &entry));
        QProcess program;
        program.start(RECORD_SAMPLE, { path, QString::number(int(format)), QString::number(int(Layout)),
                                       QString::number(Size.width()), QString::number(Size.height()), "0" });
        QVERIFY(program.waitForStarted(MsToWait));
        int said = 0;
        while (said < 30) {
            QVERIFY(program.waitForReadyRead(MsToWait));
            while (program.canReadLine())
                said = program.readLine().trimmed().toInt();
        }
        QCOMPARE(RepairRuns(*m_register).size(), 0); // it is still recording
        QCOMPARE(m_register->Entries().size(), 1);
        program.kill(); // SIGKILL
        QVERIFY(program.waitForFinished(MsToWait));
        while (program.canReadLine())
            said = program.readLine().trimmed().toInt();

        const QVector<RepairedRun> repaired = RepairRuns(*m_register);
        QCOMPARE(repaired.size(), 1);
        QCOMPARE(repaired.first().fault, QString());
        QVERIFY2(repaired.first().frames >= said,
                 qPrintable(QString("%1 of %2").arg(repaired.first().frames).arg(said)));
        QVERIFY(repaired.first().frames <= said + 1);
        CompareFrames(path, format, repaired.first().frames);
        QCOMPARE(m_register->Entries().size(), 0);
        QFile summary(SummaryOf(path));
        QVERIFY(summary.open(QIODevice::ReadOnly));
        const QByteArray text = summary.readAll();
        for (const char *line : { "repaired later", "Frames captured: not known\n", "Frames lost: not known\n" })
            QVERIFY2(text.contains(line), text.constData());
        QCOMPARE(RepairRuns(*m_register).size(), 0);
    }

    void filesCutAnywhereKeepTheirWholeFrames_data()
    {
        QTest::addColumn<RunFormat>("format");
        QTest::newRow("TIFF") << RunFormat::Tiff;
        QTest::newRow("FITS") << RunFormat::Fits;
    }

    /// A power cut may leave less of either file than was written.
    void filesCutAnywhereKeepTheirWholeFrames()
    {
        QFETCH(RunFormat, format);
        QRandomGenerator random(1);
        const QByteArray journal = WriteAndAbandon(format, 6);
        const QString path = m_folder->filePath("run." + RunSuffix(format));
        QFile part(path + ".part");
        QVERIFY(part.open(QIODevice::ReadOnly));
        const QByteArray data = part.readAll();
        part.close();
        const int recordBytes = 32;
        const int headerBytes = journal.size() - 6 * recordBytes;
        const int frameBytes = Size.width() * Size.height() * 2;
        const int dataHeader = data.size() - 6 * frameBytes;
        for (int round = 0; round < 40; ++round) {
            const int keptJournal = random.bounded(headerBytes, journal.size() + 1);
            const int keptData = random.bounded(dataHeader, data.size() + 1);
            Put(path + ".journal", journal.left(keptJournal));
            Put(path + ".part", data.left(keptData));
            QString entry;
            QVERIFY(m_register->Add(path, &entry));
            const QVector<RepairedRun> repaired = RepairRuns(*m_register);
            QCOMPARE(repaired.size(), 1);
            QCOMPARE(repaired.first().fault, QString());
            const int expected =
                qMin((keptJournal - headerBytes) / recordBytes, (keptData - dataHeader) / frameBytes);
            QCOMPARE(repaired.first().frames, expected);
            if (expected > 0)
                CompareFrames(path, format, expected);
            QFile::remove(path);
            QFile::remove(SummaryOf(path));
        }
    }

    void framesTornByAPowerCutAreDroppedAndCounted_data()
    {
        QTest::addColumn<RunFormat>("format");
        QTest::addColumn<bool>("isZeroed");
        for (const bool isZeroed : { true, false }) {
            const QByteArray damage = isZeroed ? ", zeroed" : ", garbled";
            QTest::newRow("TIFF" + damage) << RunFormat::Tiff << isZeroed;
            QTest::newRow("FITS" + damage) << RunFormat::Fits << isZeroed;
            QTest::newRow("PNG" + damage) << RunFormat::Png << isZeroed;
        }
    }

    /// The sizes may be on the disk before what belongs into them, in any order.
    void framesTornByAPowerCutAreDroppedAndCounted()
    {
        QFETCH(RunFormat, format);
        QFETCH(bool, isZeroed);
        WriteAndAbandon(format, 8);
        const QString path = m_folder->filePath("run." + RunSuffix(format));
        for (const int torn : { 0, 3, 7 })
            Damage(path, format, torn, isZeroed);
        QString entry;
        QVERIFY(m_register->Add(path, &entry));
        const QVector<RepairedRun> repaired = RepairRuns(*m_register);
        QCOMPARE(repaired.size(), 1);
        QCOMPARE(repaired.first().fault, QString());
        QCOMPARE(repaired.first().frames, 5);
        QCOMPARE(repaired.first().torn, 3);
        CompareFrames(path, format, { 1, 2, 4, 5, 6 });
        QFile summary(SummaryOf(path));
        QVERIFY(summary.open(QIODevice::ReadOnly));
        const QByteArray text = summary.readAll();
        QVERIFY2(text.contains("Frames saved: 5\nFrames lost: not known, at least 3 (3 could not be written to the disk)\n"
                               "Frame ids missing: 100, 103, 107\n"),
                 text.constData());
        quint64 checksum = 0;
        QString error;
        QVERIFY(RunChecksum::OfFiles(FilesOf(path, format, 5), &checksum, &error));
        QVERIFY(text.contains("Checksum (XXH3): " + RunChecksum::ToText(checksum).toLatin1() + '\n'));
        QCOMPARE(m_register->Entries().size(), 0);
    }

    void aFirstPngWithoutAByteDoesNotStopTheRepair()
    {
        WriteAndAbandon(RunFormat::Png, 3);
        const QString path = m_folder->filePath("run.png");
        Put(m_folder->filePath("run_000001.png"), QByteArray());
        QString entry;
        QVERIFY(m_register->Add(path, &entry));
        const QVector<RepairedRun> repaired = RepairRuns(*m_register);
        QCOMPARE(repaired.first().fault, QString());
        CompareFrames(path, RunFormat::Png, { 1, 2 });
    }

    /// Of a journal record that never came to the disk only zeros are there.
    void framesWithoutTheirRecordAreDropped()
    {
        const QByteArray journal = WriteAndAbandon(RunFormat::Tiff, 4);
        const QString path = m_folder->filePath("run.tif");
        Put(path + ".journal", journal.left(journal.size() - 2 * 32) + QByteArray(32, '\0') + journal.right(32));
        QString entry;
        QVERIFY(m_register->Add(path, &entry));
        QCOMPARE(RepairRuns(*m_register).first().torn, 1);
        CompareFrames(path, RunFormat::Tiff, { 0, 1, 3 });
    }

    void noWholeFrameAmongThoseWrittenIsSaid()
    {
        WriteAndAbandon(RunFormat::Tiff, 2);
        const QString path = m_folder->filePath("run.tif");
        for (const int torn : { 0, 1 })
            Damage(path, RunFormat::Tiff, torn, false);
        QString entry;
        QVERIFY(m_register->Add(path, &entry));
        const QVector<RepairedRun> repaired = RepairRuns(*m_register);
        QVERIFY2(repaired.first().fault.contains("not one of its frames is whole"),
                 qPrintable(repaired.first().fault));
        QVERIFY(QFile::exists(path + ".part")); // kept for somebody who knows more
        QCOMPARE(m_register->Entries().size(), 0);
    }

    /// What the disk has for certain is not read again.
    void whatWasWrittenIsBroughtToTheDiskNowAndThen_data()
    {
        QTest::addColumn<RunFormat>("format");
        QTest::newRow("TIFF") << RunFormat::Tiff;
        QTest::newRow("PNG") << RunFormat::Png;
    }

    void whatWasWrittenIsBroughtToTheDiskNowAndThen()
    {
        QFETCH(RunFormat, format);
        const QString path = m_folder->filePath("run." + RunSuffix(format));
        const std::unique_ptr<RunWriter> writer = CreateRunWriter(format, path);
        QString error;
        QVERIFY(writer->Begin(RunSample::Facts(Size, Layout), &error));
        RunJournal::Content content;
        QElapsedTimer timer;
        timer.start();
        while (content.lasting == 0 && timer.elapsed() < MsToWait) {
            QVERIFY2(writer->Write(RunSample::Frame(Size, Layout, writer->FramesWritten()), &error),
                     qPrintable(error));
            QThread::msleep(20);
            content = JournalOf(path);
        }
        QVERIFY(content.lasting > 0 && content.lasting < writer->FramesWritten());
        writer->Discard();
    }

    void settingsChangedInMidRunSurvive()
    {
        const QString path = m_folder->filePath("run.tif");
        {
            const std::unique_ptr<RunWriter> writer = CreateRunWriter(RunFormat::Tiff, path);
            QString error;
            QVERIFY(writer->Begin(RunSample::Facts(Size, Layout), &error));
            QVERIFY(writer->Write(RunSample::Frame(Size, Layout, 0), &error));
            SettingsChange change;
            change.exposureUs = 777.5;
            change.isAutoGain = true;
            change.gain = 2.25;
            change.framesPerSecond = 12;
            QVERIFY(writer->ChangeSettings(change, &error));
            QVERIFY(writer->Write(RunSample::Frame(Size, Layout, 1), &error));
        }
        QString entry;
        QVERIFY(m_register->Add(path, &entry));
        QCOMPARE(RepairRuns(*m_register).first().frames, 2);
        QFile summary(SummaryOf(path));
        QVERIFY(summary.open(QIODevice::ReadOnly));
        const QByteArray text = summary.readAll();
        QVERIFY2(text.contains("From about frame 2 on: exposure 777.5 us, gain automatic, 2.25, 12 frames/s\n"),
                 text.constData());
    }

    void aDiskThatIsAwayIsWaitedFor_data()
    {
        QTest::addColumn<bool>("hasMountPoint");
        QTest::newRow("the folder is gone") << false;
        QTest::newRow("the mount point is there") << true;
    }

    void aDiskThatIsAwayIsWaitedFor()
    {
        QFETCH(bool, hasMountPoint);
        QDir folder(m_folder->path());
        WriteAndAbandon(RunFormat::Tiff, 3);
        QVERIFY(folder.mkdir("disk"));
        for (const char *file : { "run.tif.part", "run.tif.journal" })
            QVERIFY(folder.rename(file, QString("disk/") + file));
        const QString path = folder.filePath("disk/run.tif");
        QString entry;
        QVERIFY(m_register->Add(path, &entry));
        QVERIFY(folder.rename("disk", "elsewhere"));
        if (hasMountPoint)
            QVERIFY(folder.mkdir("disk"));
        for (int start = 0; start < 2; ++start) {
            const QVector<RepairedRun> repaired = RepairRuns(*m_register);
            QCOMPARE(repaired.size(), 1);
            QVERIFY(repaired.first().waits);
            QCOMPARE(m_register->Entries().size(), 1);
        }
        if (hasMountPoint)
            QVERIFY(folder.rmdir("disk"));
        QVERIFY(folder.rename("elsewhere", "disk"));
        QCOMPARE(RepairRuns(*m_register).first().frames, 3);
        CompareFrames(path, RunFormat::Tiff, { 0, 1, 2 });
        QCOMPARE(m_register->Entries().size(), 0);
    }

    void aRepairThatFailedIsTriedAgain()
    {
        WriteAndAbandon(RunFormat::Tiff, 3);
        const QString path = m_folder->filePath("run.tif");
        QDir folder(m_folder->path());
        QVERIFY(folder.rename("run.tif.part", "aside") && folder.mkdir("run.tif.part")); // a file that can't be opened
        QString entry;
        QVERIFY(m_register->Add(path, &entry));
        QVector<RepairedRun> repaired = RepairRuns(*m_register);
        QVERIFY(!repaired.first().fault.isEmpty() && repaired.first().waits);
        QCOMPARE(m_register->Entries().size(), 1);
        QVERIFY(folder.rmdir("run.tif.part") && folder.rename("aside", "run.tif.part"));
        repaired = RepairRuns(*m_register);
        QCOMPARE(repaired.first().fault, QString());
        QCOMPARE(repaired.first().frames, 3);
        QCOMPARE(m_register->Entries().size(), 0);
    }

    void aNameTakenMeanwhileIsNotReplaced()
    {
        WriteAndAbandon(RunFormat::Tiff, 2);
        const QString path = m_folder->filePath("run.tif");
        Put(path, "mine");
        QString entry;
        QVERIFY(m_register->Add(path, &entry));
        const QVector<RepairedRun> repaired = RepairRuns(*m_register);
        QCOMPARE(repaired.first().path, m_folder->filePath("run_2.tif"));
        CompareFrames(repaired.first().path, RunFormat::Tiff, { 0, 1 });
        QCOMPARE(QFileInfo(path).size(), qint64(4));
    }

    void aProgramThatDiedWithItsLastBreathLeavesNothingToDo()
    {
        const QByteArray journal = WriteAndAbandon(RunFormat::Tiff, 2);
        const QString path = m_folder->filePath("run.tif");
        QString entry;
        QVERIFY(m_register->Add(path, &entry));
        QCOMPARE(RepairRuns(*m_register).size(), 1);
        Put(path + ".journal", journal);
        QVERIFY(m_register->Add(path, &entry));
        QCOMPARE(RepairRuns(*m_register).size(), 0);
        QVERIFY(!QFile::exists(path + ".journal"));
        QCOMPARE(m_register->Entries().size(), 0);
        CompareFrames(path, RunFormat::Tiff, { 0, 1 });
    }

    void aRunWithoutAFrameLeavesNothing()
    {
        WriteAndAbandon(RunFormat::Tiff, 0);
        const QString path = m_folder->filePath("run.tif");
        QString entry;
        QVERIFY(m_register->Add(path, &entry));
        const QVector<RepairedRun> repaired = RepairRuns(*m_register);
        QCOMPARE(repaired.first().fault, QString());
        QCOMPARE(repaired.first().frames, 0);
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList());
    }

    void aJournalThatMakesNoSenseIsSaid_data()
    {
        QTest::addColumn<QByteArray>("journal");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("something else") << QByteArray("PNG or whatever it may be");
        QTest::newRow("a header longer than the file") << QByteArray("WBRUN01\n\xff\xff\xff\x7f", 12);
        QTest::newRow("no JSON") << QByteArray("WBRUN01\n\x04\0\0\0hey!", 16);
        const QByteArray size =
            R"({"format":0,"facts":{"frameSize":[2000000000,2000000000],"layout":"Mono16"}})";
        QTest::newRow("gigantic frames")
            << "WBRUN01\n" + QByteArray(1, char(size.size())) + QByteArray(3, '\0') + size;
        const QByteArray huge = R"({"format":1,"facts":{"frameSize":[1048577,4],"layout":"Mono16"}})";
        QTest::newRow("frames beyond any sensor")
            << "WBRUN01\n" + QByteArray(1, char(huge.size())) + QByteArray(3, '\0') + huge;
        const QByteArray format = R"({"format":9,"facts":{"frameSize":[2,2],"layout":"Mono16"}})";
        QTest::newRow("an unknown format")
            << "WBRUN01\n" + QByteArray(1, char(format.size())) + QByteArray(3, '\0') + format;
    }

    void aJournalThatMakesNoSenseIsSaid()
    {
        QFETCH(QByteArray, journal);
        const QString path = m_folder->filePath("run.tif");
        Put(path + ".journal", journal);
        Put(path + ".part", "something");
        QString entry;
        QVERIFY(m_register->Add(path, &entry));
        const QVector<RepairedRun> repaired = RepairRuns(*m_register);
        QCOMPARE(repaired.size(), 1);
        QVERIFY2(repaired.first().fault.contains("run.tif")
                     && repaired.first().fault.contains("makes no sense"),
                 qPrintable(repaired.first().fault));
        QVERIFY(QFile::exists(path + ".part")); // kept for somebody who knows more
    }

    /// A journal may claim frames of a terabyte; the memory for one is not taken.
    void aJournalThatClaimsLargeFramesHoldsNone()
    {
        const QString path = m_folder->filePath("run.fits");
        const QByteArray text = R"({"format":1,"facts":{"frameSize":[1048576,1048576],"layout":"Mono16"}})";
        Put(path + ".journal", "WBRUN01\n" + QByteArray(1, char(text.size())) + QByteArray(3, '\0') + text
                                   + QByteArray(64, 'x'));
        Put(path + ".part", "something");
        QString entry;
        QVERIFY(m_register->Add(path, &entry));
        const QVector<RepairedRun> repaired = RepairRuns(*m_register);
        QCOMPARE(repaired.size(), 1);
        QCOMPARE(repaired.first().frames, 0);
    }

    void aRecordingThatWentMeanwhileIsForgotten()
    {
        QString entry;
        QVERIFY(m_register->Add(m_folder->filePath("gone.tif"), &entry));
        QCOMPARE(RepairRuns(*m_register).size(), 0);
        QCOMPARE(m_register->Entries().size(), 0);
    }

private:
    static void Put(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(path));
    }

    /// The journal of a recording that nobody finishes.
    QByteArray WriteAndAbandon(RunFormat format, int frames)
    {
        const QString path = m_folder->filePath("run." + RunSuffix(format));
        {
            const std::unique_ptr<RunWriter> writer = CreateRunWriter(format, path);
            QString error;
            bool done = writer->Begin(RunSample::Facts(Size, Layout), &error);
            for (int frame = 0; frame < frames; ++frame)
                done = done && writer->Write(RunSample::Frame(Size, Layout, frame), &error);
            if (!done)
                qFatal("%s", qPrintable(error));
        }
        QFile journal(path + ".journal");
        return journal.open(QIODevice::ReadOnly) ? journal.readAll() : QByteArray();
    }

    static QString SummaryOf(const QString &path)
    {
        return QFileInfo(path).path() + '/' + QFileInfo(path).completeBaseName() + ".txt";
    }

    static RunJournal::Content JournalOf(const QString &path)
    {
        RunJournal::Content content;
        QFile::remove(path + ".copy.journal"); // the journal itself is the writer's
        FileFault fault;
        RunJournal journal;
        if (!QFile::copy(path + ".journal", path + ".copy.journal")
            || !journal.TakeOver(path + ".copy", &content, fault))
            qFatal("no journal");
        journal.Remove();
        return content;
    }

    /// Half of the frame, as sectors that did not come to the disk look, or as sectors of something else do.
    void Damage(const QString &path, RunFormat format, int frame, bool isZeroed)
    {
        QFile file(format == RunFormat::Png ? FilesOf(path, format, frame + 1).last() : path + ".part");
        QVERIFY(file.open(QIODevice::ReadWrite));
        const int frameBytes = Size.width() * Size.height() * 2;
        const bool isCube = format != RunFormat::Png;
        const int header = int(file.size() % frameBytes) + (format == RunFormat::Fits ? 3 * frameBytes : 0);
        const int first = isCube ? header + frame * frameBytes : 0;
        const int bytes = isCube ? frameBytes : int(file.size());
        QVERIFY(file.seek(first + bytes / 2));
        const QByteArray damage(bytes / 2, isZeroed ? '\0' : '\x5a');
        QCOMPARE(file.write(damage), qint64(damage.size()));
    }

    QStringList FilesOf(const QString &path, RunFormat format, int frames) const
    {
        if (format != RunFormat::Png)
            return { path };
        QStringList files;
        for (int frame = 1; frame <= frames; ++frame)
            files << m_folder->filePath(QString("run_%1.png").arg(frame, 6, 10, QChar('0')));
        return files;
    }

    void CompareFrames(const QString &path, RunFormat format, int frames)
    {
        QVector<int> all;
        for (int frame = 0; frame < frames; ++frame)
            all << frame;
        CompareFrames(path, format, all);
    }

    /// The numbers are those of the sample's frames.
    void CompareFrames(const QString &path, RunFormat format, const QVector<int> &frames)
    {
        int seen = 0;
        for (const QString &file : FilesOf(path, format, frames.size())) {
            QString error;
            const auto picture = OpenPicture(file, error);
            QVERIFY2(picture, qPrintable(error));
            Picture frame;
            for (int i = 0; i < picture->Info().frames; ++i, ++seen) {
                QVERIFY2(picture->ReadFrame(i, frame, error), qPrintable(error));
                QVERIFY(seen < frames.size());
                const QByteArray expected = RunSample::Samples(Size, Layout, frames[seen]);
                const Picture &samples = frame;
                QVERIFY(samples.ByteCount() == expected.size());
                QVERIFY(std::memcmp(samples.Data(), expected.constData(), size_t(expected.size())) == 0);
            }
        }
        QCOMPARE(seen, frames.size());
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<RunRegister> m_register;
};

GUARDED_TEST_MAIN(RunRepairTest)
#include "runrepairtest.moc"
