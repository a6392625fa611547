// SPDX-License-Identifier: GPL-3.0-or-later
#include "cameramainmanager.h"
#include "camerasession.h"
#include "framesaving.h"
#include "livepreview.h"
#include "openpicture.h"
#include "recordingscenario.h"
#include "testchartscene.h"

#include <QAction>
#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QFile>

/// What is set at the camera, before a recording and in the middle of it, is what its frames are and its files tell.
class RecordingCameraScenario : public RecordingScenario
{
    Q_OBJECT

private slots:
    void theSizeOfFramesStaysWhileARunGoesOn()
    {
        m_settings.mode = RecordingSettings::Mode::UntilStopped;
        Apply();
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        QTRY_VERIFY_WITH_TIMEOUT(Desk()->Saving()->Counts().saved > 3, MsToWait);
        m_workbench->link.SetRegion(QRect(0, 0, 64, 64));
        QVERIFY2(m_workbench->StatusText().contains("while a recording runs"),
                 qPrintable(m_workbench->StatusText()));
        QVERIFY(!m_workbench->link.Session()->IsSetting());
        QCOMPARE(m_workbench->link.Session()->Format().region, SmallRegion);
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        const RunReceipt receipt = Receipt();
        QCOMPARE(receipt.outcome.end, RunEnd::Stopped);
        QVERIFY2(receipt.IsWhole(), qPrintable(receipt.Text()));
        CompareWithTheScene(receipt, receipt.stamps.size());
        m_workbench->link.SetRegion(QRect(0, 0, 64, 64)); // allowed again
        QTRY_COMPARE(m_workbench->link.Session()->Format().region, QRect(0, 0, 64, 64));
    }

    void exposureSetByHandIsWhatTheFileTells()
    {
        m_workbench->Action("Exposure and Gain…")->trigger();
        auto *panel = m_workbench->window.findChild<QWidget *>("CameraPanel");
        QVERIFY(panel);
        QTRY_VERIFY(panel->isVisible());
        auto *exposure = panel->findChild<QDoubleSpinBox *>("numberExposure");
        exposure->setFocus();
        exposure->selectAll();
        QTest::keyClicks(exposure, "4.5");
        QTest::keyClick(exposure, Qt::Key_Return);
        QTRY_COMPARE(m_workbench->link.Session()->Controls().exposureUs, 4500.0);
        // Beyond the camera's 10 s: taken and shown as the limit.
        exposure->selectAll();
        QTest::keyClicks(exposure, "99999");
        QTest::keyClick(exposure, Qt::Key_Tab);
        QVERIFY(exposure->value() <= 10000.0);
        QTRY_VERIFY(!m_workbench->link.Session()->IsSetting());
        QCOMPARE(m_workbench->link.Session()->Controls().exposureUs, exposure->value() * 1000);
        exposure->setValue(4.5);
        QVERIFY(!panel->findChild<QCheckBox *>("checkAutoExposure")->isEnabled()); // the simulated camera has none
        auto *rate = panel->findChild<QDoubleSpinBox *>("numberFrameRate");
        rate->setValue(1000);
        QTRY_VERIFY(!m_workbench->link.Session()->IsSetting());
        QVERIFY(rate->value() <= 1e6 / 4500 + 0.01); // as the exposure bounds it
        rate->setValue(50);

        m_settings.frames = 3;
        Apply();
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        const RunReceipt receipt = Receipt();
        QCOMPARE(receipt.facts.exposureUs, 4500.0);
        QFile summary(receipt.files.last());
        QVERIFY(summary.open(QIODevice::ReadOnly));
        QVERIFY(summary.readAll().contains("Exposure: 4500 us\n"));
    }

    void binnedFramesAreMeansAndSaySo()
    {
        m_workbench->Action("2 x 2")->trigger();
        QTRY_COMPARE(m_workbench->link.Session()->Format().binning, 2);
        QCOMPARE(m_workbench->link.Session()->Format().region, SmallRegion);
        QTRY_COMPARE(m_workbench->services.Preview()->ShownFrame().width, SmallRegion.width() / 2);
        QVERIFY(CameraMainManager::GetInstance()->IsAnyBinOpen());
        m_settings.frames = 2;
        Apply();
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        const RunReceipt receipt = Receipt();
        QVERIFY2(receipt.IsWhole(), qPrintable(receipt.Text()));
        QCOMPARE(receipt.facts.binning, QSize(2, 2));
        QCOMPARE(receipt.facts.region, SmallRegion);
        QString error;
        const auto file = OpenPicture(receipt.files.first(), error);
        QVERIFY2(file, qPrintable(error));
        Picture picture;
        QVERIFY(file->ReadFrame(1, picture, error));
        QCOMPARE(picture.Size(), SmallRegion.size() / 2);
        const Picture &seen = picture;
        for (int y = 0; y < picture.Height(); ++y) {
            for (int x = 0; x < picture.Width(); ++x) {
                int sum = 0;
                for (const QPoint &part : { QPoint(0, 0), QPoint(1, 0), QPoint(0, 1), QPoint(1, 1) }) {
                    const QPoint place = SmallRegion.topLeft() + QPoint(2 * x, 2 * y) + part;
                    sum += TestChartScene::ExpectedValue(place.x(), place.y(), 2048, 2048, 8);
                }
                QCOMPARE(int(seen.Row(y)[x]), (sum + 2) / 4);
            }
        }
        m_workbench->Action("1 x 1")->trigger();
        QTRY_COMPARE(m_workbench->services.Preview()->ShownFrame().width, SmallRegion.width());
        QVERIFY(!CameraMainManager::GetInstance()->IsAnyBinOpen());
    }

    void exposureChangedInMidRunIsTold()
    {
        m_settings.mode = RecordingSettings::Mode::UntilStopped;
        Apply();
        m_workbench->link.Session()->SetExposureUs(4000);
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        QTRY_VERIFY_WITH_TIMEOUT(Desk()->Saving()->Counts().saved > 3, MsToWait);
        m_workbench->link.Session()->SetExposureUs(9000);
        const quint64 before = Desk()->Saving()->Counts().saved;
        QTRY_VERIFY_WITH_TIMEOUT(Desk()->Saving()->Counts().saved > before + 5, MsToWait);
        QTest::keyClick(&m_workbench->window, Qt::Key_F10);
        const RunReceipt receipt = Receipt();
        QVERIFY2(receipt.IsWhole(), qPrintable(receipt.Text()));
        QCOMPARE(receipt.facts.exposureUs, 4000.0);
        QCOMPARE(receipt.facts.changes.last().exposureUs, 9000.0);
        QVERIFY(receipt.facts.changes.last().frame > 3 && receipt.facts.changes.last().frame < receipt.stamps.size());
        QFile summary(receipt.files.last());
        QVERIFY(summary.open(QIODevice::ReadOnly));
        QVERIFY(summary.readAll().contains("Exposure: 4000 to 9000 us\n"));
    }
};

GUARDED_TEST_MAIN(RecordingCameraScenario)
#include "tst_recordingcamera.moc"
