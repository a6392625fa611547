// SPDX-License-Identifier: GPL-3.0-or-later
#include "cameraui.h"
#include "camerastackedwidget.h"
#include "gpudrawframe.h"
#include "guardedtest.h"
#include "panelbench.h"

#include <QDoubleSpinBox>
#include <QPointer>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

QDoubleSpinBox *AddField(QWidget *panel)
{
    auto *field = new QDoubleSpinBox(panel);
    field->show();
    return field;
}

const QList<int> cameraIds{ 0, 1, 2, 3, 20 };

} // namespace

/// The control panels of the camera: their page, their tabs, and the centre that goes with them.
class CameraUITest : public GuardedTest
{
    Q_OBJECT

private slots:
    void cameraPage();
    void cameraPageTwice();
    void cameraTabs_data();
    void cameraTabs();
    void typingGoesOnWhileTheTabsStand();
    void keyboardStaysWhereItIsWhenTheTabsChange();
    void cameraTabsStayWithoutCamera();
    void cameraTabIsStored();
    void cameraUpdate();
    void cameraPanelsDisabledWithoutCamera();
    void cameraUpdateIsQueued();
    void cameraCentre();
    void captureBarNotPlacedIsNotLost();
    void captureBarComesWithEveryPage();
};

void CameraUITest::cameraPage()
{
    Bench<CameraUI> bench;
    bench.Load();
    QWidget *page = bench.manager->GetControlScrollArea();
    QVERIFY(!page->parent());
    auto *column = qobject_cast<QVBoxLayout *>(page->layout());
    QVERIFY(column);
    QCOMPARE(column->contentsMargins(), QMargins(0, 10, 0, 0));
    QCOMPARE(column->count(), 2);
    QCOMPARE(column->itemAt(0)->widget()->objectName(), QString("CapturePreviewUI"));
    QTabWidget *tabs = bench.Place(page);
    QCOMPARE(column->itemAt(1)->widget(), static_cast<QWidget *>(tabs));
    QCOMPARE(TabTexts(tabs), QStringList({ "Camera", "Adjustment", "Hardware", "Acquisition" }));
    for (int i = 0; i < 4; ++i)
        QVERIFY(tabs->widget(i)->isAncestorOf(bench.Panel(i)));
    QVERIFY(!TakePanelUpdates().isEmpty());
}

void CameraUITest::cameraPageTwice()
{
    Bench<CameraUI> bench;
    bench.Load();
    FakeCameraMainManager camera;
    QTabWidget *first = bench.Place(bench.manager->GetControlScrollArea());
    UIConfigManager::GetInstance()->SetCameraUIIndex(2);
    CallLog::Clear();
    QTabWidget *second = bench.Place(bench.manager->GetControlScrollArea());
    QVERIFY(first != second);
    QVERIFY(CallLog::Calls().filter("SetCameraUIIndex").isEmpty()); // though the first one lost its panels
    QCOMPARE(second->currentIndex(), 2);
    // The last one is kept up to date.
    second->setStyleSheet("");
    first->setStyleSheet("");
    bench.manager->slotUpdateUI();
    QVERIFY(first->styleSheet().isEmpty());
    QVERIFY(!second->styleSheet().isEmpty());
}

void CameraUITest::cameraTabs_data()
{
    QTest::addColumn<bool>("hardware");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<int>("width");
    QTest::newRow("with hardware settings")
        << true << QStringList{ "Camera", "Adjustment", "Hardware", "Acquisition" } << 93;
    QTest::newRow("without") << false << QStringList{ "Camera", "Adjustment", "Acquisition" } << 124;
}

void CameraUITest::cameraTabs()
{
    QFETCH(bool, hardware);
    QFETCH(QStringList, texts);
    QFETCH(int, width);
    Bench<CameraUI> bench;
    bench.Load();
    FakeCameraMainManager camera;
    camera.hardwareSettings = !hardware;
    bench.services.uiConfig.cameraUIIndex = 2;
    QTabWidget *tabs = bench.Place(bench.manager->GetControlScrollArea());
    camera.hardwareSettings = hardware;
    CallLog::Clear();
    for (int round = 0; round < 3; ++round)
        bench.manager->slotUpdateUI();
    QCOMPARE(TabTexts(tabs), texts);
    QCOMPARE(tabs->styleSheet(),
             QString("QTabBar::tab{ height: 25; width: %1; border-right: 2px solid white;}").arg(width));
    QCOMPARE(tabs->currentIndex(), 2);
    QVERIFY(tabs->widget(texts.size() - 1)->isAncestorOf(bench.Panel(3)));
    QCOMPARE(tabs->widget(2)->isAncestorOf(bench.Panel(2)), hardware);
    // Rebuilding is no choice of the user's.
    for (const QString &call : CallLog::Calls())
        QVERIFY2(!call.contains("SetCameraUIIndex"), qPrintable(call));
}

void CameraUITest::typingGoesOnWhileTheTabsStand()
{
    Bench<CameraUI> bench;
    bench.Load();
    FakeCameraMainManager camera;
    camera.hardwareSettings = true;
    bench.services.uiConfig.cameraUIIndex = 3;
    bench.Place(bench.manager->GetControlScrollArea());
    auto *field = AddField(bench.Panel(3));
    bench.window.show();
    bench.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&bench.window));
    field->setFocus();
    QTest::keyClick(field, Qt::Key_7);
    QSignalSpy finished(field, &QDoubleSpinBox::editingFinished);
    bench.manager->slotUpdateUI();
    QVERIFY(field->hasFocus());
    QCOMPARE(finished.count(), 0); // half a number is none
}

