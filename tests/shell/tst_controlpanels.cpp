// SPDX-License-Identifier: GPL-3.0-or-later
#include "cameraui.h"
#include "imageui.h"
#include "measureui.h"

#include "camerastackedwidget.h"
#include "globalnotify.h"
#include "gpudrawframe.h"
#include "guardedtest.h"
#include "imagenavigateui.h"
#include "imagestackedwidget.h"
#include "multiimagewidget.h"
#include "shellfixture.h"
#include "viewcodes.h"

#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

/// Services, the tests' panels and a window around one manager.
template <class Manager>
struct Bench
{
    Bench()
    {
        ShellHost::UsePanels(ShellHost::WithPanels);
        manager.reset(new Manager);
    }

    void Load()
    {
        manager->LoadPluginUI(&window);
        TakePanelUpdates();
    }
    QWidget *Panel(int id) const { return window.findChild<QWidget *>(QString("panel%1").arg(id)); }
    QSet<int> Disabled(const QList<int> &ids) const
    {
        QSet<int> disabled;
        for (int id : ids) {
            if (!Panel(id)->isEnabledTo(Panel(id)->parentWidget()))
                disabled << id;
        }
        return disabled;
    }
    /// A control page, placed in the window like the left stack does.
    QTabWidget *Place(QWidget *page)
    {
        page->setParent(&window);
        return page->findChild<QTabWidget *>();
    }

    DisplayScale scale{ 1.0 };
    ShellServices services;
    QWidget window;
    QScopedPointer<Manager> manager;
};

QDoubleSpinBox *AddField(QWidget *panel)
{
    auto *field = new QDoubleSpinBox(panel);
    field->show();
    return field;
}

const QList<int> cameraIds{ 0, 1, 2, 3, 20 };
const QList<int> imageIds{ 4, 5, 6 };
const QList<int> measureIds{ 7, 8, 13, 64, 9, 11, 21, 22, 23 };

} // namespace

class ControlPanelsTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void slotsInOrder();
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
    void displayModeChoosesPage();
    void imagePage();
    void imagePageTwice();
    void imageTabIsStored();
    void imageUpdate_data();
    void imageUpdate();
    void imagePanelsRestWhileCounting();
    void imageCentreDisabledWithoutImages_data();
    void imageCentreDisabledWithoutImages();
    void imageCentre();
    void measureConstruction();
    void measureLoadsThreeFolders();
    void measureUpdate_data();
    void measureUpdate();
    void measureUpdateSignals();
    void measureRaisesBottomPages_data();
    void measureRaisesBottomPages();
    void measureIgnoresOtherNotifications();
    void measureDetachesWhenItGoes();
    void panelThatFailsLeavesTheOthers();
};

void ControlPanelsTest::slotsInOrder()
{
    QCOMPARE(OwnMethods(CameraUI::staticMetaObject),
             QStringList({ "slotCameraTabWidgetCurrentChanged(int)", "slotUpdateUI()" }));
    QCOMPARE(OwnMethods(ImageUI::staticMetaObject),
             QStringList({ "slotImageTabWidgetCurrentChanged(int)", "slotUpdateImageControlUI()" }));
    QCOMPARE(OwnMethods(MeasureUI::staticMetaObject),
             QStringList({ "slotUpdateMeasureControlUI()", "slotMeasureGraphicsListChanged()",
                           "slotRaiseAutoCountUI()" }));
}

void ControlPanelsTest::cameraPage()
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

void ControlPanelsTest::cameraPageTwice()
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

void ControlPanelsTest::cameraTabs_data()
{
    QTest::addColumn<bool>("hardware");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<int>("width");
    QTest::newRow("with hardware settings")
        << true << QStringList{ "Camera", "Adjustment", "Hardware", "Acquisition" } << 93;
    QTest::newRow("without") << false << QStringList{ "Camera", "Adjustment", "Acquisition" } << 124;
}

void ControlPanelsTest::cameraTabs()
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

void ControlPanelsTest::typingGoesOnWhileTheTabsStand()
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

void ControlPanelsTest::keyboardStaysWhereItIsWhenTheTabsChange()
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

