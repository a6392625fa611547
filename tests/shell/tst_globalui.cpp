// SPDX-License-Identifier: GPL-3.0-or-later
#include "globalui.h"

#include "camerastackedwidget.h"
#include "compareframe.h"
#include "filesystemview.h"
#include "filethumbnail.h"
#include "guardedtest.h"
#include "imagestackedwidget.h"
#include "shellfixture.h"
#include "viewcodes.h"

#include <QTabWidget>

namespace {

/// Notes in the log when a watched object goes.
void WatchDestruction(QObject *object, const QString &name)
{
    QObject::connect(object, &QObject::destroyed, [name] { CallLog::Add("destroyed " + name, {}); });
}

QObject *FindTopLevel(const char *className)
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->inherits(className))
            return widget;
    }
    return nullptr;
}

} // namespace

class GlobalUITest : public GuardedTest
{
    Q_OBJECT

private slots:
    void isOneObjectUntilItIsDeleted();
    void declaresItsSlotsInOrder();
    void makesItsWidgetsWithoutParent();
    void translatesInItsOwnContext();
    void deletesInOrder();
    void hostWindowMayGoFirst();
    void hostWindowMayStayBehind_data();
    void hostWindowMayStayBehind();
    void nothingHappensBetweenWindowAndFacade();
    void updateReachesCameraAndMeasurePanels();
    void bottomPagesCanBePutIntoAnotherTabWidget();
    void canBeBuiltAgain();
};

void GlobalUITest::isOneObjectUntilItIsDeleted()
{
    ShellServices services;
    GlobalUI *first = GlobalUI::GetInstance();
    QCOMPARE(GlobalUI::GetInstance(), first);
    QVERIFY(!first->parent());
    delete first;
    GlobalUI *second = GlobalUI::GetInstance();
    QVERIFY(second);
    QVERIFY(!second->GetCenterStackedWidget());
    delete second;
}

void GlobalUITest::declaresItsSlotsInOrder()
{
    QCOMPARE(OwnMethods(GlobalUI::staticMetaObject),
             QStringList({ "slotRightTabWidgetCurrentChanged(int)", "slotBottomTabWidgetCurrentChanged(int)",
                           "slotSwitchView()", "slotMouseMoveEvent(QMouseEvent*)",
                           "slotMousePressEvent(QMouseEvent*,QPointF)", "slotMouseReleaseEvent(QMouseEvent*)",
                           "slotMouseDoubleClickEvent(QMouseEvent*)", "slotUpdateUseArea()",
                           "slotUpdateImageCompareFrame()", "slotDisplayModeChange()" }));
    for (int i = GlobalUI::staticMetaObject.methodOffset(); i < GlobalUI::staticMetaObject.methodCount(); ++i)
        QCOMPARE(GlobalUI::staticMetaObject.method(i).access(), QMetaMethod::Private);
}

void GlobalUITest::makesItsWidgetsWithoutParent()
{
    ShellHost host;
    for (const char *name : { "FileSystemView", "CompareFrame", "CapturePreviewUI" })
        QVERIFY2(FindTopLevel(name), name);
    QVERIFY(!FindTopLevel("FileThumbnail"));
    QVERIFY(CallLog::Count("MeasureManager::InitMeasuring()") > 0);
    QVERIFY(TakeConnection(FindTopLevel("FileSystemView"), SIGNAL(sglSwitchToPreviousView()),
                           &host.services.uiConfig, SLOT(slotFileViewReturn())));
}

void GlobalUITest::translatesInItsOwnContext()
{
    QCOMPARE(GlobalUI::tr("Spectrum"), QString("Spectrum"));
    QCOMPARE(QByteArray(GlobalUI::staticMetaObject.className()), QByteArray("GlobalUI"));
}

void GlobalUITest::deletesInOrder()
{
    ShellHost host;
    host.Build();
    WatchDestruction(host.window.findChild<FileSystemView *>(), "file system view");
    WatchDestruction(host.Compare(), "compare frame");
    WatchDestruction(host.window.findChild<FileThumbnail *>(), "file thumbnail view");
    for (QWidget *area : { static_cast<QWidget *>(host.ui->GetCenterStackedWidget()),
                           static_cast<QWidget *>(host.ui->GetLeftStackedWidget()),
                           static_cast<QWidget *>(host.ui->GetRightTabWidget()),
                           static_cast<QWidget *>(host.ui->GetBottomTabWidget()) })
        WatchDestruction(area, "area");
    CallLog::Clear();
    delete host.ui;
    host.ui = nullptr;
    QCOMPARE(CallLog::Calls(), QStringList({ "destroyed file system view()", "destroyed compare frame()",
                                             "destroyed file thumbnail view()" }));
}

