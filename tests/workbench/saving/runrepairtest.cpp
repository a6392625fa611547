// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "openpicture.h"
#include "runregister.h"
#include "runsample.h"
#include "runsummary.h"
#include "runwriter.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>

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
        QFile summary(RunSummaryPath(path));
        QVERIFY(summary.open(QIODevice::ReadOnly));
        QVERIFY(summary.readAll().contains("repaired later"));
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
            QFile::remove(RunSummaryPath(path));
        }
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

    void CompareFrames(const QString &path, RunFormat format, int frames)
    {
        QStringList files{ path };
        if (format == RunFormat::Png) {
            files.clear();
            for (int frame = 1; frame <= frames; ++frame)
                files << m_folder->filePath(QString("run_%1.png").arg(frame, 6, 10, QChar('0')));
        }
        int seen = 0;
        for (const QString &file : files) {
            QString error;
            const auto picture = OpenPicture(file, error);
            QVERIFY2(picture, qPrintable(error));
            Picture frame;
            for (int i = 0; i < picture->Info().frames; ++i, ++seen) {
                QVERIFY2(picture->ReadFrame(i, frame, error), qPrintable(error));
                const QByteArray expected = RunSample::Samples(Size, Layout, seen);
                const Picture &samples = frame;
                QVERIFY(samples.ByteCount() == expected.size());
                QVERIFY(std::memcmp(samples.Data(), expected.constData(), size_t(expected.size())) == 0);
            }
        }
        QCOMPARE(seen, frames);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<RunRegister> m_register;
};

GUARDED_TEST_MAIN(RunRepairTest)
#include "runrepairtest.moc"
