// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "spectrumpage.h"

#include <QGraphicsScene>
#include <QMetaMethod>
#include <QScrollBar>
#include <QSignalSpy>
#include <QWheelEvent>

namespace {

QStringList OwnMethods(const QMetaObject &metaObject)
{
    QStringList methods;
    for (int i = metaObject.methodOffset(); i < metaObject.methodCount(); ++i)
        methods << metaObject.method(i).methodSignature();
    return methods;
}

} // namespace

/// The spectrum image and its frame: what they are born with, live pictures and what is reported of them.
class TestSpectrumDrawView : public GuardedTest
{
    Q_OBJECT

private slots:
    void signalsAndSlotsInOrder();
    void bornAs();
    void frameBornAs();
    void marginsFollowTheUseArea();
    void firstLivePicture();
    void sameSizeIsOnlyPainted();
    void defaultSizeIsNoNewSize();
    void picturesOfOtherUseAreas_data();
    void picturesOfOtherUseAreas();
    void nullPictureIsIgnored();
    void noRoomNoFit();
    void newSizeWhileZoomed();
    void updatesCanBeHeld();
    void wheelDoesNothing();
    void logLines();
};

void TestSpectrumDrawView::signalsAndSlotsInOrder()
{
    QCOMPARE(OwnMethods(SpectrumDrawViewBase::staticMetaObject),
             QStringList({ "SignalImageChange(QSize)", "SignalPressPosChange(QPointF,QRectF)",
                           "SignalPressPosChangeStatic(QPointF,QRectF,bool)",
                           "SignalDrawArea(QPointF,bool,bool)", "SignalAnchorPosChange(QPointF)",
                           "SignalSetSliderPosition(QPointF)", "SignalChangeHShowValueRange(double,double)",
                           "SignalChangeVShowValueRange(double,double)",
                           "SignalNewRect(double,double,double,double)", "slotPaintPreview(QImage)",
                           "slotPaintStaticPreview(QImage)", "SlotDisplayModeChange()",
                           "slotResetImageInfo()", "slotSetUpdatesEnabled(bool)" }));
    QCOMPARE(OwnMethods(SpectrumDrawFrameBase::staticMetaObject),
             QStringList({ "SlotSetSliderPosition(QPointF)", "SlotValueChange(int)" }));
}

