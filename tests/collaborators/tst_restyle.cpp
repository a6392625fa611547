// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"

#include "applicationstylesheet.h"
#include "restyle.h"

#include <QPushButton>

namespace {

const char looks[] = "QPushButton { border: none; background: rgb(10, 20, 30); }"
                     "QPushButton#on { background: rgb(200, 0, 0); }"
                     "QPushButton#off { background: rgb(0, 0, 200); }";
const QColor plain(10, 20, 30);
const QColor on(200, 0, 0);
const QColor off(0, 0, 200);

QColor Colour(QWidget *widget) { return widget->grab().toImage().pixelColor(5, 5); }

} // namespace

/// A button whose look comes from a style sheet by its name.
class TestRestyle : public GuardedTest
{
    Q_OBJECT

private slots:
    void TheLookFollowsTheName_data();
    void TheLookFollowsTheName();
    void ItsOwnStyleSheetIsEmptied();
};

void TestRestyle::TheLookFollowsTheName_data()
{
    QTest::addColumn<bool>("ofApplication");
    QTest::addColumn<bool>("ofWindow");
    QTest::newRow("style sheet of the application") << true << false;
    QTest::newRow("style sheet of the window") << false << true;
    QTest::newRow("style sheets of both") << true << true;
}

void TestRestyle::TheLookFollowsTheName()
{
    QFETCH(bool, ofApplication);
    QFETCH(bool, ofWindow);
    const ApplicationStyleSheet sheet(ofApplication ? looks : "");
    QWidget window;
    if (ofWindow)
        window.setStyleSheet(looks);
    auto *button = new QPushButton(&window);
    window.resize(200, 100);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(Colour(button), plain);

    RenameAndRestyle(button, "on");
    QCOMPARE(button->objectName(), QString("on"));
    QCOMPARE(Colour(button), on);
    RenameAndRestyle(button, "off");
    QCOMPARE(Colour(button), off);
    RenameAndRestyle(button, "nobody");
    QCOMPARE(Colour(button), plain);
}

void TestRestyle::ItsOwnStyleSheetIsEmptied()
{
    const ApplicationStyleSheet sheet(looks);
    QPushButton button;
    button.setStyleSheet("background: rgb(1, 2, 3);");
    RenameAndRestyle(&button, "on");
    QCOMPARE(button.styleSheet(), QString());
    QCOMPARE(Colour(&button), on);
}

GUARDED_TEST_MAIN(TestRestyle)
#include "tst_restyle.moc"
