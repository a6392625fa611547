// SPDX-License-Identifier: GPL-3.0-or-later
#include "camerastackedwidget.h"
#include "centerstackedwidget.h"
#include "compareframe.h"
#include "filesystemview.h"
#include "filethumbnail.h"
#include "globalui.h"
#include "guardedtest.h"
#include "imagenavigateui.h"
#include "imagestackedwidget.h"
#include "multiimagewidget.h"
#include "shellfixture.h"
#include "widgetswitchui.h"

#include <QLayout>
#include <QTabWidget>

namespace {

const QStringList tabsWithSpectrum{ "Spectrum", "Analysis", "Tool Properties", "Report" };

QString TabStyle(int width)
{
    return QString("QTabBar::tab{ height: 25; width: %1; border-right: 2px solid white;}").arg(width);
}

} // namespace

class MainWindowAreasTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void gettersAreNullBeforeTheWindowIsBuilt();
    void buildsInOrder();
    void centrePages();
    void leftPages();
    void leftPagesCanBeAppended();
    void rightTabs();
    void rightTabsWithoutSpectrum_data();
    void rightTabsWithoutSpectrum();
    void spectrumTabComesAndGoes();
    void scaledTabs();
    void fourTabsStayOnARepeatedUseArea();
    void restoresTabIndices();
    void storesTabIndices();
    void bottomTabs();
    void histogramOnlyWhileItsTabIsShown();
    void panelPagesAreNewOnEachCall();
};

void MainWindowAreasTest::gettersAreNullBeforeTheWindowIsBuilt()
{
    ShellHost host;
    QVERIFY(!host.ui->GetCenterStackedWidget());
    QVERIFY(!host.ui->GetLeftStackedWidget());
    QVERIFY(!host.ui->GetRightTabWidget());
    QVERIFY(!host.ui->GetBottomTabWidget());
    QVERIFY(!host.ui->GetCenterStackedWidget(&host.window));
    QVERIFY(!host.ui->GetLeftStackedWidget(&host.window));
    QVERIFY(!host.ui->GetRightTabWidget(&host.window));
    QVERIFY(!host.ui->GetBottomTabWidget(&host.window));
}

void MainWindowAreasTest::buildsInOrder()
{
    ShellHost host;
    CallLog::Clear();
    host.Build();
    const QStringList calls = CallLog::Calls();
    const QStringList inOrder{
        "MeasureManager::SetDialogParent()",       "UIConfigManager::SetCPUDraw(true, true)",
        "GlobalManager::SetCameraGraphicsScene()", "GlobalManager::SetImageGraphicsScene()",
        "active ConnectWidthDrawView(false)",      "GlobalManager::SetImageGraphicsSceneEx()",
        "compare ConnectWidthDrawView(false)",     "CameraConfigManager::UpdateGraphicsRegionItem()"
    };
    int last = -1;
    for (const QString &call : inOrder) {
        QVERIFY2(calls.indexOf(call) > last, qPrintable(call + " in " + calls.join("\n")));
        last = calls.indexOf(call);
    }
    QStringList lines;
    for (const QString &line : DebugLines()) {
        if (line == "CameraStackedWidget" || line.startsWith("LoadUIPluginAndInit"))
            lines << line;
    }
    QCOMPARE(lines, QStringList({ "CameraStackedWidget", "LoadUIPluginAndInit", "LoadUIPluginAndInit end" }));
}

void MainWindowAreasTest::centrePages()
{
    ShellHost host;
    host.Build();
    QStackedWidget *centre = host.ui->GetCenterStackedWidget();
    QVERIFY(qobject_cast<CenterStackedWidget *>(centre));
    QCOMPARE(centre->count(), 3);
    auto *camera = qobject_cast<QStackedWidget *>(centre->widget(0));
    QVERIFY(camera);
    QCOMPARE(camera->widget(0), static_cast<QWidget *>(host.CameraStack()));
    QVERIFY(camera->widget(1)->inherits("CameraSpectrumStackedWidget"));
    auto *image = qobject_cast<MultiImageWidget *>(centre->widget(1));
    QVERIFY(image);
    auto *imageCentre = qobject_cast<QStackedWidget *>(image->layout()->itemAt(0)->widget());
    QVERIFY(imageCentre);
    QCOMPARE(imageCentre->widget(0), static_cast<QWidget *>(host.ImageStack()));
    QVERIFY(imageCentre->widget(1)->inherits("ImageSpectrumStackedWidget"));
    QVERIFY(qobject_cast<FileThumbnail *>(centre->widget(2)));
}

