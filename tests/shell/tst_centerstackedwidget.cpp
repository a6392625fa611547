// SPDX-License-Identifier: GPL-3.0-or-later
#include "centerstackedwidget.h"

#include "applicationstylesheet.h"
#include "displayscale.h"
#include "guardedtest.h"
#include "shellfixture.h"
#include "viewcodes.h"

#include <QPushButton>
#include <QSignalSpy>

namespace {

/// The centre area with its five buttons in the order in which they are made.
struct Centre
{
    Centre()
        : widget(nullptr)
        , buttons(widget.findChildren<QPushButton *>(QString(), Qt::FindDirectChildrenOnly))
    {
    }

    QPushButton *Left() const { return buttons.at(0); }
    QPushButton *Right() const { return buttons.at(1); }
    QPushButton *Analysis() const { return buttons.at(2); }
    QPushButton *Bottom() const { return buttons.at(3); }
    QPushButton *Capture() const { return buttons.at(4); }

    void Update() { QMetaObject::invokeMethod(&widget, "slotUpdateUI"); }

    CenterStackedWidget widget;
    QList<QPushButton *> buttons;
};

} // namespace

class CenterStackedWidgetTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void madeWithFiveFloatingButtons();
    void declaresItsSlotsInOrder();
    void foldsAndUnfoldsPanels();
    void showsWhatTheFlagsSay_data();
    void showsWhatTheFlagsSay();
    void captureButtonOnlyOnLivePageWithLeftPanelFolded_data();
    void captureButtonOnlyOnLivePageWithLeftPanelFolded();
    void captureFollowsTheSaving();
    void namesSelectTheLook();
    void captureStaysWithoutCamera();
    void capturesOnClick();
    void refreshesQueuedWhenAsked();
    void placesButtons_data();
    void placesButtons();
    void keepsButtonsAbovePages();
    void changesCanvasColour();
};

void CenterStackedWidgetTest::madeWithFiveFloatingButtons()
{
    FakeServices services;
    DisplayScale scale(1.0);
    Centre centre;
    QCOMPARE(centre.widget.objectName(), QString("CenterStackedWidget"));
    QCOMPARE(centre.buttons.size(), 5);
    QCOMPARE(centre.Right()->objectName(), QString("pushButtonRight"));
    QCOMPARE(centre.Analysis()->objectName(), QString("analysisPushButton"));
    QCOMPARE(centre.Analysis()->iconSize(), QSize(20, 90));
    QList<bool> checkable;
    for (const QPushButton *button : qAsConst(centre.buttons)) {
        QVERIFY(button->text().isEmpty());
        checkable << button->isCheckable();
    }
    QCOMPARE(checkable, QList<bool>({ true, false, false, true, true }));
}

void CenterStackedWidgetTest::declaresItsSlotsInOrder()
{
    QCOMPARE(
        OwnMethods(CenterStackedWidget::staticMetaObject),
        QStringList({ "signalUpdateDockWidget()", "slotSetLeftPanelVisible(bool)",
                      "slotSetRightPanelVisible()", "slotSetAnalysisPanelVisible()",
                      "slotSetBottomPanelVisible(bool)", "slotUpdateUI()", "slotSetBlackBackground(bool)",
                      "slotCaptureClicked()", "onFrameSaveThreadRunningChanged(bool)" }));
}