void ControlPanelsTest::cameraTabsStayWithoutCamera()
{
    Bench<CameraUI> bench;
    bench.Load();
    QTabWidget *tabs = bench.Place(bench.manager->GetControlScrollArea());
    QCOMPARE(tabs->count(), 4);
    QVERIFY(tabs->styleSheet().isEmpty());
}

void ControlPanelsTest::cameraTabIsStored()
{
    Bench<CameraUI> bench;
    QTabWidget *tabs = bench.Place(bench.manager->GetControlScrollArea());
    CallLog::Clear();
    tabs->setCurrentIndex(3);
    QCOMPARE(CallLog::Calls(), QStringList("UIConfigManager::SetCameraUIIndex(3)"));
}

void ControlPanelsTest::cameraUpdate()
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

void ControlPanelsTest::cameraPanelsDisabledWithoutCamera()
{
    Bench<CameraUI> bench;
    bench.Load();
    bench.manager->slotUpdateUI();
    QCOMPARE(bench.Disabled(cameraIds), QSet<int>(cameraIds.begin(), cameraIds.end()));
    FakeCameraMainManager camera;
    bench.manager->slotUpdateUI();
    QCOMPARE(bench.Disabled(cameraIds), QSet<int>());
}

void ControlPanelsTest::cameraUpdateIsQueued()
{
    Bench<CameraUI> bench;
    bench.Load();
    emit bench.services.uiConfig.signalUpdateCameraControlUI();
    QCOMPARE(TakePanelUpdates().size(), 0);
    QCoreApplication::processEvents();
    QCOMPARE(TakePanelUpdates().size(), cameraIds.size());
}

void ControlPanelsTest::cameraCentre()
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

void ControlPanelsTest::captureBarNotPlacedIsNotLost()
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

void ControlPanelsTest::captureBarComesWithEveryPage()
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

void ControlPanelsTest::displayModeChoosesPage()
{
    Bench<CameraUI> cameraBench;
    cameraBench.manager->OnDisplayModeChange(); // nothing is built yet
    QStackedWidget *camera = cameraBench.manager->CreateCenterWidget(&cameraBench.window);
    QScopedPointer<ImageUI> imageUI(new ImageUI);
    imageUI->OnDisplayModeChange();
    QWidget *wrapper = imageUI->CreateCenterWidget(&cameraBench.window);
    auto *image = qobject_cast<QStackedWidget *>(imageUI->GetImageStack()->parentWidget());
    QVERIFY(wrapper->isAncestorOf(image));
    cameraBench.services.spectrumUI.displayMode2D = true;
    for (int mode : { 0, 1, 4, 0 }) {
        cameraBench.services.displayModeUI.currentDisplayMode = mode;
        cameraBench.manager->OnDisplayModeChange();
        imageUI->OnDisplayModeChange();
        QCOMPARE(camera->currentIndex(), mode ? 1 : 0);
        QCOMPARE(image->currentIndex(), mode ? 1 : 0);
        QCOMPARE(qobject_cast<QStackedWidget *>(camera->widget(1))->currentIndex(), 1);
        QCOMPARE(qobject_cast<QStackedWidget *>(image->widget(1))->currentIndex(), 1);
    }
}

void ControlPanelsTest::imagePage()
{
    Bench<ImageUI> bench;
    bench.Load();
    bench.services.uiConfig.leftUIIndex = 1;
    CallLog::Clear();
    QWidget *page = bench.manager->GetControlScrollArea();
    QVERIFY(!page->parent());
    auto *column = qobject_cast<QVBoxLayout *>(page->layout());
    QVERIFY(column);
    QCOMPARE(column->contentsMargins(), QMargins(0, 10, 0, 0));
    QVERIFY(qobject_cast<ImageNavigateUI *>(column->itemAt(0)->widget()));
    QTabWidget *tabs = bench.Place(page);
    QCOMPARE(column->itemAt(1)->widget(), static_cast<QWidget *>(tabs));
    QCOMPARE(TabTexts(tabs), QStringList({ "Adjustment", "Process", "Automatic Counting" }));
    QCOMPARE(tabs->currentIndex(), 1);
    QCOMPARE(CallLog::Calls(), QStringList()); // restoring is no choice of the user's
    for (int i = 0; i < 3; ++i)
        QVERIFY(tabs->widget(i)->isAncestorOf(bench.Panel(4 + i)));
}

