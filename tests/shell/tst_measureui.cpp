// SPDX-License-Identifier: GPL-3.0-or-later
#include "measureui.h"
#include "globalnotify.h"
#include "guardedtest.h"
#include "panelbench.h"
#include "viewcodes.h"

namespace {

const QList<int> measureIds{ 7, 8, 13, 64, 9, 11, 21, 22, 23 };

} // namespace

/// The panels of measuring, of reports and of spectra, and the pages below that they bring to the front.
class MeasureUITest : public GuardedTest
{
    Q_OBJECT

private slots:
    void measureConstruction();
    void measureLoadsThreeFolders();
    void measureUpdate_data();
    void measureUpdate();
    void measureUpdateSignals();
    void measureRaisesBottomPages_data();
    void measureRaisesBottomPages();
    void measureIgnoresOtherNotifications();
    void measureDetachesWhenItGoes();
};

void MeasureUITest::measureConstruction()
{
    Bench<MeasureUI> bench;
    QVERIFY(CallLog::Count("MeasureManager::InitMeasuring()") > 0);
    QCOMPARE(MissingWires({
                 { &bench.services.uiConfig, SIGNAL(signalUpdateMeasureControlUI()), bench.manager.data(),
                   SLOT(slotUpdateMeasureControlUI()) },
                 { &bench.services.measureConfig, SIGNAL(signalMeasureGraphicsListChanged()),
                   bench.manager.data(), SLOT(slotMeasureGraphicsListChanged()) },
                 { &bench.services.autoCount, SIGNAL(signalAutoCountDataChanged()), bench.manager.data(),
                   SLOT(slotRaiseAutoCountUI()) },
             }),
             QStringList());
}

void MeasureUITest::measureLoadsThreeFolders()
{
    Bench<MeasureUI> bench;
    bench.manager->LoadPluginUI(&bench.window);
    for (int id : measureIds)
        QVERIFY2(bench.Panel(id), qPrintable(QString::number(id)));
    QCOMPARE(TakePanelUpdates().size(), measureIds.size()); // once, with the last folder
}

void MeasureUITest::measureUpdate_data()
{
    QTest::addColumn<bool>("measureEnabled");
    QTest::addColumn<bool>("cameraReport");
    QTest::addColumn<bool>("imageEnabled");
    QTest::addColumn<bool>("is32Bit");
    QTest::addColumn<QSet<int>>("disabled");
    const QSet<int> all(measureIds.begin(), measureIds.end());
    const QSet<int> none;
    const QSet<int> needImage{ 13, 64 };
    QTest::newRow("camera") << true << true << false << false << none;
    QTest::newRow("camera, no measuring") << false << true << true << false << all;
    QTest::newRow("image") << true << false << true << false << none;
    QTest::newRow("image, 32 bit") << true << false << true << true << needImage;
    QTest::newRow("no image") << true << false << false << false << needImage;
    QTest::newRow("image, no measuring") << false << false << true << false << all - needImage;
}

void MeasureUITest::measureUpdate()
{
    QFETCH(bool, measureEnabled);
    QFETCH(bool, cameraReport);
    QFETCH(bool, imageEnabled);
    QFETCH(bool, is32Bit);
    Bench<MeasureUI> bench;
    bench.Load();
    bench.services.global.measureEnabled = measureEnabled;
    bench.services.global.imageEnabled = imageEnabled;
    bench.services.active.is32BitMat = is32Bit;
    if (!cameraReport)
        bench.services.global.reportManager = &bench.services.main;
    bench.manager->ActivateControlUI();
    // Loaded folder by folder, in the order of their file names.
    QCOMPARE(TakePanelUpdates(), QVector<int>({ 11, 9, 8, 7, 64, 23, 22, 21, 13 }));
    QTEST(bench.Disabled(measureIds), "disabled");
}

void MeasureUITest::measureUpdateSignals()
{
    Bench<MeasureUI> bench;
    bench.Load();
    emit bench.services.uiConfig.signalUpdateMeasureControlUI();
    QCOMPARE(TakePanelUpdates().size(), 0); // queued
    QCoreApplication::processEvents();
    QCOMPARE(TakePanelUpdates().size(), measureIds.size());
    emit bench.services.measureConfig.signalMeasureGraphicsListChanged();
    QCOMPARE(TakePanelUpdates().size(), measureIds.size());
}

void MeasureUITest::measureRaisesBottomPages_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("text");
    QTest::newRow("12") << 12 << "Calibration Table";
    QTest::newRow("15") << 15 << "Class Counting";
    QTest::newRow("counting") << -1 << "Automatic Counting Table";
}

void MeasureUITest::measureRaisesBottomPages()
{
    QFETCH(int, id);
    Bench<MeasureUI> bench;
    bench.Load();
    QTabWidget bottom;
    bottom.addTab(new QWidget, "File Preview");
    bench.manager->SetBottomControlUIPanel(&bottom);
    UIManagerBase::UpdateBottomTabWidget(ImageControlPage); // all three pages belong to it
    QCOMPARE(bottom.currentIndex(), 0);
    if (id >= 0)
        GlobalNotifyObserver(id, nullptr);
    else
        emit bench.services.autoCount.signalAutoCountDataChanged();
    QTEST(bottom.tabText(bottom.currentIndex()), "text");
    bench.manager.reset();
}

void MeasureUITest::measureIgnoresOtherNotifications()
{
    Bench<MeasureUI> bench;
    bench.Load();
    QTabWidget bottom;
    bottom.addTab(new QWidget, "File Preview");
    bench.manager->SetBottomControlUIPanel(&bottom);
    for (int id : { 0, 11, 13, 14, 16, 64, 65, 71, 90 })
        GlobalNotifyObserver(id, nullptr);
    QCOMPARE(bottom.currentIndex(), 0);
    bench.manager.reset();
}

void MeasureUITest::measureDetachesWhenItGoes()
{
    Bench<MeasureUI> bench;
    bench.Load();
    QTabWidget bottom;
    bottom.addTab(new QWidget, "File Preview");
    auto *calibration = new QWidget;
    bench.manager->SetBottomControlUIPanel(&bottom);
    bench.manager.reset();
    bottom.addTab(calibration, "Calibration Table");
    bottom.setCurrentIndex(0);
    GlobalNotifyObserver(12, nullptr);
    QCOMPARE(bottom.currentIndex(), 0);
}

GUARDED_TEST_MAIN(MeasureUITest)
#include "tst_measureui.moc"