void CenterStackedWidgetTest::foldsAndUnfoldsPanels()
{
    FakeServices services;
    Centre centre;
    QSignalSpy docks(&centre.widget, SIGNAL(signalUpdateDockWidget()));
    CallLog::Clear();

    centre.Left()->click();
    QCOMPARE(centre.Left()->objectName(), QString("pushButtonRight"));
    QVERIFY(!centre.Left()->isChecked());
    centre.Left()->click();
    QCOMPARE(centre.Left()->objectName(), QString("pushButtonLeft"));
    QVERIFY(centre.Left()->isChecked());

    QVERIFY(!centre.Right()->isHidden());
    QVERIFY(centre.Analysis()->isHidden());
    centre.Right()->click();
    QVERIFY(centre.Right()->isHidden());
    QVERIFY(!centre.Analysis()->isHidden());
    centre.Analysis()->click();
    QVERIFY(!centre.Right()->isHidden());

    centre.Bottom()->click();
    QCOMPARE(centre.Bottom()->objectName(), QString("pushButtonTop"));
    centre.Bottom()->click();
    QCOMPARE(centre.Bottom()->objectName(), QString("pushButtonBottom"));

    QCOMPARE(
        CallLog::Calls(),
        QStringList({ "UIConfigManager::SetLeftUIChecked(false)", "UIConfigManager::SetLeftUIChecked(true)",
                      "UIConfigManager::SetRightUIChecked(false)", "UIConfigManager::SetRightUIChecked(true)",
                      "UIConfigManager::SetBottomUIChecked(false)",
                      "UIConfigManager::SetBottomUIChecked(true)" }));
    QCOMPARE(docks.count(), 6);
}

void CenterStackedWidgetTest::showsWhatTheFlagsSay_data()
{
    QTest::addColumn<bool>("available");
    QTest::addColumn<bool>("shown");
    QTest::addColumn<bool>("rightVisible");
    QTest::addColumn<bool>("analysisVisible");
    QTest::newRow("shown") << true << true << true << false;
    QTest::newRow("folded") << true << false << false << true;
    QTest::newRow("none, shown") << false << true << false << false;
    QTest::newRow("none, folded") << false << false << false << false;
}

void CenterStackedWidgetTest::showsWhatTheFlagsSay()
{
    QFETCH(bool, available);
    QFETCH(bool, shown);
    FakeServices services;
    services.uiConfig.leftToggleVisible = services.uiConfig.rightButtonsAvailable = available;
    services.uiConfig.bottomToggleVisible = available;
    services.uiConfig.leftUIChecked = services.uiConfig.rightUIChecked = services.uiConfig.bottomUIChecked =
        shown;
    Centre centre;
    QCOMPARE(!centre.Left()->isHidden(), available);
    QCOMPARE(centre.Left()->isChecked(), shown);
    QCOMPARE(centre.Left()->objectName(), QString(shown ? "pushButtonLeft" : "pushButtonRight"));
    QTEST(!centre.Right()->isHidden(), "rightVisible");
    QTEST(!centre.Analysis()->isHidden(), "analysisVisible");
    QCOMPARE(!centre.Bottom()->isHidden(), available);
    QCOMPARE(centre.Bottom()->isChecked(), shown);
    QCOMPARE(centre.Bottom()->objectName(), QString(shown ? "pushButtonBottom" : "pushButtonTop"));
}

void CenterStackedWidgetTest::captureButtonOnlyOnLivePageWithLeftPanelFolded_data()
{
    QTest::addColumn<int>("view");
    QTest::addColumn<bool>("leftShown");
    QTest::addColumn<bool>("visible");
    QTest::newRow("live, folded") << int(CameraView) << false << true;
    QTest::newRow("live, shown") << int(CameraView) << true << false;
    QTest::newRow("image, folded") << int(ImageView) << false << false;
    QTest::newRow("file, folded") << int(FileView) << false << false;
    QTest::newRow("camera compare, folded") << int(CameraCompareView) << false << false;
}

void CenterStackedWidgetTest::captureButtonOnlyOnLivePageWithLeftPanelFolded()
{
    QFETCH(int, view);
    QFETCH(bool, leftShown);
    FakeServices services;
    services.uiConfig.currentView = view;
    services.uiConfig.leftUIChecked = leftShown;
    Centre centre;
    QTEST(!centre.Capture()->isHidden(), "visible");
}

