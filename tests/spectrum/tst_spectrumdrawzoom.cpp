// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "spectrumpage.h"

#include <QRandomGenerator>

#include <cmath>

/// The spectrum image under the mouse: clicks, zooms and steps back.
class TestSpectrumDrawZoom : public GuardedTest
{
    Q_OBJECT

private slots:
    void clickPicks();
    void shortWaysAreClicks_data();
    void shortWaysAreClicks();
    void dragToTheRightZoomsIn();
    void dragUpwardsZoomsInToo();
    void dragToTheLeftStepsBack();
    void stepsBackInTurn();
    void leftDragOfAWholePictureShowsTheWhole();
    void tinyRectangleStopsAtTheLargestScale();
    void dragOutOfTheView();
    void clickOutOfTheView();
    void otherButtonsDoNothing();
    void newSizeDuringADrag_data();
    void newSizeDuringADrag();
    void dragWithoutAPicture();
    void dragWithoutRoom();
    void stepBackWithoutRoomKeepsTheLevels();
    void randomDrags();
};

void TestSpectrumDrawZoom::clickPicks()
{
    SpectrumPage p;
    QVERIFY(p.Show());
    p.ShowLive(QSize(1200, 400));
    p.LogSignals();
    p.Press(QPointF(100, 50));
    QCOMPARE(p.TakeSignals(), QStringList("SignalDrawArea((200, 100), true, true)"));
    p.Release(QPointF(100, 50));
    QCOMPARE(p.TakeSignals(),
             QStringList({ "SignalPressPosChange((200, 100), (0, 0, 1, 1))",
                           "SignalPressPosChangeStatic((200, 100), (0, 0, 1, 1), true)",
                           "SignalDrawArea((200, 100), true, false)", "SignalAnchorPosChange((100, 50))" }));
    p.SendMouse(QEvent::MouseMove, QPointF(120, 60), Qt::NoButton);
    QCOMPARE(p.TakeSignals(), QStringList());
}

void TestSpectrumDrawZoom::shortWaysAreClicks_data()
{
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<bool>("zooms");
    QTest::newRow("6 on both axes") << QPointF(106, 56) << false;
    QTest::newRow("6 on x") << QPointF(106, 150) << false;
    QTest::newRow("6 on y") << QPointF(200, 56) << false;
    QTest::newRow("6 back on x") << QPointF(94, 150) << false;
    QTest::newRow("7 on both axes") << QPointF(107, 57) << true;
    QTest::newRow("a little more than 6") << QPointF(106.5, 56.5) << true;
    QTest::newRow("7 back") << QPointF(93, 43) << true;
}

void TestSpectrumDrawZoom::shortWaysAreClicks()
{
    QFETCH(QPointF, to);
    QFETCH(bool, zooms);
    SpectrumPage p;
    QVERIFY(p.Show());
    p.ShowLive(QSize(1200, 400));
    p.LogSignals();
    p.Drag(QPointF(100, 50), to);
    const QStringList calls = CallLog::Calls();
    QCOMPARE(p.TakeSignals("SignalNewRect").size(), zooms ? 1 : 0);
    QCOMPARE(calls.last().startsWith("SignalAnchorPosChange"), true);
    QCOMPARE(calls.filter("SignalDrawArea").size(), 3);
}

void TestSpectrumDrawZoom::dragToTheRightZoomsIn()
{
    SpectrumPage p;
    QVERIFY(p.Show());
    p.ShowLive(QSize(1200, 400));
    p.LogSignals();
    p.Press(QPointF(100, 50));
    p.Move(QPointF(150, 90));
    p.Move(QPointF(250, 150));
    p.Release(QPointF(250, 150));
    QCOMPARE(
        p.TakeSignals(),
        QStringList({ "SignalDrawArea((200, 100), true, true)", "SignalDrawArea((300, 180), false, false)",
                      "SignalDrawArea((500, 300), false, false)", "SignalDrawArea((500, 300), true, false)",
                      "SignalImageChange(600x400)", "SignalSetSliderPosition((400, 200))",
                      "SignalNewRect(200, 500, 100, 300)",
                      "SignalPressPosChange((350, 200), (0.166667, 0.25, 0.416667, 0.75))",
                      "SignalPressPosChangeStatic((350, 200), (0.166667, 0.25, 0.416667, 0.75), true)",
                      "SignalAnchorPosChange((300, 200))" }));
    QCOMPARE(p.Scale(), 2.0);
    QCOMPARE(p.view->size(), QSize(2400, 800));
    QCOMPARE(p.frame->size(), QSize(600, 400));
    QCOMPARE(p.FrameScroll(), QPoint(400, 200));
    QCOMPARE(p.view->pos(), QPoint(-400, -200));
    // A click goes on with the part that is now seen.
    p.Press(QPointF(500, 300));
    p.Release(QPointF(500, 300));
    QCOMPARE(p.TakeSignals("SignalPressPosChange("),
             QStringList("SignalPressPosChange((250, 150), (0.166667, 0.25, 0.416667, 0.75))"));
}