void ControlPanelsTest::imagePageTwice()
{
    Bench<ImageUI> bench;
    bench.Load();
    bench.services.uiConfig.leftUIIndex = 2;
    QWidget *firstPage = bench.manager->GetControlScrollArea();
    QTabWidget *first = bench.Place(firstPage);
    CallLog::Clear();
    QWidget *secondPage = bench.manager->GetControlScrollArea();
    QTabWidget *second = bench.Place(secondPage);
    QVERIFY(first != second && firstPage != secondPage);
    QCOMPARE(CallLog::Calls(), QStringList()); // though the first one lost its panels
    QCOMPARE(TabTexts(second), QStringList({ "Adjustment", "Process", "Automatic Counting" }));
    QCOMPARE(second->currentIndex(), 2);
    for (int i = 0; i < 3; ++i)
        QVERIFY(second->widget(i)->isAncestorOf(bench.Panel(4 + i)));
    // Each has a bar of its own; the last one is kept up to date.
    auto *firstBar = firstPage->findChild<ImageNavigateUI *>();
    auto *secondBar = secondPage->findChild<ImageNavigateUI *>();
    QVERIFY(firstBar && secondBar && firstBar != secondBar);
    FakeCameraMainManager camera;
    emit bench.services.uiConfig.signalUpdateImageControlUI();
    QVERIFY(secondBar->findChild<QPushButton *>("pushButtonCamera")->isEnabled());
    second->setCurrentIndex(1);
    first->addTab(new QWidget, "Other");
    QCOMPARE(CallLog::Calls(), QStringList("UIConfigManager::SetLeftUIIndex(1)"));
}

void ControlPanelsTest::imageTabIsStored()
{
    Bench<ImageUI> bench;
    QTabWidget *tabs = bench.Place(bench.manager->GetControlScrollArea());
    CallLog::Clear();
    tabs->setCurrentIndex(2);
    QCOMPARE(CallLog::Calls(), QStringList("UIConfigManager::SetLeftUIIndex(2)"));
}

void ControlPanelsTest::imageUpdate_data()
{
    QTest::addColumn<bool>("imageEnabled");
    QTest::addColumn<bool>("is32Bit");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("image") << true << false << true;
    QTest::newRow("32 bit") << true << true << false;
    QTest::newRow("none") << false << false << false;
}

void ControlPanelsTest::imageUpdate()
{
    QFETCH(bool, imageEnabled);
    QFETCH(bool, is32Bit);
    QFETCH(bool, enabled);
    Bench<ImageUI> bench;
    bench.Load();
    QWidget *page = bench.Place(bench.manager->GetControlScrollArea())->parentWidget();
    auto *back = page->findChild<QPushButton *>("pushButtonCamera");
    FakeCameraMainManager camera;
    bench.services.global.imageEnabled = imageEnabled;
    bench.services.active.is32BitMat = is32Bit;
    TakePanelUpdates();
    QVERIFY(!back->isEnabled());
    emit bench.services.uiConfig.signalUpdateImageControlUI();
    QCOMPARE(TakePanelUpdates(), QVector<int>({ 6, 5, 4 }));
    QCOMPARE(bench.Disabled(imageIds), enabled ? QSet<int>() : QSet<int>({ 4, 5, 6 }));
    QVERIFY(back->isEnabled());
}

void ControlPanelsTest::imagePanelsRestWhileCounting()
{
    Bench<ImageUI> bench;
    bench.Load();
    bench.manager->CreateCenterWidget(&bench.window);
    bench.manager->slotUpdateImageControlUI();
    QCOMPARE(bench.Disabled(imageIds), QSet<int>({ 4, 5, 6 }));
    TakePanelUpdates();
    bench.services.autoCount.counting = true;
    bench.services.global.imageEnabled = true;
    bench.services.active.senImage = true;
    bench.manager->slotUpdateImageControlUI();
    QCOMPARE(TakePanelUpdates(), QVector<int>());
    QCOMPARE(bench.Disabled(imageIds), QSet<int>({ 4, 5, 6 }));
    // The page's own bars are refreshed all the same.
    QVERIFY(!bench.manager->GetImageStack()->findChild<QWidget *>("pushButtonImageInfo")->isHidden());
}

