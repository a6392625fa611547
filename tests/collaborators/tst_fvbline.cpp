// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"

#include "fakespectrumuimanager.h"
#include "focusinfo.h"

#include <QGraphicsView>
#include <QSignalSpy>

#include <memory>

namespace {

/// Presses, moves and releases the left button on a view, at positions in picture pixels.
void DragInView(QGraphicsView *view, const QPointF &from, const QPointF &to)
{
    const QPoint begin = view->mapFromScene(from);
    const QPoint end = view->mapFromScene(to);
    QTest::mousePress(view->viewport(), Qt::LeftButton, Qt::NoModifier, begin);
    QMouseEvent move(QEvent::MouseMove, end, view->viewport()->mapToGlobal(end), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(view->viewport(), &move);
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, Qt::NoModifier, end);
}

QGraphicsObject *Band(const FocusInfo &info)
{
    return qobject_cast<QGraphicsObject *>(info.GetFVBLineObject());
}

} // namespace

/// The FVB band over a black picture of 400 x 300 pixels, shown in its own size.
class TestFVBLine : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override;
    void cleanup() override;
    void TheBandLiesBetweenTheRows();
    void TheBandHasItsLastRow_data();
    void TheBandHasItsLastRow();
    void TheBandFollowsTheService();
    void FewerThanTwoEndPointsDrawNoBand();
    void AnEdgeOfTheBandIsDragged_data();
    void AnEdgeOfTheBandIsDragged();
    void ABandThatIsNotManualStays_data();
    void ABandThatIsNotManualStays();
    void ARetiredBandStaysAway();
    void TheBandOfAnUprightSpectrumLiesBetweenColumns();
    void AnUprightEdgeIsDragged_data();
    void AnUprightEdgeIsDragged();
    void TheDirectionTurnsTheBand();

private:
    FakeSpectrumUIManager m_settings;
    std::unique_ptr<QGraphicsScene> m_scene;
    std::unique_ptr<QGraphicsView> m_view;
};

void TestFVBLine::init()
{
    StartGuard();
    m_settings.directionHorinzontal = true;
    m_scene = std::make_unique<QGraphicsScene>(QRectF(0, 0, 400, 300));
    m_scene->setBackgroundBrush(Qt::black);
    m_view = std::make_unique<QGraphicsView>(m_scene.get());
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setFixedSize(400, 300);
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
}

void TestFVBLine::cleanup()
{
    m_view.reset();
    m_scene.reset();
    EndGuard();
}

void TestFVBLine::TheBandLiesBetweenTheRows()
{
    FocusInfo info(m_scene.get(), FVBAndMultiTrackInfo);
    QGraphicsObject *band = Band(info);
    QVERIFY(!band->isVisible());
    info.AddFVBInfo({QPointF(0, 120.7), QPointF(0, 40.2)}, false);
    QVERIFY(band->isVisible());
    QVERIFY(band->shape().contains(QPointF(200, 40)));
    QVERIFY(band->shape().contains(QPointF(200, 120)));
    QVERIFY(!band->shape().contains(QPointF(200, 80)));
    const QImage picture = m_view->grab().toImage();
    QVERIFY(picture.pixelColor(200, 80) != QColor(Qt::black));
    QCOMPARE(picture.pixelColor(200, 20), QColor(Qt::black));
    QCOMPARE(picture.pixelColor(200, 140), QColor(Qt::black));
}

void TestFVBLine::TheBandHasItsLastRow_data()
{
    QTest::addColumn<bool>("horizontal");
    QTest::addColumn<int>("top");
    QTest::addColumn<int>("bottom");
    QTest::addColumn<int>("lowerEdge"); // in pixels of the view, each row ten
    QTest::newRow("some rows") << true << 4 << 12 << 130;
    QTest::newRow("one row") << true << 12 << 12 << 130;
    QTest::newRow("to the last row") << true << 25 << 29 << 299;
    QTest::newRow("some columns") << false << 4 << 12 << 130;
    QTest::newRow("one column") << false << 12 << 12 << 130;
    QTest::newRow("to the last column") << false << 25 << 39 << 399;
}

