// SPDX-License-Identifier: GPL-3.0-or-later
#include "imagenavigateui.h"
#include "widgetswitchui.h"

#include "displayscale.h"
#include "guardedtest.h"
#include "shellfixture.h"
#include "viewcodes.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

class NavigationBarsTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void imageBarForm();
    void imageBarScalesItsIcons();
    void imageBarCommands();
    void imageBarFollowsTheCamera();
    void switchBarForm();
    void switchBarIconSizes_data();
    void switchBarIconSizes();
    void switchBarCommands();
    void switchBarSwapsItsFirstButton();
    void slotsInOrder();
};

void NavigationBarsTest::imageBarForm()
{
    FakeServices services;
    DisplayScale scale(1.0);
    ImageNavigateUI bar(nullptr);
    QCOMPARE(bar.objectName(), QString("ImageNavigateUI"));
    QCOMPARE(bar.size(), QSize(339, 72));
    QCOMPARE(bar.windowTitle(), QString("Form"));

    auto *row = qobject_cast<QHBoxLayout *>(bar.layout());
    QVERIFY(row);
    QCOMPARE(row->objectName(), QString("horizontalLayout"));
    QCOMPARE(row->count(), 5);
    const int spacerWidths[] = { 71, 72, 68 };
    for (int i = 0; i < 3; ++i) {
        const QSpacerItem *spacer = row->itemAt(2 * i)->spacerItem();
        QVERIFY(spacer);
        QCOMPARE(spacer->sizeHint(), QSize(spacerWidths[i], 20));
        QCOMPARE(spacer->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum));
    }
    const char *columns[] = { "verticalLayout_2", "verticalLayout" };
    const char *buttons[] = { "pushButtonCamera", "pushButtonNewImageCopy" };
    const char *labels[] = { "labelLive", "labelCapture" };
    const char *texts[] = { "Return Camera", "Apply" };
    for (int i = 0; i < 2; ++i) {
        auto *column = qobject_cast<QVBoxLayout *>(row->itemAt(2 * i + 1)->layout());
        QVERIFY(column);
        QCOMPARE(column->objectName(), QString(columns[i]));
        QCOMPARE(column->spacing(), 0);
        QCOMPARE(column->contentsMargins().right(), 0);
        auto *button = qobject_cast<QPushButton *>(column->itemAt(0)->widget());
        QVERIFY(button);
        QCOMPARE(button->objectName(), QString(buttons[i]));
        QVERIFY(button->text().isEmpty());
        QCOMPARE(button->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
        QCOMPARE(button->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
        QCOMPARE(button->minimumSize(), QSize(0, 40));
        QCOMPARE(button->iconSize(), QSize(45, 45));
        QVERIFY(!button->isCheckable());
        QVERIFY(!button->isChecked());
        auto *label = qobject_cast<QLabel *>(column->itemAt(1)->widget());
        QVERIFY(label);
        QCOMPARE(label->objectName(), QString(labels[i]));
        QCOMPARE(label->text(), QString(texts[i]));
        QCOMPARE(label->alignment(), Qt::AlignCenter);
        QCOMPARE(button->accessibleName(), QString(texts[i]));
    }
    QCOMPARE(bar.findChild<QPushButton *>("pushButtonCamera")->toolTip(), QString("(Ctrl+Q)"));
}

void NavigationBarsTest::imageBarScalesItsIcons()
{
    FakeServices services;
    DisplayScale scale(2.0);
    ImageNavigateUI bar(nullptr);
    for (const QPushButton *button : bar.findChildren<QPushButton *>())
        QCOMPARE(button->iconSize(), QSize(90, 90));
}

void NavigationBarsTest::imageBarCommands()
{
    ShellServices services;
    FakeCameraMainManager camera;
    ImageNavigateUI bar(nullptr);
    CallLog::Clear();
    bar.findChild<QPushButton *>("pushButtonCamera")->click();
    bar.findChild<QPushButton *>("pushButtonNewImageCopy")->click();
    QCOMPARE(CallLog::Calls(),
             QStringList({ "UIConfigManager::SetCameraView()", "active SetAdjustApply(0)" }));
}

void NavigationBarsTest::imageBarFollowsTheCamera()
{
    FakeServices services;
    ImageNavigateUI bar(nullptr);
    auto *button = bar.findChild<QPushButton *>("pushButtonCamera");
    QVERIFY(!button->isEnabled());
    {
        FakeCameraMainManager camera;
        QVERIFY(!button->isEnabled());
        emit services.cameraList.signalUpdateCameraList();
        QVERIFY(button->isEnabled());
    }
    bar.slotUpdateUI();
    QVERIFY(!button->isEnabled());
}

void NavigationBarsTest::switchBarForm()
{
    FakeServices services;
    WidgetSwitchUI bar(nullptr);
    QCOMPARE(bar.objectName(), QString("WidgetSwitchUI"));
    QCOMPARE(bar.size(), QSize(400, 300));
    QCOMPARE(bar.windowTitle(), QString("Form"));

    auto *outer = qobject_cast<QHBoxLayout *>(bar.layout());
    QVERIFY(outer);
    QCOMPARE(outer->objectName(), QString("horizontalLayout_2"));
    QCOMPARE(outer->contentsMargins(), QMargins());
    QCOMPARE(outer->count(), 1);
    auto *row = qobject_cast<QHBoxLayout *>(outer->itemAt(0)->layout());
    QVERIFY(row);
    QCOMPARE(row->objectName(), QString("horizontalLayout"));
    QCOMPARE(row->spacing(), 0);
    QCOMPARE(row->count(), 2);
    QCOMPARE(row->itemAt(1)->widget(), static_cast<QWidget *>(services.thumbnails));
    auto *column = qobject_cast<QVBoxLayout *>(row->itemAt(0)->layout());
    QVERIFY(column);
    QCOMPARE(column->objectName(), QString("verticalLayout"));
    QStringList names;
    QStringList toolTips;
    QStringList spokenNames;
    for (int i = 0; i < 4; ++i) {
        auto *button = qobject_cast<QPushButton *>(column->itemAt(i)->widget());
        QVERIFY(button);
        QVERIFY(button->text().isEmpty());
        names << button->objectName();
        toolTips << button->toolTip();
        spokenNames << button->accessibleName();
    }
    QCOMPARE(names, QStringList({ "pushButtonShowFileDirTreeView", "pushButtonReturn", "pushButtonModifyDPI",
                                  "pushButtonConvertCSV" }));
    QCOMPARE(toolTips, QStringList({ "Show File Directory(Ctrl+P)", "", "Modify DPI", "Convert to CSV" }));
    QCOMPARE(spokenNames, QStringList({ "Show File Directory", "Back to the View Before", "Modify DPI",
                                        "Convert to CSV" }));
    const QSpacerItem *spacer = column->itemAt(4)->spacerItem();
    QVERIFY(spacer);
    QCOMPARE(spacer->sizeHint(), QSize(20, 40));
    QCOMPARE(spacer->sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Expanding));
}