void MainWindowAreasTest::leftPages()
{
    ShellHost host;
    host.Build();
    QStackedWidget *left = host.ui->GetLeftStackedWidget();
    QCOMPARE(left->count(), 3);
    QVERIFY(left->widget(0)->findChild<QWidget *>("CapturePreviewUI"));
    QVERIFY(left->widget(1)->findChild<ImageNavigateUI *>());
    QVERIFY(qobject_cast<FileSystemView *>(left->widget(2)));
}

void MainWindowAreasTest::leftPagesCanBeAppended()
{
    ShellHost host;
    host.Build();
    QCOMPARE(host.ui->GetLeftStackedWidget(&host.window), host.ui->GetLeftStackedWidget());
    QStackedWidget *left = host.ui->GetLeftStackedWidget();
    QCOMPARE(left->count(), 5); // two more control pages; the file system view moves to the end
    QVERIFY(qobject_cast<FileSystemView *>(left->widget(4)));
    QVERIFY(left->widget(2)->findChild<QWidget *>("CapturePreviewUI"));
}

void MainWindowAreasTest::rightTabs()
{
    ShellHost host(ShellHost::WithPanels);
    host.Build();
    QTabWidget *right = host.ui->GetRightTabWidget();
    QCOMPARE(TabTexts(right), tabsWithSpectrum);
    QCOMPARE(right->styleSheet(), TabStyle(93));
    const char *panels[] = { "panel11", "panel7", "panel8", "panel9" };
    for (int i = 0; i < 4; ++i)
        QVERIFY2(right->widget(i)->findChild<QWidget *>(panels[i]), panels[i]);
    QCOMPARE(host.ui->GetSpectrumWidget(), right->widget(0));
    QCOMPARE(host.ui->GetDataAnalysisWidget(), right->widget(1));
    QCOMPARE(host.ui->GetToolPropertyWidget(), right->widget(2));
    QCOMPARE(host.ui->GetReportWidget(), right->widget(3));
}

void MainWindowAreasTest::rightTabsWithoutSpectrum_data()
{
    QTest::addColumn<int>("useArea");
    QTest::addColumn<bool>("hidden");
    QTest::newRow("other use area") << 0 << false;
    QTest::newRow("hidden") << 1 << true;
}

void MainWindowAreasTest::rightTabsWithoutSpectrum()
{
    QFETCH(int, useArea);
    QFETCH(bool, hidden);
    ShellHost host;
    host.services.useArea.useAreaType = useArea;
    host.services.useArea.spectrumHidden = hidden;
    host.Build();
    QCOMPARE(TabTexts(host.ui->GetRightTabWidget()), tabsWithSpectrum.mid(1));
    QCOMPARE(host.ui->GetRightTabWidget()->styleSheet(), TabStyle(124));
}

void MainWindowAreasTest::spectrumTabComesAndGoes()
{
    ShellHost host;
    host.services.useArea.useAreaType = 0;
    host.Build();
    QTabWidget *right = host.ui->GetRightTabWidget();
    right->setCurrentIndex(2);
    QWidget *current = right->currentWidget();
    for (int round = 0; round < 3; ++round) {
        host.services.useArea.useAreaType = 1;
        emit host.services.useArea.signalUpdateUseArea();
        QCOMPARE(TabTexts(right), tabsWithSpectrum);
        QCOMPARE(right->styleSheet(), TabStyle(93));
        QCOMPARE(right->currentWidget(), current);

        host.services.useArea.spectrumHidden = true;
        emit host.services.useArea.signalUpdateUseArea();
        QCOMPARE(TabTexts(right), tabsWithSpectrum.mid(1));
        QCOMPARE(right->styleSheet(), TabStyle(124));
        QCOMPARE(right->currentWidget(), current);
        emit host.services.useArea.signalUpdateUseArea(); // already gone
        QCOMPARE(right->count(), 3);
        host.services.useArea.spectrumHidden = false;
    }
}

void MainWindowAreasTest::scaledTabs()
{
    ShellHost host;
    DisplayScale scale(1.5);
    host.Build();
    // 93 * 1.5 = 139.5 is rounded; 25 * 1.5 = 37.5.
    QCOMPARE(host.ui->GetRightTabWidget()->styleSheet(),
             QString("QTabBar::tab{ height: 38; width: 140; border-right: 3px solid white;}"));
}