void TestFVBLine::TheBandHasItsLastRow()
{
    QFETCH(bool, horizontal);
    QFETCH(int, top);
    QFETCH(int, bottom);
    QFETCH(int, lowerEdge);
    m_settings.directionHorinzontal = horizontal;
    m_scene->setSceneRect(0, 0, 40, 30);
    m_view->scale(10, 10);
    FocusInfo info(m_scene.get(), FVBAndMultiTrackInfo);
    info.AddFVBInfo({QPointF(0, top), QPointF(0, bottom)}, true);
    const QImage picture = m_view->grab().toImage();
    const auto colourAt = [&](int line) { return picture.pixelColor(horizontal ? 200 : line, horizontal ? line : 200); };
    const QColor fill = colourAt(10 * top + 5);
    QVERIFY(fill != QColor(Qt::black));
    QCOMPARE(colourAt(10 * bottom + 5), fill);
    QCOMPARE(colourAt(10 * top), QColor(Qt::yellow));
    QCOMPARE(colourAt(lowerEdge), QColor(Qt::yellow));
    QCOMPARE(colourAt(10 * top - 2), QColor(Qt::black));
    // It is taken where it is drawn, and the row under the mouse is the last one then.
    QSignalSpy changes(Band(info), SIGNAL(SignalTopBottomChanged(int, int)));
    const auto at = [&](double line) { return horizontal ? QPointF(20, line) : QPointF(line, 20); };
    DragInView(m_view.get(), at(lowerEdge / 10.0), at(top + 1.9));
    QCOMPARE(changes.value(0), QList<QVariant>({top, top + 1}));
}

void TestFVBLine::TheBandFollowsTheService()
{
    FocusInfo info(m_scene.get(), FVBAndMultiTrackInfo);
    info.AddFVBInfo({QPointF(0, 40), QPointF(0, 120)}, true);
    QGraphicsObject *band = Band(info);
    QSignalSpy changes(band, SIGNAL(SignalTopBottomChanged(int, int)));
    QMetaObject::invokeMethod(band, "SetFVBArea", Q_ARG(QPointF, QPointF(0, 200)),
                              Q_ARG(QPointF, QPointF(0, 100)));
    QVERIFY(band->shape().contains(QPointF(200, 100)));
    QVERIFY(band->shape().contains(QPointF(200, 200)));
    QVERIFY(!band->shape().contains(QPointF(200, 40)));
    QCOMPARE(changes.count(), 0); // the service knows it already
}

void TestFVBLine::FewerThanTwoEndPointsDrawNoBand()
{
    FocusInfo info(m_scene.get(), FVBAndMultiTrackInfo);
    info.AddFVBInfo({}, true);
    info.AddFVBInfo({QPointF(0, 40)}, true);
    QVERIFY(!Band(info)->isVisible());
}

void TestFVBLine::AnEdgeOfTheBandIsDragged_data()
{
    QTest::addColumn<QPointF>("from");
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<int>("top");
    QTest::addColumn<int>("bottom");
    QTest::newRow("top") << QPointF(200, 101) << QPointF(220, 60) << 60 << 200;
    QTest::newRow("bottom") << QPointF(200, 199) << QPointF(200, 240) << 100 << 240;
    QTest::newRow("bottom, to the last row") << QPointF(200, 200) << QPointF(200, 299) << 100 << 299;
    QTest::newRow("bottom, out of the picture") << QPointF(200, 200) << QPointF(200, 340) << 100 << 299;
    QTest::newRow("top, out of the picture") << QPointF(200, 100) << QPointF(200, -40) << 0 << 200;
    QTest::newRow("top, beyond the bottom") << QPointF(200, 100) << QPointF(200, 250) << 200 << 200;
}

void TestFVBLine::AnEdgeOfTheBandIsDragged()
{
    QFETCH(QPointF, from);
    QFETCH(QPointF, to);
    QFETCH(int, top);
    QFETCH(int, bottom);
    FocusInfo info(m_scene.get(), FVBAndMultiTrackInfo);
    info.AddFVBInfo({QPointF(0, 100), QPointF(0, 200)}, true);
    QSignalSpy changes(Band(info), SIGNAL(SignalTopBottomChanged(int, int)));
    DragInView(m_view.get(), from, to);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.first(), QList<QVariant>({top, bottom}));
}

void TestFVBLine::ABandThatIsNotManualStays_data()
{
    QTest::addColumn<bool>("manual");
    QTest::addColumn<bool>("speeding");
    QTest::addColumn<int>("changes");
    QTest::newRow("found by itself") << false << false << 0;
    QTest::newRow("set by hand") << true << false << 1;
    QTest::newRow("set by hand, speeding") << true << true << 0;
}

void TestFVBLine::ABandThatIsNotManualStays()
{
    QFETCH(bool, manual);
    QFETCH(bool, speeding);
    QFETCH(int, changes);
    FocusInfo info(m_scene.get(), FVBAndMultiTrackInfo);
    info.AddFVBInfo({QPointF(0, 100), QPointF(0, 200)}, !manual);
    QGraphicsObject *band = Band(info);
    QMetaObject::invokeMethod(band, "SlotFVBManualFlagChanged", Q_ARG(bool, manual));
    QMetaObject::invokeMethod(band, "SlotFVBSpeedingFlagChanged", Q_ARG(bool, speeding));
    QSignalSpy spy(band, SIGNAL(SignalTopBottomChanged(int, int)));
    DragInView(m_view.get(), QPointF(200, 100), QPointF(200, 50));
    QCOMPARE(spy.count(), changes);
}