void TestSpectrumDrawZoom::dragUpwardsZoomsInToo()
{
    SpectrumPage p;
    QVERIFY(p.Show());
    p.ShowLive(QSize(1200, 400));
    p.LogSignals();
    p.Drag(QPointF(100, 150), QPointF(250, 50));
    QCOMPARE(p.TakeSignals("SignalNewRect"), QStringList("SignalNewRect(200, 500, 100, 300)"));
}

void TestSpectrumDrawZoom::dragToTheLeftStepsBack()
{
    SpectrumPage p;
    QVERIFY(p.Show());
    p.ShowLive(QSize(1200, 400));
    p.Drag(QPointF(100, 50), QPointF(250, 150));
    p.LogSignals();
    p.Drag(QPointF(800, 400), QPointF(500, 300));
    QCOMPARE(
        p.TakeSignals(),
        QStringList({ "SignalDrawArea((400, 200), true, true)", "SignalDrawArea((250, 150), false, false)",
                      "SignalDrawArea((250, 150), true, false)", "SignalImageChange(600x200)",
                      "SignalSetSliderPosition((0, 0))", "SignalNewRect(0, 1200, 0, 400)",
                      "SignalPressPosChange((600, 200), (0, 0, 1, 1))",
                      "SignalPressPosChangeStatic((600, 200), (0, 0, 1, 1), true)",
                      "SignalAnchorPosChange((300, 100))" }));
    QCOMPARE(p.view->size(), QSize(600, 200));
    QCOMPARE(p.view->pos(), QPoint(0, 0));
}

void TestSpectrumDrawZoom::stepsBackInTurn()
{
    SpectrumPage p;
    QVERIFY(p.Show());
    p.ShowLive(QSize(1200, 400));
    p.DragInPicture(QPointF(100, 50), QPointF(400, 250));  // scale 2
    p.DragInPicture(QPointF(150, 100), QPointF(250, 150)); // scale 8
    QCOMPARE(p.Scale(), 8.0);
    p.LogSignals();
    p.DragInPicture(QPointF(200, 140), QPointF(160, 110));
    QCOMPARE(p.Scale(), 2.0);
    QCOMPARE(p.FrameScroll(), QPoint(200, 100)); // where it was before
    const QStringList back = p.TakeSignals();
    QCOMPARE(back.filter("SignalNewRect"), QStringList("SignalNewRect(100, 400, 50, 250)")); // what is seen
    QCOMPARE(back.filter("SignalPressPosChange("),
             QStringList("SignalPressPosChange((250, 150), (0.0833333, 0.125, 0.333333, 0.625))"));
    p.DragInPicture(QPointF(200, 140), QPointF(160, 110));
    QCOMPARE(p.Scale(), 0.5);
    QCOMPARE(p.TakeSignals("SignalNewRect"), QStringList("SignalNewRect(0, 1200, 0, 400)"));
    // The page's size changes while the level stepped back to is shown: all of the picture comes.
    p.DragInPicture(QPointF(100, 50), QPointF(400, 250));
    p.DragInPicture(QPointF(150, 100), QPointF(250, 150));
    p.DragInPicture(QPointF(200, 140), QPointF(160, 110));
    CallLog::Clear();
    p.view->RestoreView(false);
    QCOMPARE(p.Scale(), 0.5);
    QCOMPARE(p.TakeSignals("SignalNewRect"), QStringList("SignalNewRect(0, 1200, 0, 400)"));
}

void TestSpectrumDrawZoom::leftDragOfAWholePictureShowsTheWhole()
{
    SpectrumPage p;
    QVERIFY(p.Show());
    p.ShowLive(QSize(1200, 400));
    p.LogSignals();
    for (int turn = 0; turn < 3; ++turn) {
        p.Drag(QPointF(300, 150), QPointF(200, 50));
        QCOMPARE(p.TakeSignals("SignalNewRect"), QStringList("SignalNewRect(0, 1200, 0, 400)"));
        QCOMPARE(p.view->size(), QSize(600, 200));
    }
}

