// SPDX-License-Identifier: GPL-3.0-or-later
#include "cameraui.h"
#include "guardedtest.h"
#include "imagestackedwidget.h"
#include "imageui.h"
#include "measureui.h"
#include "panelbench.h"

#include <QRegularExpression>
#include <QStackedWidget>

/// What the three managers of control panels have in common.
class ControlPanelsTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void slotsInOrder();
    void displayModeChoosesPage();
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