void TestFVBLine::ARetiredBandStaysAway()
{
    FocusInfo info(m_scene.get(), FVBAndMultiTrackInfo);
    info.AddFVBInfo({QPointF(0, 100), QPointF(0, 200)}, true);
    QGraphicsObject *band = Band(info);
    info.Clear();
    QMetaObject::invokeMethod(band, "SetFVBArea", Q_ARG(QPointF, QPointF(0, 10)),
                              Q_ARG(QPointF, QPointF(0, 20)));
    QVERIFY(!band->isVisible());
    info.AddFVBInfo({QPointF(0, 100), QPointF(0, 200)}, true);
    QVERIFY(band->isVisible());
}

void TestFVBLine::TheBandOfAnUprightSpectrumLiesBetweenColumns()
{
    m_settings.directionHorinzontal = false;
    FocusInfo info(m_scene.get(), FVBAndMultiTrackInfo);
    QGraphicsObject *band = Band(info);
    info.AddFVBInfo({QPointF(0, 340.2), QPointF(0, 40.7)}, false); // beyond the last row
    QVERIFY(band->shape().contains(QPointF(40, 150)));
    QVERIFY(band->shape().contains(QPointF(340, 150)));
    QVERIFY(!band->shape().contains(QPointF(200, 40)));
    const QImage picture = m_view->grab().toImage();
    for (const int row : {2, 150, 297}) {
        QVERIFY(picture.pixelColor(200, row) != QColor(Qt::black));
        QCOMPARE(picture.pixelColor(20, row), QColor(Qt::black));
        QCOMPARE(picture.pixelColor(360, row), QColor(Qt::black));
        QCOMPARE(picture.pixelColor(40, row), QColor(Qt::cyan));
        QCOMPARE(picture.pixelColor(341, row), QColor(Qt::cyan));
    }
}

void TestFVBLine::AnUprightEdgeIsDragged_data()
{
    QTest::addColumn<QPointF>("from");
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<int>("top");
    QTest::addColumn<int>("bottom");
    QTest::newRow("first") << QPointF(101, 200) << QPointF(60, 220) << 60 << 320;
    QTest::newRow("last") << QPointF(319, 200) << QPointF(350, 200) << 100 << 350;
    QTest::newRow("last, out of the picture") << QPointF(320, 200) << QPointF(440, 200) << 100 << 399;
    QTest::newRow("first, out of the picture") << QPointF(100, 200) << QPointF(-40, 200) << 0 << 320;
    QTest::newRow("first, beyond the last") << QPointF(100, 200) << QPointF(350, 200) << 320 << 320;
}

void TestFVBLine::AnUprightEdgeIsDragged()
{
    QFETCH(QPointF, from);
    QFETCH(QPointF, to);
    QFETCH(int, top);
    QFETCH(int, bottom);
    m_settings.directionHorinzontal = false;
    FocusInfo info(m_scene.get(), FVBAndMultiTrackInfo);
    info.AddFVBInfo({QPointF(0, 100), QPointF(0, 320)}, true);
    QSignalSpy changes(Band(info), SIGNAL(SignalTopBottomChanged(int, int)));
    DragInView(m_view.get(), from, to);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.first(), QList<QVariant>({top, bottom}));
}

void TestFVBLine::TheDirectionTurnsTheBand()
{
    FocusInfo info(m_scene.get(), FVBAndMultiTrackInfo);
    info.AddFVBInfo({QPointF(0, 100), QPointF(0, 200)}, true);
    QGraphicsObject *band = Band(info);
    QCOMPARE(band->cursor().shape(), Qt::SizeVerCursor);
    QCOMPARE(m_view->grab().toImage().pixelColor(300, 100), QColor(Qt::yellow));
    m_settings.directionHorinzontal = false;
    emit m_settings.signalDisplayModePropertyChange();
    QCOMPARE(band->cursor().shape(), Qt::SizeHorCursor);
    const QImage picture = m_view->grab().toImage();
    QCOMPARE(picture.pixelColor(300, 100), QColor(Qt::black));
    QCOMPARE(picture.pixelColor(100, 290), QColor(Qt::yellow));
}

GUARDED_TEST_MAIN(TestFVBLine)
#include "tst_fvbline.moc"