void TestSpectrumDrawView::bornAs()
{
    FakeServices services;
    SpectrumDrawViewBase view(nullptr);
    QCOMPARE(view.size(), QSize(800, 600));
    QCOMPARE(view.minimumSize(), view.maximumSize());
    QCOMPARE(view.styleSheet(),
             QString("Background:rgb(68, 73, 86); border: 1px; border-color:rgb(255, 255, 255)"));
    QVERIFY(view.testAttribute(Qt::WA_MouseTracking));
    QCOMPARE(view.horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(view.verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(view.scene()->parent(), &view); // the marks in the scene look for the view there
    QCOMPARE(view.scene()->sceneRect(), QRectF(0, 0, 800, 601));
    QCOMPARE(view.scene()->backgroundBrush().style(), Qt::NoBrush);
    QCOMPARE(view.GetImageSize(), QSize(800, 601));
    QCOMPARE(view.transform(), QTransform());
    view.RestoreView(true); // without a frame, without a picture
    QCOMPARE(view.size(), QSize(800, 600));
}

void TestSpectrumDrawView::frameBornAs()
{
    FakeServices services;
    QWidget parent;
    SpectrumDrawFrameBase frame(&parent);
    QCOMPARE(frame.widget(), frame.GetDrawView());
    QCOMPARE(frame.horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(frame.verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    frame.resize(200, 100);
    frame.SlotSetSliderPosition(QPointF(10.9, 20.9));
    QCOMPARE(frame.horizontalScrollBar()->sliderPosition(), 10);
    QCOMPARE(frame.verticalScrollBar()->sliderPosition(), 20);
    frame.SlotSetSliderPosition(QPointF(-5, 100000));
    QCOMPARE(frame.horizontalScrollBar()->sliderPosition(), 0);
    QCOMPARE(frame.verticalScrollBar()->sliderPosition(), 500);
    frame.SlotValueChange(7);
    QCOMPARE(frame.verticalScrollBar()->sliderPosition(), 500);
}

void TestSpectrumDrawView::marginsFollowTheUseArea()
{
    SpectrumPage p;
    int width = 0;
    int height = 0;
    p.view->ComputeMargins(width, height);
    QCOMPARE(QSize(width, height), QSize(140, 180));
    p.services.useArea.axisVisible = false;
    p.view->ComputeMargins(width, height);
    QCOMPARE(QSize(width, height), QSize(80, 130));
    p.services.useArea.curveVisible = p.services.useArea.colorCardVisible = false;
    p.view->ComputeMargins(width, height);
    QCOMPARE(QSize(width, height), QSize(30, 25));
}

void TestSpectrumDrawView::firstLivePicture()
{
    SpectrumPage p;
    p.LogSignals();
    p.ShowLive(QSize(1200, 400));
    QCOMPARE(p.TakeSignals(), QStringList({ "SignalNewRect(0, 1200, 0, 400)", "SignalImageChange(600x200)",
                                            "SignalPressPosChange((600, 200), (0, 0, 1, 1))",
                                            "SignalPressPosChangeStatic((600, 200), (0, 0, 1, 1), false)",
                                            "SignalAnchorPosChange((300, 0))" }));
    QCOMPARE(p.view->size(), QSize(600, 200));
    QCOMPARE(p.Scale(), 0.5);
    QCOMPARE(p.view->GetImageSize(), QSize(1200, 400));
    QCOMPARE(p.view->sceneRect(), QRectF(0, 0, 1200, 400));
    QCOMPARE(p.view->scene()->sceneRect(), QRectF(0, 0, 1200, 400));
    QCOMPARE(p.view->scene()->backgroundBrush().texture().size(), QSize(1200, 400));
}

void TestSpectrumDrawView::sameSizeIsOnlyPainted()
{
    SpectrumPage p;
    p.ShowLive(QSize(1200, 400));
    const qint64 before = p.view->scene()->backgroundBrush().texture().cacheKey();
    p.LogSignals();
    p.ShowLive(QSize(1200, 400));
    QCOMPARE(p.TakeSignals(), QStringList());
    QVERIFY(p.view->scene()->backgroundBrush().texture().cacheKey() != before);
}

void TestSpectrumDrawView::defaultSizeIsNoNewSize()
{
    SpectrumPage p;
    p.LogSignals();
    p.ShowLive(QSize(800, 601));
    QCOMPARE(p.TakeSignals(), QStringList());
    QCOMPARE(p.view->scene()->backgroundBrush().texture().size(), QSize(800, 601));
    p.ShowLive(QSize(800, 600)); // one row less is a new size
    QCOMPARE(p.TakeSignals("SignalNewRect"), QStringList("SignalNewRect(0, 800, 0, 600)"));
}

void TestSpectrumDrawView::picturesOfOtherUseAreas_data()
{
    QTest::addColumn<int>("useArea");
    QTest::addColumn<bool>("hidden");
    QTest::addColumn<bool>("shown");
    QTest::newRow("spectrum") << 1 << false << true;
    QTest::newRow("spectrum, hidden") << 1 << true << false;
    QTest::newRow("other") << 0 << false << false;
    QTest::newRow("another") << 2 << false << false;
}

void TestSpectrumDrawView::picturesOfOtherUseAreas()
{
    QFETCH(int, useArea);
    QFETCH(bool, hidden);
    QFETCH(bool, shown);
    SpectrumPage p;
    p.services.useArea.useAreaType = useArea;
    p.services.useArea.spectrumHidden = hidden;
    p.LogSignals();
    p.ShowLive(QSize(1200, 400));
    QCOMPARE(!p.TakeSignals().isEmpty(), shown);
    p.view->slotPaintStaticPreview(p.Picture(QSize(300, 100)));
    QCOMPARE(!p.TakeSignals().isEmpty(), shown);
    QCOMPARE(p.view->GetImageSize(), shown ? QSize(300, 100) : QSize(800, 601));
}

void TestSpectrumDrawView::nullPictureIsIgnored()
{
    SpectrumPage p;
    p.ShowLive(QSize(1200, 400));
    p.LogSignals();
    p.view->slotPaintPreview(QImage());
    p.view->slotPaintStaticPreview(QImage());
    QCOMPARE(p.TakeSignals(), QStringList());
    QCOMPARE(p.view->scene()->backgroundBrush().texture().size(), QSize(1200, 400));
}

void TestSpectrumDrawView::noRoomNoFit()
{
    SpectrumPage p(QSize(140, 580)); // the aids leave a width of 0
    p.LogSignals();
    p.ShowLive(QSize(1200, 400));
    QCOMPARE(p.TakeSignals(), QStringList("SignalNewRect(0, 1200, 0, 400)"));
    QCOMPARE(p.view->size(), QSize(800, 600));
    p.Resize(QSize(740, 180));
    p.view->RestoreView(true);
    QCOMPARE(p.TakeSignals(), QStringList());
    p.Resize(QSize(141, 181));
    p.view->RestoreView(true);
    QCOMPARE(p.TakeSignals("SignalImageChange"), QStringList("SignalImageChange(1x1)"));
}

void TestSpectrumDrawView::newSizeWhileZoomed()
{
    SpectrumPage p;
    QVERIFY(p.Show());
    p.ShowLive(QSize(1200, 400));
    p.DragInPicture(QPointF(200, 100), QPointF(500, 300));
    p.LogSignals();
    p.ShowLive(QSize(300, 800));
    // All of it is shown; the centre is the one of the zoomed part, as far as the anchor has it.
    QCOMPARE(p.TakeSignals(), QStringList({ "SignalNewRect(0, 300, 0, 800)", "SignalImageChange(150x400)",
                                            "SignalPressPosChange((350, 200), (0, 0, 1, 1))",
                                            "SignalPressPosChangeStatic((350, 200), (0, 0, 1, 1), false)",
                                            "SignalAnchorPosChange((75, 100))" }));
    QCOMPARE(p.FrameScroll(), QPoint(0, 0));
}

void TestSpectrumDrawView::updatesCanBeHeld()
{
    SpectrumPage p;
    p.ShowLive(QSize(1200, 400));
    p.view->slotSetUpdatesEnabled(false);
    QVERIFY(!p.view->updatesEnabled());
    p.view->slotSetUpdatesEnabled(true);
    QVERIFY(p.view->updatesEnabled());
    p.view->slotSetUpdatesEnabled(false);
    QVERIFY(p.Show()); // the live picture moves on as soon as it is seen
    QVERIFY(p.view->updatesEnabled());

    p.view->SetStaticMode(true);
    p.page->hide();
    p.view->slotSetUpdatesEnabled(false);
    p.page->show();
    QVERIFY(!p.view->updatesEnabled());
}

void TestSpectrumDrawView::wheelDoesNothing()
{
    SpectrumPage p;
    QVERIFY(p.Show());
    p.ShowLive(QSize(1200, 401)); // the picture is a part of a row higher than the view
    p.DragInPicture(QPointF(200, 100), QPointF(500, 300));
    const QPoint scroll = p.FrameScroll();
    const QTransform transform = p.view->viewportTransform();
    QVERIFY(scroll.x() > 0);
    for (const QPoint &turn : { QPoint(0, -120), QPoint(0, 120), QPoint(-120, 0) }) {
        const QPointF pos(500, 300);
        QWheelEvent event(pos, p.view->viewport()->mapToGlobal(pos.toPoint()), QPoint(), turn, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(p.view->viewport(), &event);
        QVERIFY(!event.isAccepted());
        QWheelEvent beside(QPointF(1, 1), p.frame->mapToGlobal(QPoint(1, 1)), QPoint(), turn, Qt::NoButton,
                           Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(p.frame->viewport(), &beside);
        QVERIFY(!beside.isAccepted());
    }
    QCOMPARE(p.FrameScroll(), scroll);
    QCOMPARE(p.view->viewportTransform(), transform);
}

void TestSpectrumDrawView::logLines()
{
    SpectrumPage p;
    QVERIFY(p.Show());
    p.ShowLive(QSize(1200, 400));
    p.Drag(QPointF(100, 50), QPointF(250, 150));
    const QStringList lines = DebugLines();
    QVERIFY(lines.contains("parentSize: QSize(740, 580)"));
    QVERIFY(lines.contains("SpectrumDrawViewBase::resizeEvent :[600,200]"));
    QVERIFY(lines.contains("SpectrumDrawFrameBase::resizeEvent QSize(600, 200)"));
    QVERIFY(lines.contains("SpectrumView::resizeEvent size :[740, 580]"));
    QVERIFY(lines.contains("widget size[740,580]"));
    QVERIFY(lines.contains(
        "SpectrumDrawViewBase::SetViewGeometry pressPoint: QPointF(100,50) ,releasePoint: QPointF(250,150)"));
}

GUARDED_TEST_MAIN(TestSpectrumDrawView)
#include "tst_spectrumdrawview.moc"
