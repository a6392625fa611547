// SPDX-License-Identifier: GPL-3.0-or-later
#include "cameraspectrumstackedwidget.h"
#include "imagespectrumstackedwidget.h"

#include "guardedtest.h"
#include "shellfixture.h"

class SpectrumStacksTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void slotsInOrder();
    void pageFollowsDisplayMode_data();
    void pageFollowsDisplayMode();
    void resizesAllPages();
    void newAreaOfTheLivePicture();
    void useAreaChange_data();
    void useAreaChange();
    void newAreaOfTheOpenFile_data();
    void newAreaOfTheOpenFile();
    void spectrumFileStartsHorizontal();
};

void SpectrumStacksTest::slotsInOrder()
{
    QCOMPARE(OwnMethods(SpectrumStackedWidgetBase::staticMetaObject), QStringList("slotDisplayModeChange()"));
    QCOMPARE(OwnMethods(CameraSpectrumStackedWidget::staticMetaObject),
             QStringList({ "SlotNewArea(double,double,double,double)", "SlotUpdateUseArea()" }));
    QCOMPARE(OwnMethods(ImageSpectrumStackedWidget::staticMetaObject),
             QStringList({ "slotNewArea(double,double,double,double)", "slotOpenSpefile()" }));
}

void SpectrumStacksTest::pageFollowsDisplayMode_data()
{
    QTest::addColumn<bool>("physics");
    QTest::addColumn<bool>("plot2D");
    QTest::addColumn<bool>("peak2D");
    QTest::addColumn<bool>("plot3D");
    QTest::addColumn<int>("page");
    QTest::newRow("physics") << true << false << false << false << 0;
    QTest::newRow("physics first") << true << true << true << true << 0;
    QTest::newRow("2D") << false << true << false << false << 1;
    QTest::newRow("2D peak") << false << false << true << false << 1;
    QTest::newRow("3D") << false << false << false << true << 2;
}

void SpectrumStacksTest::pageFollowsDisplayMode()
{
    QFETCH(bool, physics);
    QFETCH(bool, plot2D);
    QFETCH(bool, peak2D);
    QFETCH(bool, plot3D);
    QFETCH(int, page);
    ShellServices services;
    CameraSpectrumStackedWidget stack(nullptr);
    QCOMPARE(stack.count(), 3);
    stack.setCurrentIndex(page == 0 ? 2 : 0);
    services.spectrumUI.displayModePhysics = physics;
    services.spectrumUI.displayMode2D = plot2D;
    services.spectrumUI.displayMode2DPeak = peak2D;
    services.spectrumUI.displayMode3D = plot3D;
    stack.slotDisplayModeChange();
    QCOMPARE(stack.currentIndex(), page);

    services.spectrumUI.displayModePhysics = services.spectrumUI.displayMode2D = false;
    services.spectrumUI.displayMode2DPeak = services.spectrumUI.displayMode3D = false;
    stack.slotDisplayModeChange(); // a mode that is none of them
    QCOMPARE(stack.currentIndex(), page);
}

void SpectrumStacksTest::resizesAllPages()
{
    ShellServices services;
    ImageSpectrumStackedWidget stack(nullptr);
    stack.resize(411, 305);
    stack.show();
    QVERIFY(QTest::qWaitForWindowExposed(&stack));
    for (int page = 0; page < 3; ++page)
        QCOMPARE(stack.widget(page)->size(), QSize(411, 305));
}

void SpectrumStacksTest::newAreaOfTheLivePicture()
{
    ShellServices services;
    CameraSpectrumStackedWidget stack(nullptr);
    CallLog::Clear();
    stack.SlotNewArea(1, 2, 3, 4);
    QCOMPARE(CallLog::Calls(), QStringList({ "DisplayModeUIManager::SetImageExpansionAreaFlag(false)",
                                             "SpectrumUIManager::SlotNewArea(1, 2, 3, 4)" }));
}

void SpectrumStacksTest::useAreaChange_data()
{
    QTest::addColumn<int>("useArea");
    QTest::addColumn<bool>("hidden");
    QTest::addColumn<bool>("general");
    QTest::newRow("spectrum") << 1 << false << false;
    QTest::newRow("spectrum hidden") << 1 << true << true;
    QTest::newRow("other") << 0 << false << true;
}

void SpectrumStacksTest::useAreaChange()
{
    QFETCH(int, useArea);
    QFETCH(bool, hidden);
    QFETCH(bool, general);
    ShellServices services;
    services.useArea.useAreaType = useArea;
    services.useArea.spectrumHidden = hidden;
    CameraSpectrumStackedWidget stack(nullptr);
    CallLog::Clear();
    emit services.useArea.signalUpdateUseArea();
    QStringList calls{ "SpectrumUIManager::SetFocusAssitanceFlag(false)",
                       "SpectrumUIManager::SetFVBOnFlag(0)",
                       "SpectrumUIManager::SetMultiTrackOnFlag(false)" };
    if (general)
        calls << "SpectrumUIManager::SetDisplayModeGeneral()";
    calls << "UIConfigManager::UpdateCameraControlUI()";
    QCOMPARE(CallLog::Calls(), calls);
}

void SpectrumStacksTest::newAreaOfTheOpenFile_data()
{
    QTest::addColumn<QString>("area");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<QString>("valid");
    QTest::newRow("accepted") << "1,2" << true << "true";
    QTest::newRow("refused") << "x" << false << "false";
    QTest::newRow("empty") << "" << true << "false";
    QTest::newRow("none") << QString() << true << "false";
}

void SpectrumStacksTest::newAreaOfTheOpenFile()
{
    QFETCH(QString, area);
    QFETCH(bool, accepted);
    QFETCH(QString, valid);
    ShellServices services;
    services.active.expansionArea = area;
    services.spectrumUI.validConversationResult = accepted;
    ImageSpectrumStackedWidget stack(nullptr);
    CallLog::Clear();
    stack.slotNewArea(1, 2, 3, 4);
    QCOMPARE(CallLog::Calls(), QStringList({ "DisplayModeUIManager::SetImageExpansionAreaFlag(" + valid + ")",
                                             "DisplayModeUIManager::SetImageExpansionArea(" + area + ")",
                                             "SpectrumUIManager::SlotImageNewArea(1, 2, 3, 4)" }));
}

void SpectrumStacksTest::spectrumFileStartsHorizontal()
{
    ShellServices services;
    ImageSpectrumStackedWidget stack(nullptr);
    CallLog::Clear();
    emit services.active.signalOpenSpefile();
    QCOMPARE(CallLog::Calls(), QStringList("SpectrumUIManager::SetDirectionHorizontal()"));
}

GUARDED_TEST_MAIN(SpectrumStacksTest)
#include "tst_spectrumstacks.moc"