void CenterStackedWidgetTest::captureFollowsTheSaving()
{
    FakeServices services;
    FakeCameraMainManager camera;
    Centre centre;
    QVERIFY(centre.Capture()->isEnabled());
    QCOMPARE(centre.Capture()->objectName(), QString("pushButtonCustomCapture"));

    emit services.frameSave.signalSaveThreadRunningChanged(true);
    QCOMPARE(centre.Capture()->objectName(), QString("pushButtonCustomCapture")); // queued
    QTRY_COMPARE(centre.Capture()->objectName(), QString("pushButtonCustomCaptureChecked"));
    QVERIFY(centre.Capture()->isChecked());
    emit services.frameSave.signalSaveThreadRunningChanged(false);
    QTRY_COMPARE(centre.Capture()->objectName(), QString("pushButtonCustomCapture"));
    QVERIFY(!centre.Capture()->isChecked());

    services.frameSave.SetRunning(true);
    centre.Update();
    QCOMPARE(centre.Capture()->objectName(), QString("pushButtonCustomCaptureChecked"));
    QVERIFY(centre.Capture()->isChecked());
    services.frameSave.SetRunning(false);
    centre.Update();
    QCOMPARE(centre.Capture()->objectName(), QString("pushButtonCustomCapture"));
}

void CenterStackedWidgetTest::namesSelectTheLook()
{
    FakeServices services;
    FakeCameraMainManager camera;
    const ApplicationStyleSheet sheet("QPushButton { border: none; background: rgb(10, 20, 30); }"
                                      "QPushButton#pushButtonRight { background: rgb(200, 0, 0); }"
                                      "QPushButton#pushButtonTop { background: rgb(0, 200, 0); }"
                                      "QPushButton#pushButtonCustomCaptureChecked"
                                      " { background: rgb(0, 0, 200); }");
    Centre centre;
    centre.widget.resize(800, 600);
    centre.widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&centre.widget));
    const auto colour = [](QPushButton *button) { return button->grab().toImage().pixelColor(5, 5); };
    const QColor plain(10, 20, 30);
    for (QPushButton *button : { centre.Left(), centre.Bottom(), centre.Capture() })
        QCOMPARE(colour(button), plain);

    centre.Left()->click();
    QCOMPARE(colour(centre.Left()), QColor(200, 0, 0));
    centre.Bottom()->click();
    QCOMPARE(colour(centre.Bottom()), QColor(0, 200, 0));
    services.frameSave.SetRunning(true);
    centre.Update();
    QCOMPARE(colour(centre.Capture()), QColor(0, 0, 200));

    centre.Left()->click();
    centre.Bottom()->click();
    services.frameSave.SetRunning(false);
    centre.Update();
    for (QPushButton *button : { centre.Left(), centre.Bottom(), centre.Capture() })
        QCOMPARE(colour(button), plain);
}

void CenterStackedWidgetTest::captureStaysWithoutCamera()
{
    FakeServices services;
    services.frameSave.SetRunning(true);
    Centre centre;
    QSignalSpy docks(&centre.widget, SIGNAL(signalUpdateDockWidget()));
    QVERIFY(!centre.Capture()->isEnabled());
    QVERIFY(!centre.Capture()->isChecked());
    emit services.frameSave.signalSaveThreadRunningChanged(true);
    emit services.uiConfig.signalUpdateCameraControlUI(); // delivered behind it
    QVERIFY(docks.wait());
    QVERIFY(!centre.Capture()->isChecked());
    QCOMPARE(centre.Capture()->objectName(), QString("pushButtonCustomCapture"));
}

void CenterStackedWidgetTest::capturesOnClick()
{
    FakeServices services;
    FakeCameraMainManager camera;
    Centre centre;
    QSignalSpy docks(&centre.widget, SIGNAL(signalUpdateDockWidget()));
    CallLog::Clear();
    centre.Capture()->click();
    QCOMPARE(CallLog::Calls(), QStringList("PreviewManager::FrameSave(false, false)"));
    QCOMPARE(docks.count(), 1);
    QVERIFY(!centre.Capture()->isChecked()); // nothing is being saved yet
}