void TestSpectrumDrawZoom::tinyRectangleStopsAtTheLargestScale()
{
    SpectrumPage p;
    QVERIFY(p.Show());
    p.ShowLive(QSize(1200, 400));
    p.DragInPicture(QPointF(580, 180), QPointF(610, 200)); // scale 20
    p.LogSignals();
    p.Drag(p.view->mapFromScene(590, 190), p.view->mapFromScene(590, 190) + QPoint(8, 8));
    QCOMPARE(p.Scale(), 32.0);
    QCOMPARE(p.TakeSignals("SignalImageChange"), QStringList("SignalImageChange(600x400)"));
    QCOMPARE(p.view->size(), QSize(1200 * 32, 400 * 32));
}

void TestSpectrumDrawZoom::dragOutOfTheView()
{
    SpectrumPage p;
    QVERIFY(p.Show());
    p.ShowLive(QSize(1200, 400));
    p.LogSignals();
    p.Drag(QPointF(450, 100), QPointF(2000, 900)); // to the picture's edges and no further
    QCOMPARE(p.TakeSignals("SignalNewRect"), QStringList("SignalNewRect(900, 1200, 200, 400)"));
    QCOMPARE(p.Scale(), 2.0);
    p.Drag(p.view->mapFromScene(1000, 300), QPointF(-500, -500));
    QCOMPARE(p.TakeSignals("SignalNewRect"), QStringList("SignalNewRect(0, 1200, 0, 400)"));
}

void TestSpectrumDrawZoom::clickOutOfTheView()
{
    SpectrumPage p;
    QVERIFY(p.Show());
    p.ShowLive(QSize(1200, 400));
    p.LogSignals();
    p.Drag(QPointF(450, 100), QPointF(900, 103));
    const QString pick = p.TakeSignals("SignalPressPosChange(").value(0);
    QCOMPARE(pick, QString("SignalPressPosChange((1200, 206), (0, 0, 1, 1))")); // rounded in the log
    p.Drag(QPointF(450, 100), QPointF(449, -300));
    QCOMPARE(p.TakeSignals("SignalPressPosChange("),
             QStringList("SignalPressPosChange((898, 0), (0, 0, 1, 1))"));
}

void TestSpectrumDrawZoom::otherButtonsDoNothing()
{
    SpectrumPage p;
    QVERIFY(p.Show());
    p.ShowLive(QSize(1200, 400));
    p.LogSignals();
    p.SendMouse(QEvent::MouseButtonPress, QPointF(100, 50), Qt::RightButton, Qt::RightButton);
    p.SendMouse(QEvent::MouseMove, QPointF(200, 150), Qt::RightButton, Qt::RightButton);
    p.SendMouse(QEvent::MouseButtonRelease, QPointF(200, 150), Qt::NoButton, Qt::RightButton);
    QCOMPARE(p.TakeSignals(), QStringList());
    // Nor do they disturb a drag.
    p.Press(QPointF(100, 50));
    p.SendMouse(QEvent::MouseButtonPress, QPointF(120, 60), Qt::LeftButton | Qt::RightButton,
                Qt::RightButton);
    p.SendMouse(QEvent::MouseMove, QPointF(130, 70), Qt::LeftButton | Qt::RightButton);
    p.SendMouse(QEvent::MouseButtonRelease, QPointF(130, 70), Qt::LeftButton, Qt::RightButton);
    p.Move(QPointF(250, 150));
    p.Release(QPointF(250, 150));
    const QStringList calls = p.TakeSignals();
    QCOMPARE(calls.filter("SignalDrawArea"), QStringList({ "SignalDrawArea((200, 100), true, true)",
                                                           "SignalDrawArea((500, 300), false, false)",
                                                           "SignalDrawArea((500, 300), true, false)" }));
    QCOMPARE(calls.filter("SignalNewRect"), QStringList("SignalNewRect(200, 500, 100, 300)"));
}

void TestSpectrumDrawZoom::newSizeDuringADrag_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPointF>("to");
    QTest::newRow("smaller, to the right") << QSize(60, 40) << QPointF(550, 190);
    QTest::newRow("smaller, to the left") << QSize(60, 40) << QPointF(20, 10);
    QTest::newRow("larger, to the right") << QSize(4000, 3000) << QPointF(550, 190);
    QTest::newRow("one row") << QSize(4000, 1) << QPointF(550, 190);
    QTest::newRow("a click") << QSize(60, 40) << QPointF(301, 101);
}

