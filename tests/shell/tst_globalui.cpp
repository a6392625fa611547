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

#include <QLabel>
#include <QTabWidget>
#include <QTranslator>

namespace {

/// Notes in the log when a watched object goes.
void WatchDestruction(QObject *object, const QString &name)
{
    QObject::connect(object, &QObject::destroyed, [name] { CallLog::Add("destroyed " + name, {}); });
}

/// While it lives, each text is translated as its context, a slash and itself.
class ContextTranslator : public QTranslator
{
public:
    ContextTranslator() { QCoreApplication::installTranslator(this); }
    ~ContextTranslator() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        // Panels that are missing say so with their title.
        if (qstrcmp(context, "UIManagerBase") == 0)
            return QString();
        return QString("%1/%2").arg(context, source);
    }
};

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
    void translatesInTheContextsOfItsParts();
    void histogramRunsUnderItsTranslatedTitle();
    void deletesInOrder();
    void panelMayAnnounceWhileItGoes_data();
    void panelMayAnnounceWhileItGoes();
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

void GlobalUITest::translatesInTheContextsOfItsParts()
{
    const ContextTranslator translator;
    ShellHost host;
    host.Build();
    QCOMPARE(TabTexts(host.ui->GetRightTabWidget()),
             QStringList({ "GlobalUI/Spectrum", "GlobalUI/Analysis", "GlobalUI/Tool Properties",
                           "GlobalUI/Report" }));
    QCOMPARE(host.ui->GetBottomTabWidget()->tabText(0), QString("GlobalUI/File Preview"));
    // The title of a panel that is not installed stands in its place.
    const QPair<QWidget *, QString> pages[] = { { host.ui->GetSpectrumWidget(), "MeasureUI/Spectrum" },
                                                { host.ui->GetDataAnalysisWidget(), "MeasureUI/Analysis" },
                                                { host.ui->GetToolPropertyWidget(),
                                                  "MeasureUI/Tool Properties" },
                                                { host.ui->GetReportWidget(), "MeasureUI/Report" } };
    for (const auto &page : pages) {
        const QString text = page.first->findChild<QLabel *>()->text();
        QVERIFY2(text.contains('"' + page.second + '"'), qPrintable(text));
    }
    const QScopedPointer<QWidget> cameraInfo(host.ui->GetCameraInfoUI());
    QStringList labels;
    for (const QLabel *label : cameraInfo->findChildren<QLabel *>())
        labels << label->text();
    labels.sort();
    QCOMPARE(labels, QStringList({ "GlobalUI/Name", "GlobalUI/No Camera" }));
}

void GlobalUITest::histogramRunsUnderItsTranslatedTitle()
{
    const ContextTranslator translator;
    ShellHost host(ShellHost::WithPanels);
    host.Build();
    QTabWidget *bottom = host.ui->GetBottomTabWidget();
    QCOMPARE(bottom->tabText(1), QString("CameraUI/Histogram(Live)"));
    for (int i : { 1, 2 }) {
        CallLog::Clear();
        bottom->setCurrentIndex(i);
        QCOMPARE(
            CallLog::Count("HistogramCalculateManager::SetHistogramStatisticsState(" + Text(i == 1) + ")"),
            1);
    }
    bottom->setTabText(1, "GlobalUI/Histogram(Live)");
    CallLog::Clear();
    bottom->setCurrentIndex(1);
    QCOMPARE(CallLog::Count("HistogramCalculateManager::SetHistogramStatisticsState(true)"), 1);
}

void GlobalUITest::deletesInOrder()
{
    ShellHost host(ShellHost::WithPanels);
    host.Build();
    WatchDestruction(host.window.findChild<FileSystemView *>(), "file system view");
    WatchDestruction(PanelRoot(host.window, 0), "camera panel");
    WatchDestruction(PanelRoot(host.window, 4), "image panel");
    WatchDestruction(PanelRoot(host.window, 7), "measure panel");
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
    QCOMPARE(CallLog::Calls(),
             QStringList({ "destroyed file system view()", "destroyed camera panel()",
                           "destroyed image panel()", "destroyed measure panel()",
                           "destroyed compare frame()", "destroyed file thumbnail view()" }));
}

void GlobalUITest::panelMayAnnounceWhileItGoes_data()
{
    QTest::addColumn<int>("id");
    QTest::newRow("camera") << 0;
    QTest::newRow("image") << 4;
    QTest::newRow("measure") << 7;
}

void GlobalUITest::panelMayAnnounceWhileItGoes()
{
    QFETCH(int, id);
    ShellHost host(ShellHost::WithPanels);
    host.services.useArea.spectrumHidden = true;
    host.Build();
    QObject *root = PanelRoot(host.window, id);
    QVERIFY(root);
    int announced = 0;
    connect(root, &QObject::destroyed, this, [&host, &announced] {
        host.services.useArea.spectrumHidden = false;
        GlobalNotifyObserver(71, nullptr);
        emit host.services.spectrumUI.signalDisplayModeChange();
        emit host.services.useArea.signalUpdateUseArea();
        emit host.services.uiConfig.signalSwitchView();
        ++announced;
    });
    delete host.ui;
    host.ui = nullptr;
    QCOMPARE(announced, 1);
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
    GlobalNotifyObserver(71, nullptr);
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
    QCOMPARE(TabTexts(&measure), QStringList({ "Calibration Table", "Class Counting" }));
    delete host.ui;
    host.ui = nullptr;
}

void GlobalUITest::canBeBuiltAgain()
{
    for (int round = 0; round < 3; ++round) {
        ShellHost host(ShellHost::WithPanels);
        host.Build();
        QCOMPARE(host.ui->GetCenterStackedWidget()->count(), 3);
        QCOMPARE(host.ui->GetBottomTabWidget()->count(), 4);
    }
}

GUARDED_TEST_MAIN(GlobalUITest)
#include "tst_globalui.moc"
