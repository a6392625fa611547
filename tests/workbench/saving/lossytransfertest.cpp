// SPDX-License-Identifier: GPL-3.0-or-later
#include <arv.h> // before Qt, whose "signals" GLib uses as a name

#include "camerasession.h"
#include "framesaving.h"
#include "guardedtest.h"
#include "openpicture.h"
#include "simulatedsensor.h"
#include "testchartscene.h"

#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

namespace {
constexpr int MsToWait = 60000;
constexpr QSize Size(512, 512);
} // namespace

/// A recording of a camera whose packets get lost on the way: what is saved is whole, and everybody agrees on the rest.
class LossyTransferTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void incompleteFramesAreCountedAndNeverSaved()
    {
        const QTemporaryDir folder;
        SimulatedSensor sensor(std::make_unique<TestChartScene>(), QSize(2048, 2048));
        sensor.Start();
        ArvGvFakeCamera *camera = arv_gv_fake_camera_new("127.0.0.1", "WB8");
        QVERIFY(arv_gv_fake_camera_is_running(camera));
        sensor.Attach(arv_gv_fake_camera_get_fake_camera(camera));
        g_object_set(camera, "gvsp-lost-ratio", 0.002, nullptr);
        CameraSession session;
        QString error;
        QVERIFY2(session.Open("Aravis-Fake-WB8", &error), qPrintable(error));
        QVERIFY(session.SetRegion(QRect(QPoint(0, 0), Size)));

        FrameSaving saving{ RunRegister(folder.filePath("register")) };
        QSignalSpy ended(&saving, SIGNAL(signalRunEnded(RunReceipt)));
        RunOrder order;
        order.facts.frameSize = Size;
        order.facts.layout = session.Format().Layout();
        order.path = folder.filePath("run.tif");
        order.settings.mode = RecordingSettings::Mode::UntilStopped;
        QVERIFY(saving.StartRun(order));
        QVERIFY(session.Start(&saving));
        QTRY_VERIFY_WITH_TIMEOUT(
            saving.Counts().LostAt(LossStage::Transfer) >= 3 && saving.Counts().saved >= 20, MsToWait);
        session.Stop();
        const FrameCounts ledger = session.Ledger().Counts();
        saving.StopRun();
        QVERIFY(ended.wait(MsToWait));
        const RunReceipt receipt = ended.first().first().value<RunReceipt>();
        const FrameCounts &counts = receipt.outcome.counts;

        // The ids from the first saved frame to the last one are saved or lost, and those lost are the gaps.
        QCOMPARE(counts.saved, quint64(receipt.stamps.size()));
        QCOMPARE(counts.saved, counts.captured);
        QCOMPARE(receipt.stamps.last().frameId - receipt.stamps.first().frameId + 1,
                 counts.saved + counts.Lost());
        // The session may have counted more before the first frame and after the last one.
        QVERIFY(ledger.LostAt(LossStage::Transfer) >= counts.LostAt(LossStage::Transfer));
        QVERIFY(ledger.captured >= counts.captured);
        CompareWithTheChart(receipt.files.first(), receipt.stamps.size());

        session.Close();
        QVERIFY(CameraSession::WaitForTeardown(30000));
        g_clear_object(&camera);
    }

private:
    static void CompareWithTheChart(const QString &path, int frames)
    {
        QString error;
        const auto file = OpenPicture(path, error);
        QVERIFY2(file, qPrintable(error));
        QCOMPARE(file->Info().frames, frames);
        Picture picture;
        int wrong = 0;
        for (int i = 0; i < frames; ++i) {
            QVERIFY2(file->ReadFrame(i, picture, error), qPrintable(error));
            const Picture &seen = picture;
            for (int y = 0; y < Size.height(); ++y) {
                for (int x = 0; x < Size.width(); ++x)
                    wrong += seen.Row(y)[x] != TestChartScene::ExpectedValue(x, y, 2048, 2048, 8);
            }
        }
        QCOMPARE(wrong, 0);
    }
};

GUARDED_TEST_MAIN(LossyTransferTest)
#include "lossytransfertest.moc"
