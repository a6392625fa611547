// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "numberbox.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QVBoxLayout>

class NumberBoxTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void typedNumberIsMovedToTheLimit_data();
    void typedNumberIsMovedToTheLimit();
    void valueIsToldOnceWhenItIsWhole();
    void germanAndProgrammersWaysOfWriting_data();
    void germanAndProgrammersWaysOfWriting();
    void nonsenseIsNotTaken();
    void typingIsNotDisturbed();
};

void NumberBoxTest::typedNumberIsMovedToTheLimit_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("value");
    QTest::newRow("inside") << "4.5" << 4.5;
    QTest::newRow("above") << "99999" << 1000.0;
    QTest::newRow("far above") << "1e300" << 1000.0;
    QTest::newRow("below") << "0" << 0.01;
    QTest::newRow("negative") << "-7" << 0.01;
    QTest::newRow("at the limit") << "1000" << 1000.0;
}

void NumberBoxTest::typedNumberIsMovedToTheLimit()
{
    QFETCH(QString, typed);
    QFETCH(double, value);
    NumberBox box;
    box.setLocale(QLocale::c());
    box.setDecimals(3);
    box.setSuffix(" ms");
    box.Show(0.01, 1000, 10);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    box.selectAll();
    QTest::keyClicks(&box, typed);
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(box.value(), value);
    QCOMPARE(box.text(), QLocale::c().toString(value, 'f', 3) + " ms");
}

void NumberBoxTest::valueIsToldOnceWhenItIsWhole()
{
    NumberBox box;
    box.Show(0, 100, 10);
    QSignalSpy told(&box, QOverload<double>::of(&QDoubleSpinBox::valueChanged));
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    box.selectAll();
    QTest::keyClicks(&box, "42");
    QCOMPARE(told.count(), 0);
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(told.count(), 1);
    QCOMPARE(told.first().first().toDouble(), 42.0);
}

void NumberBoxTest::germanAndProgrammersWaysOfWriting_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("comma") << "4,5";
    QTest::newRow("point") << "4.5";
}

void NumberBoxTest::germanAndProgrammersWaysOfWriting()
{
    QFETCH(QString, typed);
    QLocale german(QLocale::German, QLocale::Germany);
    german.setNumberOptions(QLocale::RejectGroupSeparator);
    NumberBox box;
    box.setLocale(german);
    box.setDecimals(1);
    box.Show(0, 100, 10);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    box.selectAll();
    QTest::keyClicks(&box, typed);
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(box.value(), 4.5);
    QCOMPARE(box.text(), QString("4,5"));
}

void NumberBoxTest::nonsenseIsNotTaken()
{
    NumberBox box;
    box.Show(0, 100, 10);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    box.selectAll();
    QTest::keyClicks(&box, "nan");
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(box.value(), 10.0);
}

/// A camera that changes its exposure by itself must not tear the number from under the fingers.
void NumberBoxTest::typingIsNotDisturbed()
{
    QWidget window;
    auto *column = new QVBoxLayout(&window);
    auto *box = new NumberBox(&window);
    column->addWidget(box);
    box->Show(0, 100, 10);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, "4");
    box->Show(0, 200, 30);
    QTest::keyClicks(box, "2");
    QTest::keyClick(box, Qt::Key_Return);
    QCOMPARE(box->value(), 42.0);
    QCOMPARE(box->maximum(), 200.0);
}

GUARDED_TEST_MAIN(NumberBoxTest)
#include "numberboxtest.moc"