void NavigationBarsTest::switchBarIconSizes_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("side");
    QTest::addColumn<int>("largeIcon");
    QTest::addColumn<int>("smallIcon");
    QTest::newRow("30") << 1.0 << 30 << 24 << 18;
    QTest::newRow("33") << 1.1 << 33 << 26 << 19; // 26.4 and 19.8
}

void NavigationBarsTest::switchBarIconSizes()
{
    QFETCH(double, scale);
    QFETCH(int, side);
    QFETCH(int, largeIcon);
    QFETCH(int, smallIcon);
    FakeServices services;
    DisplayScale displayScale(scale);
    WidgetSwitchUI bar(nullptr);
    const auto button = [&](const char *name) { return bar.findChild<QPushButton *>(name); };
    for (const char *name : { "pushButtonShowFileDirTreeView", "pushButtonReturn" })
        QCOMPARE(button(name)->iconSize(), QSize(largeIcon, largeIcon));
    for (const char *name : { "pushButtonModifyDPI", "pushButtonConvertCSV" })
        QCOMPARE(button(name)->iconSize(), QSize(smallIcon, smallIcon));
    for (const QPushButton *each : bar.findChildren<QPushButton *>()) {
        QCOMPARE(each->minimumSize(), QSize(side, side));
        QCOMPARE(each->maximumSize(), QSize(side, side));
    }
}

void NavigationBarsTest::switchBarCommands()
{
    FakeServices services;
    WidgetSwitchUI bar(nullptr);
    CallLog::Clear();
    for (const char *name : { "pushButtonShowFileDirTreeView", "pushButtonReturn", "pushButtonModifyDPI",
                              "pushButtonConvertCSV" })
        bar.findChild<QPushButton *>(name)->click();
    QCOMPARE(CallLog::Calls(),
             QStringList({ "UIConfigManager::SetFileView()", "UIConfigManager::FileViewReturn()",
                           "UIConfigManager::slotModifyDPI()", "UIConfigManager::slotConvertToCSV()" }));
}

void NavigationBarsTest::switchBarSwapsItsFirstButton()
{
    FakeServices services;
    WidgetSwitchUI bar(nullptr);
    auto *show = bar.findChild<QPushButton *>("pushButtonShowFileDirTreeView");
    auto *back = bar.findChild<QPushButton *>("pushButtonReturn");
    QVERIFY(!show->isHidden());
    QVERIFY(back->isHidden());
    for (int view : { FileView, CameraView, ImageView, FileView, CameraCompareView, ImageCompareView }) {
        services.uiConfig.currentView = view;
        emit services.uiConfig.signalSwitchView();
        QCOMPARE(back->isHidden(), view != FileView);
        QCOMPARE(show->isHidden(), view == FileView);
    }
}

void NavigationBarsTest::slotsInOrder()
{
    QCOMPARE(OwnMethods(ImageNavigateUI::staticMetaObject),
             QStringList({ "slotUpdateUI()", "on_pushButtonCamera_clicked()",
                           "on_pushButtonNewImageCopy_clicked()" }));
    QCOMPARE(OwnMethods(WidgetSwitchUI::staticMetaObject),
             QStringList({ "on_pushButtonShowFileDirTreeView_clicked()", "on_pushButtonReturn_clicked()",
                           "slotUpdateUI()", "on_pushButtonModifyDPI_clicked()",
                           "on_pushButtonConvertCSV_clicked()" }));
}

GUARDED_TEST_MAIN(NavigationBarsTest)
#include "tst_navigationbars.moc"