void ControlPanelsTest::imageCentreDisabledWithoutImages_data()
{
    QTest::addColumn<bool>("mainOpen");
    QTest::addColumn<bool>("compareOpen");
    QTest::newRow("none") << false << false;
    QTest::newRow("main") << true << false;
    QTest::newRow("compare") << false << true;
    QTest::newRow("both") << true << true;
}

void ControlPanelsTest::imageCentreDisabledWithoutImages()
{
    QFETCH(bool, mainOpen);
    QFETCH(bool, compareOpen);
    Bench<ImageUI> bench;
    bench.manager->CreateCenterWidget(&bench.window);
    bench.services.main.nonImage = !mainOpen;
    bench.services.compare.nonImage = !compareOpen;
    bench.manager->slotUpdateImageControlUI();
    QCOMPARE(bench.manager->GetImageStack()->parentWidget()->isEnabled(), mainOpen || compareOpen);
}

void ControlPanelsTest::imageCentre()
{
    Bench<ImageUI> bench;
    QWidget *wrapper = bench.manager->CreateCenterWidget(&bench.window);
    QVERIFY(qobject_cast<MultiImageWidget *>(wrapper));
    auto *stack = qobject_cast<QStackedWidget *>(bench.manager->GetImageStack()->parentWidget());
    QVERIFY(stack);
    QCOMPARE(stack->count(), 2);
    QVERIFY(stack->widget(1)->inherits("ImageSpectrumStackedWidget"));
    QCOMPARE(wrapper->layout()->itemAt(0)->widget(), static_cast<QWidget *>(stack));
    emit bench.services.active.signalCurrentFileFrameNumber(12);
    QCOMPARE(wrapper->findChild<QLabel *>("labelPageInfo")->text(), QString("1/12"));
    emit bench.services.active.signalCurrentFrame(4);
    QCOMPARE(wrapper->findChild<QLabel *>("labelPageInfo")->text(), QString("5/12"));
}

void ControlPanelsTest::measureConstruction()
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

void ControlPanelsTest::measureLoadsThreeFolders()
{
    Bench<MeasureUI> bench;
    bench.manager->LoadPluginUI(&bench.window);
    for (int id : measureIds)
        QVERIFY2(bench.Panel(id), qPrintable(QString::number(id)));
    QCOMPARE(TakePanelUpdates().size(), measureIds.size()); // once, with the last folder
}

void ControlPanelsTest::measureUpdate_data()
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

void ControlPanelsTest::measureUpdate()
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

void ControlPanelsTest::measureUpdateSignals()
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

void ControlPanelsTest::measureRaisesBottomPages_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("text");
    QTest::newRow("12") << 12 << "Calibration Table";
    QTest::newRow("15") << 15 << "Class Counting";
    QTest::newRow("counting") << -1 << "Automatic Counting Table";
}

void ControlPanelsTest::measureRaisesBottomPages()
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

void ControlPanelsTest::measureIgnoresOtherNotifications()
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

void ControlPanelsTest::measureDetachesWhenItGoes()
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

void ControlPanelsTest::panelThatFailsLeavesTheOthers()
{
    Bench<CameraUI> bench;
    ImageUI image;
    MeasureUI measure;
    bench.Load();
    image.LoadPluginUI(&bench.window);
    measure.LoadPluginUI(&bench.window);
    TakePanelUpdates();
    for (int id : { 2, 5, 8 }) {
        bench.Panel(id)->setProperty("fails", true);
        ExpectWarning(QRegularExpression(QString("testpanel%1\\.so is not loaded: .+ the lamp went out").arg(id)));
    }
    for (int round = 0; round < 2; ++round) { // the second time they are not asked any more
        bench.manager->slotUpdateUI();
        QCOMPARE(TakePanelUpdates(), QVector<int>({ 3, 20, 1, 0 }));
        image.slotUpdateImageControlUI();
        QCOMPARE(TakePanelUpdates(), QVector<int>({ 6, 4 }));
        measure.slotUpdateMeasureControlUI();
        QCOMPARE(TakePanelUpdates(), QVector<int>({ 11, 9, 7, 64, 23, 22, 21, 13 }));
    }
}

GUARDED_TEST_MAIN(ControlPanelsTest)
#include "tst_controlpanels.moc"
