// SPDX-License-Identifier: GPL-3.0-or-later
#include <arv.h> // before Qt, whose "signals" GLib uses as a name

#include "guardedtest.h"
#include "openpicture.h"
#include "programrun.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <signal.h>

namespace {
constexpr int MsToWait = 60000;
constexpr const char *GigECameraId = "Aravis-Fake-WB9";
const QStringList NoDisplay{ "DISPLAY=", "QT_QPA_PLATFORM=" };
} // namespace

/// "workbench --record" as it is started from a shell: what it prints, what it leaves and what it ends with.
class RecordProgramTest : public GuardedTest
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
        g_clear_object(&m_camera);
        m_folder.reset();
        EndGuard();
    }

    void recordsWhatIsAskedFor_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QString>("first"); // file of the recording
        QTest::addColumn<int>("frames");    // 0: as many as came
        QTest::newRow("frames") << "run.tif" << QStringList{ "--frames", "8" } << "run.tif" << 8;
        QTest::newRow("a cube by its ending") << "run.fits" << QStringList{ "--frames", "5" } << "run.fits" << 5;
        QTest::newRow("a sequence by its ending") << "run.png" << QStringList{ "--frames", "3" } << "run_000001.png" << 3;
        QTest::newRow("format said") << "run.dat" << QStringList{ "--frames", "2", "--format", "fits" } << "run.dat" << 2;
        QTest::newRow("seconds") << "run.tif" << QStringList{ "--seconds", "4" } << "run.tif" << 0;
        QTest::newRow("frames come first") << "run.tif" << QStringList{ "--frames", "4", "--seconds", "50" } << "run.tif" << 4;
        QTest::newRow("seconds come first") << "run.tif" << QStringList{ "--frames", "9000", "--seconds", "4" } << "run.tif" << 0;
    }

    void recordsWhatIsAskedFor()
    {
        QFETCH(QString, name);
        QFETCH(QStringList, options);
        QFETCH(QString, first);
        QFETCH(int, frames);
        const ProgramOutcome outcome = Record(name, options);
        QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.errors + outcome.output));
        const int saved = Number(outcome.output, "Frames saved: ");
        QVERIFY(saved > 0);
        if (frames > 0)
            QCOMPARE(saved, frames);
        QCOMPARE(Number(outcome.output, "Frames captured: "), saved);
        QVERIFY2(outcome.output.contains("Frames lost: 0\nFrame ids missing: none\n"), qPrintable(outcome.output));
        QString error;
        const auto file = OpenPicture(m_folder->filePath(first), error);
        QVERIFY2(file, qPrintable(error));
        const bool isSequence = first.endsWith(".png");
        QCOMPARE(isSequence ? QDir(m_folder->path()).entryList({ "run_*.png" }).size() : file->Info().frames, saved);
        QVERIFY(QFile::exists(m_folder->filePath("run.txt")));
        QCOMPARE(QDir(m_folder->path()).entryList({ "*.part", "*.journal" }), QStringList());
    }

    void aNameThatIsTakenIsAnError()
    {
        QFile file(m_folder->filePath("run.tif"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("mine") == 4);
        file.close();
        const ProgramOutcome outcome = Record("run.tif", { "--frames", "2" });
        QCOMPARE(outcome.exitCode, 1);
        QCOMPARE(outcome.output, QString());
        QVERIFY2(outcome.errors.contains("run.tif") && outcome.errors.contains("is there already"),
                 qPrintable(outcome.errors));
        QCOMPARE(file.size(), qint64(4));
    }

    void aFolderThatCanNotBeIsAnError_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("reason");
        QTest::newRow("not there") << m_place.path() + "/nowhere/run.tif" << "that folder does not exist";
        // The kernel's own folders refuse new files even to an administrator.
        QTest::newRow("read only") << "/sys/run.tif" << "you may not write in that folder";
    }

    void aFolderThatCanNotBeIsAnError()
    {
        QFETCH(QString, path);
        QFETCH(QString, reason);
        const ProgramOutcome outcome = Record(path, { "--frames", "2" });
        QCOMPARE(outcome.exitCode, 1);
        QCOMPARE(outcome.output, QString());
        QVERIFY2(outcome.errors.contains("run.tif") && outcome.errors.contains(reason), qPrintable(outcome.errors));
    }

    /// Nobody can be asked, so it is said and done all the same.
    void aRunThatDoesNotFitIsSaid()
    {
        const ProgramOutcome outcome = Record("run.tif", { "--frames", "1000000", "--seconds", "4" });
        QVERIFY2(outcome.errors.startsWith("workbench: The run needs 4.2 TB, and the disk has "),
                 qPrintable(outcome.errors));
        QCOMPARE(outcome.exitCode, 0);
        QVERIFY(Number(outcome.output, "Frames saved: ") > 0);
    }

    void lostFramesAreAnError()
    {
        StartGigECamera(0.002); // of the 188 packets of a frame: a third of the frames
        const ProgramOutcome outcome = Record("run.tif", { "--camera", GigECameraId, "--seconds", "3" });
        QCOMPARE(outcome.exitCode, 1);
        QVERIFY2(Number(outcome.output, "Frames lost: ") > 0, qPrintable(outcome.output + outcome.errors));
        QVERIFY2(outcome.output.contains(" arrived incomplete"), qPrintable(outcome.output));
        QString error;
        const auto file = OpenPicture(m_folder->filePath("run.tif"), error);
        QVERIFY2(file, qPrintable(error));
        QCOMPARE(file->Info().frames, Number(outcome.output, "Frames saved: "));
        QCOMPARE(file->Info().frames, Number(outcome.output, "Frames captured: "));
    }

    void whereNoFrameComesIsAnError_data()
    {
        QTest::addColumn<double>("lostShare");
        QTest::addColumn<QString>("error");
        QTest::newRow("nothing comes") << 1.0 << "workbench: No frame came from the camera.\n";
        QTest::newRow("nothing whole comes") << 0.3 << "workbench: No whole frame came from the camera: ";
    }

    void whereNoFrameComesIsAnError()
    {
        QFETCH(double, lostShare);
        QFETCH(QString, error);
        StartGigECamera(lostShare);
        const ProgramOutcome outcome = Record("run.tif", { "--camera", GigECameraId, "--frames", "5", "--seconds", "2" });
        QCOMPARE(outcome.exitCode, 1);
        QCOMPARE(outcome.output, QString());
        QVERIFY2(outcome.errors.startsWith(error), qPrintable(outcome.errors));
        QCOMPARE(QDir(m_folder->path()).entryList({ "run*" }), QStringList());
    }

    void aCameraThatIsLostIsAnErrorAndLeavesItsFrames()
    {
        StartGigECamera(0);
        QProcess program;
        StartProgram(&program, m_folder->path(),
                     { "--record", m_folder->filePath("run.tif"), "--camera", GigECameraId, "--frames", "1000000" }, NoDisplay);
        QVERIFY(WaitForFrames(10, 512 * 512));
        g_clear_object(&m_camera); // pulls the plug
        const ProgramOutcome outcome = WaitForProgram(&program);
        QCOMPARE(outcome.exitCode, 1);
        QVERIFY2(outcome.output.contains("Run: the camera was lost (") && outcome.output.contains(" does not answer)"),
                 qPrintable(outcome.output + outcome.errors));
        QString error;
        const auto file = OpenPicture(m_folder->filePath("run.tif"), error);
        QVERIFY2(file, qPrintable(error));
        QCOMPARE(file->Info().frames, Number(outcome.output, "Frames saved: "));
    }

    void killedInMidRunItLosesNoFrameThatWasWritten_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("part");
        QTest::newRow("TIFF") << "run.tif" << "run.tif.part";
        QTest::newRow("FITS") << "run.fits" << "run.fits.part";
    }

    void killedInMidRunItLosesNoFrameThatWasWritten()
    {
        QFETCH(QString, name);
        QFETCH(QString, part);
        constexpr int FrameBytes = 2048 * 2048; // of the simulated camera
        QProcess program;
        StartProgram(&program, m_folder->path(),
                     { "--record", m_folder->filePath(name), "--frames", "1000000" }, NoDisplay);
        QVERIFY(WaitForFrames(10, FrameBytes, part));
        QCOMPARE(::kill(pid_t(program.processId()), SIGKILL), 0);
        QVERIFY(program.waitForFinished(MsToWait));
        const int written = int(QFileInfo(m_folder->filePath(part)).size() / FrameBytes);

        const ProgramOutcome next = Record("next.tif", { "--frames", "1" });
        QCOMPARE(next.exitCode, 0);
        QVERIFY2(next.errors.contains("A recording that was cut off was repaired: ") && next.errors.contains(name),
                 qPrintable(next.errors));
        QString error;
        const auto file = OpenPicture(m_folder->filePath(name), error);
        QVERIFY2(file, qPrintable(error));
        QVERIFY2(file->Info().frames >= written - 1 && file->Info().frames <= written,
                 qPrintable(QString("%1 of %2").arg(file->Info().frames).arg(written)));
        Picture frame;
        QVERIFY(file->ReadFrame(file->Info().frames - 1, frame, error));
        QCOMPARE(QDir(m_folder->path()).entryList({ "*.part", "*.journal" }), QStringList());
        QCOMPARE(Record("last.tif", { "--frames", "1" }).errors, QString());
    }