void CameraUITest::keyboardStaysWhereItIsWhenTheTabsChange()
{
    Bench<CameraUI> bench;
    bench.Load();
    FakeCameraMainManager camera;
    camera.hardwareSettings = false;
    bench.services.uiConfig.cameraUIIndex = 2;
    QTabWidget *tabs = bench.Place(bench.manager->GetControlScrollArea());
    auto *field = AddField(bench.Panel(3));
    bench.window.show();
    bench.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&bench.window));
    field->setFocus();
    camera.hardwareSettings = true;
    bench.services.uiConfig.cameraUIIndex = 3;
    bench.manager->slotUpdateUI();
    QCOMPARE(tabs->count(), 4);
    QVERIFY(field->hasFocus());
    // What is out of sight does not get it.
    bench.services.uiConfig.cameraUIIndex = 0;
    camera.hardwareSettings = false;
    bench.manager->slotUpdateUI();
    QVERIFY(!field->isVisible());
    QVERIFY(!field->hasFocus());
}

void CameraUITest::cameraTabsStayWithoutCamera()
{
    Bench<CameraUI> bench;
    bench.Load();
    QTabWidget *tabs = bench.Place(bench.manager->GetControlScrollArea());
    QCOMPARE(tabs->count(), 4);
    QVERIFY(tabs->styleSheet().isEmpty());
}

void CameraUITest::cameraTabIsStored()
{
    Bench<CameraUI> bench;
    QTabWidget *tabs = bench.Place(bench.manager->GetControlScrollArea());
    CallLog::Clear();
    tabs->setCurrentIndex(3);
    QCOMPARE(CallLog::Calls(), QStringList("UIConfigManager::SetCameraUIIndex(3)"));
}

void CameraUITest::cameraUpdate()
{
    Bench<CameraUI> bench;
    bench.Load();
    bench.manager->CreateCenterWidget(&bench.window);
    QWidget *capture = bench.Place(bench.manager->GetControlScrollArea())->parentWidget();
    TakePanelUpdates();
    CallLog::Clear();
    FakeCameraMainManager camera;
    bench.manager->slotUpdateUI();
    // Loaded in the order of their file names: 0, 1, 2, 20, 3.
    QCOMPARE(TakePanelUpdates(), QVector<int>({ 3, 20, 2, 1, 0 }));
    QVERIFY(capture->findChild<QWidget *>("CapturePreviewUI")->isEnabled());
    QVERIFY(bench.manager->GetImageStack()->GetMainFrame()->isEnabled());
    QCOMPARE(CallLog::Calls(), QStringList("CameraConfigManager::UpdateGraphicsRegionItem()"));
}

void CameraUITest::cameraPanelsDisabledWithoutCamera()
{
    Bench<CameraUI> bench;
    bench.Load();
    bench.manager->slotUpdateUI();
    QCOMPARE(bench.Disabled(cameraIds), QSet<int>(cameraIds.begin(), cameraIds.end()));
    FakeCameraMainManager camera;
    bench.manager->slotUpdateUI();
    QCOMPARE(bench.Disabled(cameraIds), QSet<int>());
}

void CameraUITest::cameraUpdateIsQueued()
{
    Bench<CameraUI> bench;
    bench.Load();
    emit bench.services.uiConfig.signalUpdateCameraControlUI();
    QCOMPARE(TakePanelUpdates().size(), 0);
    QCoreApplication::processEvents();
    QCOMPARE(TakePanelUpdates().size(), cameraIds.size());
}

void CameraUITest::cameraCentre()
{
    Bench<CameraUI> bench;
    QVERIFY(!bench.manager->GetImageStack());
    QStackedWidget *first = bench.manager->CreateCenterWidget(&bench.window);
    CameraStackedWidget *stack = bench.manager->GetImageStack();
    QCOMPARE(first->count(), 2);
    QCOMPARE(first->widget(0), static_cast<QWidget *>(stack));
    QVERIFY(first->widget(1)->inherits("CameraSpectrumStackedWidget"));
    QStackedWidget *second = bench.manager->CreateCenterWidget(&bench.window);
    QVERIFY(second != first);
    QCOMPARE(bench.manager->GetImageStack(), stack);
    QCOMPARE(second->widget(0), static_cast<QWidget *>(stack));
    QCOMPARE(second->count(), 2);
}

void CameraUITest::captureBarNotPlacedIsNotLost()
{
    Bench<CameraUI> bench;
    QPointer<QWidget> bar;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == "CapturePreviewUI")
            bar = widget;
    }
    QVERIFY(bar);
    bench.manager.reset();
    QVERIFY(!bar);
}

void CameraUITest::captureBarComesWithEveryPage()
{
    Bench<CameraUI> bench;
    delete bench.manager->GetControlScrollArea();
    const QScopedPointer<QWidget> page(bench.manager->GetControlScrollArea());
    auto *bar = page->findChild<QWidget *>("CapturePreviewUI");
    QVERIFY(bar);
    QCOMPARE(page->layout()->itemAt(0)->widget(), bar);
    QVERIFY(!bar->isEnabled());
    FakeCameraMainManager camera;
    bench.manager->slotUpdateUI();
    QVERIFY(bar->isEnabled());
}

GUARDED_TEST_MAIN(CameraUITest)
#include "tst_cameraui.moc"