void GlobalUITest::hostWindowMayGoFirst()
{
    ShellServices services;
    GlobalUI *ui = GlobalUI::GetInstance();
    {
        QMainWindow window;
        ui->InitMainUI(&window);
        services.uiConfig.currentView = ImageCompareView;
        emit services.uiConfig.signalSwitchView();
    }
    QVERIFY(!ui->GetCenterStackedWidget());
    QVERIFY(!ui->GetLeftStackedWidget());
    QVERIFY(!ui->GetRightTabWidget());
    QVERIFY(!ui->GetBottomTabWidget());
    delete ui;
}

void GlobalUITest::hostWindowMayStayBehind_data()
{
    QTest::addColumn<int>("view");
    QTest::newRow("camera") << int(CameraView);
    QTest::newRow("camera compare") << int(CameraCompareView);
    QTest::newRow("image compare") << int(ImageCompareView);
}

void GlobalUITest::hostWindowMayStayBehind()
{
    QFETCH(int, view);
    ShellHost host;
    host.Build();
    host.services.spectrumUI.multiTrackOnFlag = true;
    host.services.spectrumUI.fvbOnFlag = 1;
    host.services.spectrumUI.fvbModeAuto = true;
    host.services.spectrum.endPointList = { QPointF(0, 1), QPointF(0, 2) };
    host.SwitchTo(view);
    delete host.ui;
    host.ui = nullptr;
    // What is left of the window goes on without faults.
    host.window.resize(900, 700);
    emit host.services.preview.signalPreviewImage(QImage(8, 8, QImage::Format_Grayscale8));
    emit host.services.uiConfig.signalImageInfoChanged();
    emit host.services.uiConfig.signalSwitchView();
    emit host.services.useArea.signalUpdateUseArea();
    emit host.services.spectrum.SignalSpectralineFVB();
    emit host.services.spectrum.SignalSpectralineAutoDetectFinish();
    emit host.services.spectrumUI.SignalMultiTrackOnFlagChanged();
    QCoreApplication::processEvents();
    QCOMPARE(host.CameraStack()->GetMainFrame() == nullptr, view == CameraCompareView);
    QCOMPARE(host.ImageStack()->GetMainFrame() == nullptr, view != CameraView);
}

void GlobalUITest::nothingHappensBetweenWindowAndFacade()
{
    ShellServices services;
    GlobalUI *ui = GlobalUI::GetInstance();
    {
        QMainWindow window;
        ui->InitMainUI(&window);
    }
    CallLog::Clear();
    emit services.uiConfig.signalSwitchView();
    emit services.useArea.signalUpdateUseArea();
    emit services.spectrumUI.signalDisplayModeChange();
    emit services.global.signalUpdateImageCompareFrame();
    GlobalNotifyObserver(71, nullptr);
    ui->UpdateUI();
    QCOMPARE(CallLog::Calls(), QStringList("CameraConfigManager::UpdateGraphicsRegionItem()"));
    delete ui;
}

void GlobalUITest::updateReachesCameraAndMeasurePanels()
{
    ShellHost host(ShellHost::WithPanels);
    host.Build();
    TakePanelUpdates();
    host.ui->UpdateUI();
    const QVector<int> camera{ 3, 20, 2, 1, 0 };
    const QVector<int> measure{ 11, 9, 8, 7, 64, 23, 22, 21, 13 };
    QCOMPARE(TakePanelUpdates(), camera + measure);
    host.ui->ActivateMeasureControlUI();
    QCOMPARE(TakePanelUpdates(), measure);
}

void GlobalUITest::bottomPagesCanBePutIntoAnotherTabWidget()
{
    ShellHost host(ShellHost::WithPanels);
    host.ui->LoadPluginUI(&host.window);
    QTabWidget camera;
    QTabWidget image;
    QTabWidget measure;
    host.ui->SetCameraBottomControlUIPanel(&camera);
    host.ui->SetImageBottomControlUIPanel(&image);
    host.ui->SetMeasureBottomControlUIPanel(&measure);
    QCOMPARE(camera.count(), 1);
    QCOMPARE(camera.tabText(0), QString("Histogram(Live)"));
    QCOMPARE(image.count(), 0);
    QCOMPARE(measure.count(), 3);
    delete host.ui;
    host.ui = nullptr;
}

void GlobalUITest::canBeBuiltAgain()
{
    for (int round = 0; round < 3; ++round) {
        ShellHost host(ShellHost::WithPanels);
        host.Build();
        QCOMPARE(host.ui->GetCenterStackedWidget()->count(), 3);
        QCOMPARE(host.ui->GetBottomTabWidget()->count(), 5);
    }
}

GUARDED_TEST_MAIN(GlobalUITest)
#include "tst_globalui.moc"
