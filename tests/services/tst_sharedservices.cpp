// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"

#include "fakecameramainmanager.h"
#include "fakeservices.h"

#include <memory>

/// What service classes do themselves, without an implementation behind them.
class TestSharedServices : public GuardedTest
{
    Q_OBJECT

private slots:
    void AServiceIsFoundWhileItLives()
    {
        auto roi = std::make_unique<FakeROIManager>();
        QCOMPARE(ROIManager::GetInstance(), static_cast<ROIManager *>(roi.get()));
        roi.reset();
        FakeROIManager next;
        QCOMPARE(ROIManager::GetInstance(), static_cast<ROIManager *>(&next));
    }

    void ThereIsACameraOnlyWhileOneIsOpen()
    {
        QVERIFY(!CameraMainManager::GetInstance());
        {
            FakeCameraMainManager camera;
            QCOMPARE(CameraMainManager::GetInstance(), static_cast<CameraMainManager *>(&camera));
        }
        QVERIFY(!CameraMainManager::GetInstance());
    }

    void ImageManagersShareTheProcessingServices()
    {
        FakeAdvancedProcessManager advanced;
        FakeFluorescenceSynthesisManager fluorescence;
        QCOMPARE(ImageManager::GetAdvancedProcessManager(), static_cast<AdvancedProcessManager *>(&advanced));
        QCOMPARE(ImageManager::GetFluorescenceSynthesisManager(),
                 static_cast<FluorescenceSynthesisManager *>(&fluorescence));
    }

    void MeasuringSpeaksToAllManagersThatLive()
    {
        FakeMeasureManager camera;
        auto image = std::make_unique<FakeMeasureManager>();
        CallLog::Clear();

        MeasureManager::Init();
        QCOMPARE(CallLog::Count("MeasureManager::InitMeasuring()"), 2);
        MeasureManager::SetParentWidget(nullptr);
        QCOMPARE(CallLog::Count("MeasureManager::SetDialogParent()"), 2);

        image.reset();
        MeasureManager::Init();
        QCOMPARE(CallLog::Count("MeasureManager::InitMeasuring()"), 3);
    }

    void MeasuringGoesOnWhileOneManagerMeasures()
    {
        QVERIFY(!MeasureManager::IsMeasuring());
        FakeMeasureManager camera;
        auto image = std::make_unique<FakeMeasureManager>();
        QVERIFY(!MeasureManager::IsMeasuring());
        image->measurementInProgress = true;
        QVERIFY(MeasureManager::IsMeasuring());
        image.reset();
        QVERIFY(!MeasureManager::IsMeasuring());
    }

    void SpectrumPageIsPresentInTheSpectrumUseAreaUnlessHidden_data()
    {
        QTest::addColumn<int>("useArea");
        QTest::addColumn<bool>("hidden");
        QTest::addColumn<bool>("present");
        QTest::newRow("spectrum") << 1 << false << true;
        QTest::newRow("spectrum, hidden") << 1 << true << false;
        QTest::newRow("microscopy") << 0 << false << false;
        QTest::newRow("another area") << 2 << false << false;
        QTest::newRow("another area, hidden") << 2 << true << false;
    }

    void SpectrumPageIsPresentInTheSpectrumUseAreaUnlessHidden()
    {
        QFETCH(int, useArea);
        QFETCH(bool, hidden);
        QFETCH(bool, present);
        FakeUseAreaManager manager;
        manager.useAreaType = useArea;
        manager.spectrumHidden = hidden;
        QCOMPARE(manager.IsSpectrumPagePresent(), present);
    }

    void AReportManagerKeepsMousePositionAndScale()
    {
        FakeReportManager report;
        QCOMPARE(report.GetMousePosition(), QPoint(0, 0));
        QCOMPARE(report.GetScaleFactor(), 1.0F);
        report.SetMousePosition(QPoint(12, -3));
        report.SetScaleFactor(0.5F);
        QCOMPARE(report.GetMousePosition(), QPoint(12, -3));
        QCOMPARE(report.GetScaleFactor(), 0.5F);
    }
};

GUARDED_TEST_MAIN(TestSharedServices)
#include "tst_sharedservices.moc"