void MainWindowAreasTest::fourTabsStayOnARepeatedUseArea()
{
    ShellHost host;
    host.Build();
    QTabWidget *right = host.ui->GetRightTabWidget();
    right->setStyleSheet("");
    QWidget *spectrum = right->widget(0);
    emit host.services.useArea.signalUpdateUseArea();
    QCOMPARE(TabTexts(right), tabsWithSpectrum);
    QCOMPARE(right->widget(0), spectrum);
    QCOMPARE(right->styleSheet(), TabStyle(93));
}

void MainWindowAreasTest::restoresTabIndices()
{
    ShellHost host(ShellHost::WithPanels);
    host.services.uiConfig.rightUIIndex = 2;
    host.services.uiConfig.bottomUIIndex = 1;
    CallLog::Clear();
    host.Build();
    QCOMPARE(host.ui->GetRightTabWidget()->currentIndex(), 2);
    QCOMPARE(host.ui->GetBottomTabWidget()->currentIndex(), 1);
    // Restoring is no choice of the user's.
    for (const QString &call : CallLog::Calls())
        QVERIFY2(!call.contains("SetRightUIIndex") && !call.contains("SetBottomUIIndex"), qPrintable(call));
}

void MainWindowAreasTest::storesTabIndices()
{
    ShellHost host(ShellHost::WithPanels);
    host.Build();
    CallLog::Clear();
    host.ui->GetRightTabWidget()->setCurrentIndex(3);
    QCOMPARE(CallLog::Calls(), QStringList("UIConfigManager::SetRightUIIndex(3)"));
    CallLog::Clear();
    host.ui->GetBottomTabWidget()->setCurrentIndex(2);
    QCOMPARE(CallLog::Calls(), QStringList({ "HistogramCalculateManager::SetHistogramStatisticsState(false)",
                                             "UIConfigManager::SetBottomUIIndex(2)" }));
}

void MainWindowAreasTest::bottomTabs()
{
    ShellHost host(ShellHost::WithPanels);
    host.Build();
    QTabWidget *bottom = host.ui->GetBottomTabWidget();
    QCOMPARE(bottom->objectName(), QString("BottomTabWidget"));
    QCOMPARE(bottom->styleSheet(), QString("QTabBar::tab:selected{color:black;}"));
    QVERIFY(qobject_cast<WidgetSwitchUI *>(bottom->widget(0)));
    QCOMPARE(TabTexts(bottom),
             QStringList({ "File Preview", "Histogram(Live)", "Calibration Table", "Class Counting" }));
    QVERIFY(bottom->widget(0)->isAncestorOf(host.services.thumbnails));
}

void MainWindowAreasTest::histogramOnlyWhileItsTabIsShown()
{
    ShellHost host(ShellHost::WithPanels);
    host.Build();
    QTabWidget *bottom = host.ui->GetBottomTabWidget();
    for (int i : { 1, 2, 1, 0, 3 }) {
        CallLog::Clear();
        bottom->setCurrentIndex(i);
        const QString state = bottom->tabText(i) == "Histogram(Live)" ? "true" : "false";
        QCOMPARE(CallLog::Calls(),
                 QStringList({ "HistogramCalculateManager::SetHistogramStatisticsState(" + state + ")",
                               QString("UIConfigManager::SetBottomUIIndex(%1)").arg(i) }));
    }
    bottom->setTabText(2, "histogram(live)"); // case counts
    CallLog::Clear();
    bottom->setCurrentIndex(2);
    QCOMPARE(CallLog::Count("HistogramCalculateManager::SetHistogramStatisticsState(false)"), 1);
}

void MainWindowAreasTest::panelPagesAreNewOnEachCall()
{
    ShellHost host;
    host.Build();
    const QScopedPointer<QWidget> camera(host.ui->GetCameraControlUIScrollArea());
    const QScopedPointer<QWidget> image(host.ui->GetImageControlUIScrollArea());
    QVERIFY(!camera->parent());
    QVERIFY(!image->parent());
    QVERIFY(camera.data() != host.ui->GetLeftStackedWidget()->widget(0));
    QVERIFY(image.data() != host.ui->GetLeftStackedWidget()->widget(1));
}

GUARDED_TEST_MAIN(MainWindowAreasTest)
#include "tst_mainwindowareas.moc"