void TestSpectrumDrawZoom::newSizeDuringADrag()
{
    QFETCH(QSize, size);
    QFETCH(QPointF, to);
    SpectrumPage p;
    QVERIFY(p.Show());
    p.ShowLive(QSize(1200, 400));
    p.Press(QPointF(300, 100));
    p.Move(QPointF(320, 120));
    p.ShowLive(size);
    const QSize viewSize = p.view->size();
    p.LogSignals();
    p.Move(to);
    p.Release(to);
    // The picture stays; the rectangle of the drag ends.
    const QStringList calls = p.TakeSignals();
    QCOMPARE(calls.size(), 1);
    QVERIFY(calls.first().startsWith("SignalDrawArea") && calls.first().endsWith("true, false)"));
    QCOMPARE(p.view->size(), viewSize);
    QCOMPARE(p.view->GetImageSize(), size);
    // The next drag is one again.
    p.Drag(QPointF(10, 0), QPointF(10, 0));
    QCOMPARE(p.TakeSignals("SignalPressPosChange(").size(), 1);
}

void TestSpectrumDrawZoom::dragWithoutAPicture()
{
    SpectrumPage p;
    QVERIFY(p.Show());
    p.LogSignals();
    p.Drag(QPointF(300, 200), QPointF(100, 100));
    QCOMPARE(p.TakeSignals("SignalNewRect"), QStringList());
    QCOMPARE(p.view->transform(), QTransform());
}

void TestSpectrumDrawZoom::dragWithoutRoom()
{
    SpectrumPage p;
    QVERIFY(p.Show());
    p.ShowLive(QSize(1200, 400));
    p.Resize(QSize(130, 580));
    p.LogSignals();
    p.Drag(QPointF(100, 50), QPointF(250, 150));
    p.Drag(QPointF(250, 150), QPointF(100, 50));
    QCOMPARE(p.TakeSignals("SignalNewRect"), QStringList());
    QCOMPARE(p.view->size(), QSize(600, 200));
}

void TestSpectrumDrawZoom::stepBackWithoutRoomKeepsTheLevels()
{
    SpectrumPage p;
    QVERIFY(p.Show());
    p.ShowLive(QSize(1200, 400));
    p.DragInPicture(QPointF(100, 50), QPointF(400, 250));
    p.DragInPicture(QPointF(150, 100), QPointF(250, 150));
    p.Resize(QSize(130, 580));
    p.DragInPicture(QPointF(200, 140), QPointF(160, 110));
    p.Resize(QSize(740, 580));
    p.LogSignals();
    p.view->RestoreView(true); // there is room again for what was seen before
    QCOMPARE(p.Scale(), 8.0);
    QCOMPARE(p.TakeSignals("SignalNewRect"), QStringList("SignalNewRect(162.5, 237.5, 100, 150)"));
}

/// Whatever is dragged: what is reported is what the frame shows of the picture.
void TestSpectrumDrawZoom::randomDrags()
{
    QRandomGenerator random(20263);
    SpectrumPage p;
    QVERIFY(p.Show());
    p.LogSignals();
    int checked = 0;
    for (int round = 0; round < 60; ++round) {
        p.ShowLive(QSize(random.bounded(200, 3000), random.bounded(200, 3000)));
        for (int zoom = 0; zoom < 5; ++zoom) {
            const bool isBack = zoom > 2;
            const QPoint first = -p.view->pos();
            const auto place = [&](int from, int to) {
                return QPointF(first.x() + random.bounded(from, to) * p.frame->width() / 100,
                               first.y() + random.bounded(0, 100) * p.frame->height() / 100);
            };
            const QPointF from = isBack ? place(55, 100) : place(0, 45);
            const QPointF to = isBack ? place(0, 45) : place(55, 100);
            CallLog::Clear();
            p.Drag(from, to);
            const QStringList ranges = p.TakeSignals("SignalNewRect");
            if (ranges.isEmpty())
                continue; // too short on one axis
            const QStringList numbers = ranges.first().section('(', 1).chopped(1).split(", ");
            const QPointF seenFirst = p.view->mapToScene(-p.view->pos());
            const QPointF seenLast =
                p.view->mapToScene(-p.view->pos() + QPoint(p.frame->width(), p.frame->height()));
            const double pixel = 1.01 / p.Scale() + 1e-4; // positions are whole pixels of the screen
            QVERIFY(std::abs(numbers.at(0).toDouble() - seenFirst.x()) <= pixel);
            QVERIFY(std::abs(numbers.at(1).toDouble() - seenLast.x()) <= 2 * pixel);
            QVERIFY(std::abs(numbers.at(2).toDouble() - seenFirst.y()) <= pixel);
            QVERIFY(std::abs(numbers.at(3).toDouble() - seenLast.y()) <= 2 * pixel);
            ++checked;
        }
    }
    QVERIFY(checked > 180);
}

GUARDED_TEST_MAIN(TestSpectrumDrawZoom)
#include "tst_spectrumdrawzoom.moc"
