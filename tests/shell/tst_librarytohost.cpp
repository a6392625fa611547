// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakeservices.h"
#include "globalui.h"
#include "guardedtest.h"

#include <QMainWindow>
#include <QStackedWidget>
#include <QTabWidget>

/// A host that sees nothing but the shared library and its public header.
class LibraryToHostTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void buildsItsWindow();
    void knowsTheClassAcrossTheBorder();
};

void LibraryToHostTest::buildsItsWindow()
{
    FakeServices services;
    QMainWindow window;
    GlobalUI *ui = GlobalUI::GetInstance();
    ui->InitMainUI(&window);
    QCOMPARE(ui->GetCenterStackedWidget()->count(), 3);
    QCOMPARE(ui->GetLeftStackedWidget()->count(), 3);
    QCOMPARE(ui->GetRightTabWidget()->count(), 4);
    QCOMPARE(ui->GetBottomTabWidget()->count(), 1);
    services.uiConfig.currentView = 2;
    services.uiConfig.centerStackedWidgetIndex = 2;
    emit services.uiConfig.signalSwitchView();
    QCOMPARE(ui->GetCenterStackedWidget()->currentIndex(), 2);
    delete ui;
}

void LibraryToHostTest::knowsTheClassAcrossTheBorder()
{
    FakeServices services;
    QObject *object = GlobalUI::GetInstance();
    QVERIFY(qobject_cast<GlobalUI *>(object));
    LxObserver *observer = GlobalUI::GetInstance();
    QVERIFY(dynamic_cast<GlobalUI *>(observer));
    delete observer; // through its second base
}

GUARDED_TEST_MAIN(LibraryToHostTest)
#include "tst_librarytohost.moc"