void CenterStackedWidgetTest::refreshesQueuedWhenAsked()
{
    FakeServices services;
    Centre centre;
    QSignalSpy docks(&centre.widget, SIGNAL(signalUpdateDockWidget()));
    services.uiConfig.leftUIChecked = false;
    emit services.uiConfig.signalUpdateCameraControlUI();
    QCOMPARE(docks.count(), 0);
    QVERIFY(docks.wait());
    QVERIFY(!centre.Left()->isChecked());
}

void CenterStackedWidgetTest::placesButtons_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("left");
    QTest::addColumn<QRect>("bottom");
    QTest::addColumn<QRect>("right");
    QTest::addColumn<QRect>("analysis");
    QTest::addColumn<QRect>("capture");
    QTest::newRow("even") << 1.0 << QSize(800, 600) << QRect(-1, 270, 16, 60) << QRect(370, 586, 60, 16)
                          << QRect(786, 270, 16, 60) << QRect(782, 255, 20, 90) << QRect(60, 60, 60, 60);
    QTest::newRow("odd") << 1.0 << QSize(801, 601) << QRect(-1, 270, 16, 60) << QRect(370, 587, 60, 16)
                         << QRect(787, 270, 16, 60) << QRect(783, 255, 20, 90) << QRect(60, 60, 60, 60);
    // Sides of 75 and 113 (rounded from 112.5): their halves are cut off separately.
    QTest::newRow("scaled") << 1.25 << QSize(801, 601) << QRect(-2, 263, 20, 75) << QRect(363, 584, 75, 20)
                            << QRect(784, 263, 20, 75) << QRect(779, 244, 25, 113) << QRect(75, 75, 75, 75);
}

void CenterStackedWidgetTest::placesButtons()
{
    QFETCH(double, scale);
    QFETCH(QSize, size);
    FakeServices services;
    DisplayScale displayScale(scale);
    Centre centre;
    centre.widget.resize(size);
    centre.widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&centre.widget));
    QCOMPARE(centre.widget.size(), size);
    QTEST(centre.Left()->geometry(), "left");
    QTEST(centre.Bottom()->geometry(), "bottom");
    QTEST(centre.Right()->geometry(), "right");
    QTEST(centre.Analysis()->geometry(), "analysis");
    QTEST(centre.Capture()->geometry(), "capture");
    QCOMPARE(centre.Capture()->iconSize(), QSize(int(40 * scale), int(40 * scale)));
}

void CenterStackedWidgetTest::keepsButtonsAbovePages()
{
    FakeServices services;
    Centre centre;
    auto *page = new QWidget(&centre.widget);
    centre.widget.addWidget(page);
    page->raise();
    centre.widget.RaiseFloatingButtons();
    const QList<QObject *> top{ centre.Left(), centre.Bottom(), centre.Right(), centre.Analysis(),
                                centre.Capture() };
    QCOMPARE(centre.widget.children().mid(centre.widget.children().size() - 5), top);

    page->raise();
    centre.widget.resize(500, 400);
    centre.widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&centre.widget));
    QCOMPARE(centre.widget.children().mid(centre.widget.children().size() - 5), top);
}

void CenterStackedWidgetTest::changesCanvasColour()
{
    FakeServices services;
    Centre centre;
    QMetaObject::invokeMethod(&centre.widget, "slotSetBlackBackground", Q_ARG(bool, true));
    QCOMPARE(centre.widget.styleSheet(), QString("CenterStackedWidget{background-color: rgb(0, 0, 0);}"));
    centre.widget.resize(300, 300);
    centre.widget.addWidget(new QWidget);
    QCOMPARE(QColor(centre.widget.grab().toImage().pixel(200, 250)), QColor(0, 0, 0));
    QMetaObject::invokeMethod(&centre.widget, "slotSetBlackBackground", Q_ARG(bool, false));
    QCOMPARE(centre.widget.styleSheet(), QString("CenterStackedWidget{background-color: rgb(68, 73, 86);}"));
    QCOMPARE(QColor(centre.widget.grab().toImage().pixel(200, 250)), QColor(68, 73, 86));
}

GUARDED_TEST_MAIN(CenterStackedWidgetTest)
#include "tst_centerstackedwidget.moc"
