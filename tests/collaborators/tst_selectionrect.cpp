// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"

#include "selectionrect.h"

#include <QMetaType>

using Grip = SelectionRect::Grip;
Q_DECLARE_METATYPE(Grip)

class TestSelectionRect : public GuardedTest
{
    Q_OBJECT

private slots:
    void ADragDrawsARectangleOfWholePixels_data();
    void ADragDrawsARectangleOfWholePixels();
    void ADragOfAGripChangesTheRectangle_data();
    void ADragOfAGripChangesTheRectangle();
    void FindsTheGripUnderTheMouse_data();
    void FindsTheGripUnderTheMouse();
    void ASmallRectangleCanStillBeMoved();
    void AClickBesideTheRectangleKeepsIt();
    void NothingIsDraggedWithoutAPress();
    void ASmallerPictureCutsTheRectangle();
    void SetRectKeepsToThePicture();
};

void TestSelectionRect::ADragDrawsARectangleOfWholePixels_data()
{
    QTest::addColumn<QPointF>("from");
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<QRect>("rect");
    QTest::newRow("to the lower right")
        << QPointF(10.2, 20.4) << QPointF(50.3, 60.0) << QRect(10, 20, 40, 40);
    QTest::newRow("edges are rounded") << QPointF(10.6, 20.5) << QPointF(49.5, 59.4) << QRect(11, 21, 39, 38);
    QTest::newRow("to the upper left") << QPointF(50, 60) << QPointF(10, 20) << QRect(10, 20, 40, 40);
    QTest::newRow("beyond the picture") << QPointF(50, 60) << QPointF(1e12, -1e12) << QRect(50, 0, 50, 60);
    QTest::newRow("from outside") << QPointF(-30, -30) << QPointF(5, 5) << QRect(0, 0, 5, 5);
    QTest::newRow("no height") << QPointF(10, 20) << QPointF(50, 20.2) << QRect();
}

void TestSelectionRect::ADragDrawsARectangleOfWholePixels()
{
    QFETCH(QPointF, from);
    QFETCH(QPointF, to);
    QFETCH(QRect, rect);
    SelectionRect selection;
    selection.SetBounds(QRect(0, 0, 100, 80));
    selection.Press(from, 3);
    QVERIFY(selection.IsDragging());
    QCOMPARE(selection.Drag(to), !rect.isEmpty());
    selection.Release();
    QVERIFY(!selection.IsDragging());
    QCOMPARE(selection.Rect(), rect);
}

void TestSelectionRect::ADragOfAGripChangesTheRectangle_data()
{
    QTest::addColumn<QPointF>("from");
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<QRect>("rect");
    // The rectangle reaches from (20, 20) to (60, 50) in a picture of 100 x 80.
    QTest::newRow("body") << QPointF(40, 35) << QPointF(45.4, 30) << QRect(25, 15, 40, 30);
    QTest::newRow("body, against the corner")
        << QPointF(40, 35) << QPointF(400, 350) << QRect(60, 50, 40, 30);
    QTest::newRow("body, against the origin")
        << QPointF(40, 35) << QPointF(-400, -350) << QRect(0, 0, 40, 30);
    QTest::newRow("left") << QPointF(20, 35) << QPointF(10, 70) << QRect(10, 20, 50, 30);
    QTest::newRow("right") << QPointF(61, 35) << QPointF(70, 0) << QRect(20, 20, 50, 30);
    QTest::newRow("top") << QPointF(40, 19) << QPointF(0, 5) << QRect(20, 5, 40, 45);
    QTest::newRow("bottom") << QPointF(40, 50) << QPointF(0, 99) << QRect(20, 20, 40, 60);
    QTest::newRow("top left") << QPointF(20, 20) << QPointF(5, 6) << QRect(5, 6, 55, 44);
    QTest::newRow("bottom right") << QPointF(60, 50) << QPointF(30, 30) << QRect(20, 20, 10, 10);
    QTest::newRow("left, across the right edge")
        << QPointF(20, 35) << QPointF(80, 35) << QRect(60, 20, 20, 30);
    QTest::newRow("corner, turned over") << QPointF(60, 50) << QPointF(10, 10) << QRect(10, 10, 10, 10);
}

