// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "plotpage.h"

#include <QSignalSpy>

namespace {

using Action = std::function<void(PlotPage &)>;

void Press(const PlotPage &page) { page.Send(QEvent::MouseButtonPress, QPoint(300, 100)); }

/// Ready to be let go `way` pixels to the right.
Action DragBy(int way)
{
    return [way](PlotPage &page) {
        Press(page);
        page.Send(QEvent::MouseMove, QPoint(300 + way, 100));
    };
}

Action ReleaseAt(int way)
{
    return [way](PlotPage &page) { page.Send(QEvent::MouseButtonRelease, QPoint(300 + way, 100)); };
}

void Nothing(PlotPage &) {}

} // namespace

Q_DECLARE_METATYPE(Action)

/// What is asked of the page is seen at once, with the next events where the replot is queued, and once.
class TestSpectrum2DReplots : public GuardedTest
{
    Q_OBJECT

private slots:
    void replots_data();
    void replots();
};

void TestSpectrum2DReplots::replots_data()
{
    using Page = Spectrum2DDrawFrameBase;
    QTest::addColumn<Action>("prepare");
    QTest::addColumn<Action>("act");
    QTest::addColumn<bool>("queued");
    const auto slot = [](void (Page::*called)()) { return Action([called](PlotPage &page) { (page.page.get()->*called)(); }); };
    QTest::newRow("zoom in") << Action(Nothing) << slot(&Page::SlotZoomIn) << true;
    QTest::newRow("zoom out") << Action(Nothing) << slot(&Page::SlotZoomOut) << true;
    QTest::newRow("zoom reset") << Action(Nothing) << slot(&Page::SlotZoomReset) << true;
    QTest::newRow("horizontal zoom in") << Action(Nothing) << slot(&Page::SlotHorizontalZoomIn) << true;
    QTest::newRow("horizontal zoom out") << Action(Nothing) << slot(&Page::SlotHorizontalZoomOut) << true;
    QTest::newRow("display mode") << Action(Nothing) << slot(&Page::SlotDisplayModeUpdate) << true;
    QTest::newRow("properties") << Action(Nothing) << slot(&Page::SlotSpectralPropertyChanged) << false;
    QTest::newRow("new curve") << Action(Nothing) << Action([](PlotPage &page) { page.DrawLine({ 1, 2, 3 }); }) << true;
    QTest::newRow("no curve") << Action(Nothing) << Action([](PlotPage &page) { page.DrawLine({}); }) << false;
    QTest::newRow("drag begins") << Action(Nothing) << DragBy(5) << true;
    QTest::newRow("click") << Action(Press) << ReleaseAt(0) << true;
    QTest::newRow("drag to the right") << DragBy(100) << ReleaseAt(100) << true;
    QTest::newRow("drag to the left") << DragBy(-100) << ReleaseAt(-100) << true;
    const Action besideTheCurve = [](PlotPage &page) {
        page.plot->xAxis->setRange(500, 600);
        DragBy(100)(page);
    };
    QTest::newRow("drag beside the curve") << besideTheCurve << ReleaseAt(100) << true;
    QTest::newRow("release that was not seen") << DragBy(100) << Action([](PlotPage &page) {
        QMouseEvent move(QEvent::MouseMove, QPointF(350, 100), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(page.plot, &move);
    }) << true;
}

void TestSpectrum2DReplots::replots()
{
    QFETCH(Action, prepare);
    QFETCH(Action, act);
    QFETCH(bool, queued);
    PlotPage page;
    QVERIFY(page.Show());
    page.DrawLine({ 0, 10, 20, 10, 0, 10, 20, 10, 0, 10 });
    prepare(page);
    QCoreApplication::processEvents();
    QSignalSpy replots(page.plot, SIGNAL(afterReplot()));
    act(page);
    QCOMPARE(replots.size(), queued ? 0 : 1);
    QCoreApplication::processEvents();
    QCOMPARE(replots.size(), 1);
}

GUARDED_TEST_MAIN(TestSpectrum2DReplots)
#include "tst_spectrum2dreplots.moc"