private:
    ProgramOutcome Record(const QString &name, const QStringList &options) const
    {
        return RunProgram(m_folder->path(), QStringList{ "--record", QDir(m_folder->path()).filePath(name) } + options,
                          NoDisplay);
    }

    void StartGigECamera(double lostShare)
    {
        m_camera = arv_gv_fake_camera_new("127.0.0.1", "WB9");
        QVERIFY(arv_gv_fake_camera_is_running(m_camera));
        g_object_set(m_camera, "gvsp-lost-ratio", lostShare, nullptr);
    }

    bool WaitForFrames(int frames, int frameBytes, const QString &part = "run.tif.part") const
    {
        return QTest::qWaitFor(
            [&] { return QFileInfo(m_folder->filePath(part)).size() >= qint64(frames) * frameBytes; }, MsToWait);
    }

    /// What stands behind the text.
    static int Number(const QString &output, const QString &text)
    {
        const int place = output.indexOf(text);
        return place < 0 ? -1 : output.mid(place + text.size()).section(QRegularExpression("\\D"), 0, 0).toInt();
    }

    const QTemporaryDir m_place;
    std::unique_ptr<QTemporaryDir> m_folder;
    ArvGvFakeCamera *m_camera = nullptr;
};

GUARDED_TEST_MAIN(RecordProgramTest)
#include "recordprogramtest.moc"