void TestSelectionRect::ADragOfAGripChangesTheRectangle()
{
    QFETCH(QPointF, from);
    QFETCH(QPointF, to);
    QFETCH(QRect, rect);
    SelectionRect selection;
    selection.SetBounds(QRect(0, 0, 100, 80));
    selection.SetRect(QRect(20, 20, 40, 30));
    selection.Press(from, 3);
    QVERIFY(selection.Drag(to));
    QVERIFY(!selection.Drag(to)); // nothing new
    QCOMPARE(selection.Rect(), rect);
}

void TestSelectionRect::FindsTheGripUnderTheMouse_data()
{
    QTest::addColumn<QPointF>("scenePos");
    QTest::addColumn<Grip>("grip");
    QTest::newRow("middle") << QPointF(40, 35) << Grip::Body;
    QTest::newRow("far away") << QPointF(90, 70) << Grip::None;
    QTest::newRow("just out of reach") << QPointF(63.5, 35) << Grip::None;
    QTest::newRow("left edge, inside") << QPointF(22, 35) << Grip::Left;
    QTest::newRow("left edge, outside") << QPointF(18, 35) << Grip::Left;
    QTest::newRow("right edge") << QPointF(62, 35) << Grip::Right;
    QTest::newRow("top edge") << QPointF(40, 18) << Grip::Top;
    QTest::newRow("bottom edge") << QPointF(40, 52) << Grip::Bottom;
    QTest::newRow("top left") << QPointF(21, 19) << Grip::TopLeft;
    QTest::newRow("top right") << QPointF(61, 21) << Grip::TopRight;
    QTest::newRow("bottom left") << QPointF(18, 52) << Grip::BottomLeft;
    QTest::newRow("bottom right") << QPointF(62, 52) << Grip::BottomRight;
}

void TestSelectionRect::FindsTheGripUnderTheMouse()
{
    QFETCH(QPointF, scenePos);
    QFETCH(Grip, grip);
    SelectionRect selection;
    selection.SetBounds(QRect(0, 0, 100, 80));
    QCOMPARE(selection.GripAt(scenePos, 3), Grip::None);
    selection.SetRect(QRect(20, 20, 40, 30));
    QCOMPARE(selection.GripAt(scenePos, 3), grip);
}

void TestSelectionRect::ASmallRectangleCanStillBeMoved()
{
    SelectionRect selection;
    selection.SetBounds(QRect(0, 0, 100, 80));
    selection.SetRect(QRect(20, 20, 3, 3));
    QCOMPARE(selection.GripAt(QPointF(21.5, 21.5), 8), Grip::Body);
    QCOMPARE(selection.GripAt(QPointF(28, 28), 8), Grip::BottomRight);
}

void TestSelectionRect::AClickBesideTheRectangleKeepsIt()
{
    SelectionRect selection;
    selection.SetBounds(QRect(0, 0, 100, 80));
    selection.SetRect(QRect(20, 20, 40, 30));
    selection.Press(QPointF(80, 70), 3);
    QVERIFY(!selection.Drag(QPointF(80.2, 70.2)));
    selection.Release();
    QCOMPARE(selection.Rect(), QRect(20, 20, 40, 30));
}

void TestSelectionRect::NothingIsDraggedWithoutAPress()
{
    SelectionRect selection;
    selection.SetBounds(QRect(0, 0, 100, 80));
    QVERIFY(!selection.Drag(QPointF(50, 50)));
    QVERIFY(selection.IsEmpty());
    selection.Press(QPointF(10, 10), 3);
    selection.Drag(QPointF(20, 20));
    selection.Clear();
    QVERIFY(!selection.Drag(QPointF(50, 50)));
    QVERIFY(selection.IsEmpty());
}

void TestSelectionRect::ASmallerPictureCutsTheRectangle()
{
    SelectionRect selection;
    selection.SetBounds(QRect(0, 0, 100, 80));
    selection.SetRect(QRect(20, 20, 40, 30));
    selection.SetBounds(QRect(0, 0, 50, 40));
    QCOMPARE(selection.Rect(), QRect(20, 20, 30, 20));
    selection.SetBounds(QRect(0, 0, 10, 10));
    QVERIFY(selection.IsEmpty());
}

void TestSelectionRect::SetRectKeepsToThePicture()
{
    SelectionRect selection;
    selection.SetBounds(QRect(0, 0, 100, 80));
    selection.SetRect(QRect(-10, 70, 30, 30));
    QCOMPARE(selection.Rect(), QRect(0, 70, 20, 10));
}

GUARDED_TEST_MAIN(TestSelectionRect)
#include "tst_selectionrect.moc"
