// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"

#include "cropframe.h"
#include "globalclass.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalSpy>
#include <QWheelEvent>
#include <QWindow>

#include <memory>

namespace {

/// A view that notes the wheel events that reach it.
class WheelView : public QGraphicsView
{
public:
    using QGraphicsView::QGraphicsView;
    QVector<QPoint> wheelPositions;

protected:
    void wheelEvent(QWheelEvent *event) override
    {
        wheelPositions << event->position().toPoint();
        event->accept();
    }
};

} // namespace

/// A picture of 200 x 100 pixels, shown twice as large: a view pixel is half a picture pixel.
class TestCropFrame : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override;
    void cleanup() override;
    void IsHiddenUntilItIsAskedFor();
    void ARegionIsDrawnAndAnnounced();
    void ARegionIsMovedAndResized();
    void ARegionIsAppliedBy_data();
    void ARegionIsAppliedBy();
    void AnEmptyRegionIsNotApplied();
    void ItsKeysGoBeforeShortcutsOfTheWindow_data();
    void ItsKeysGoBeforeShortcutsOfTheWindow();
    void ShortcutsOfTheWindowWorkWhileItIsHidden();
    void EscLeavesTheMode_data();
    void EscLeavesTheMode();
    void ACoverIsAnnouncedWhenItIsFinished();
    void AFinishedCoverIsShown();
    void ACropBeginsAnewInStateZero();
    void ARegionIsKeptUnlessReset();
    void EachModeHasItsOwnSelection();
    void AFinishedCoverLeavesTheRegionAlone();
    void HidingAnotherModeChangesNothing();
    void TellsWhereTheMouseIs();
    void TheRightButtonDrawsNothing();
    void TheWheelReachesTheView();
    void KeepsToThePictureWhenItScrolls();
    void DimsWhatIsOutside();
    void FillsTheCover();
    void ASmallerPictureCutsTheRegion();

private:
    void Drag(const QPoint &from, const QPoint &to);
    QRect AppliedRegion();

    std::unique_ptr<QGraphicsScene> m_scene;
    std::unique_ptr<WheelView> m_view;
    CropFrame *m_frame = nullptr;
    std::unique_ptr<QSignalSpy> m_regions;
};

void TestCropFrame::init()
{
    StartGuard();
    m_scene = std::make_unique<QGraphicsScene>(QRectF(0, 0, 200, 100));
    m_scene->setBackgroundBrush(Qt::white);
    m_view = std::make_unique<WheelView>(m_scene.get());
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_view->setFixedSize(400, 200);
    m_view->scale(2, 2);
    m_frame = new CropFrame(m_scene.get(), m_view.get());
    m_regions = std::make_unique<QSignalSpy>(m_frame, SIGNAL(signalSetSelectRegion(int,int,int,int,bool)));
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
    m_view->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_view.get()));
}

void TestCropFrame::cleanup()
{
    m_regions.reset();
    m_view.reset();
    m_scene.reset();
    EndGuard();
}

void TestCropFrame::Drag(const QPoint &from, const QPoint &to)
{
    QTest::mousePress(m_frame, Qt::LeftButton, Qt::NoModifier, from);
    QMouseEvent move(QEvent::MouseMove, to, m_frame->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(m_frame, &move);
    QTest::mouseRelease(m_frame, Qt::LeftButton, Qt::NoModifier, to);
}

/// What Enter applies.
QRect TestCropFrame::AppliedRegion()
{
    m_regions->clear();
    QTest::keyClick(m_frame, Qt::Key_Return);
    if (m_regions->count() != 1 || !m_regions->first().at(4).toBool())
        return QRect();
    const QList<QVariant> region = m_regions->first();
    return QRect(region.at(0).toInt(), region.at(1).toInt(), region.at(2).toInt(), region.at(3).toInt());
}

void TestCropFrame::IsHiddenUntilItIsAskedFor()
{
    QVERIFY(!m_frame->isVisible());
    m_frame->slotSetROIFrameVisible(true, true);
    QVERIFY(m_frame->isVisible());
    QCOMPARE(m_frame->size(), m_view->size());
    m_frame->slotSetROIFrameVisible(false, true);
    QVERIFY(!m_frame->isVisible());
    QCOMPARE(m_regions->count(), 0);
}

void TestCropFrame::ARegionIsDrawnAndAnnounced()
{
    m_frame->slotSetROIFrameVisible(true, true);
    Drag(QPoint(40, 20), QPoint(240, 120));
    QCOMPARE(m_regions->count(), 1);
    QCOMPARE(m_regions->first(), QList<QVariant>({20, 10, 100, 50, false}));
    QVERIFY(m_frame->isVisible());
}

void TestCropFrame::ARegionIsMovedAndResized()
{
    m_frame->slotSetROIFrameVisible(true, true);
    Drag(QPoint(40, 20), QPoint(240, 120));
    Drag(QPoint(140, 70), QPoint(160, 60)); // body: by (10, -5) picture pixels
    QCOMPARE(m_regions->last(), QList<QVariant>({30, 5, 100, 50, false}));
    Drag(QPoint(260, 60), QPoint(300, 60)); // right edge, now at picture column 130
    QCOMPARE(m_regions->last(), QList<QVariant>({30, 5, 120, 50, false}));
    Drag(QPoint(60, 10), QPoint(-50, -50)); // top left corner, far out
    QCOMPARE(m_regions->last(), QList<QVariant>({0, 0, 150, 55, false}));
}

void TestCropFrame::ARegionIsAppliedBy_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
    QTest::newRow("double click") << 0;
}

void TestCropFrame::ARegionIsAppliedBy()
{
    QFETCH(int, key);
    m_frame->slotSetROIFrameVisible(true, true);
    Drag(QPoint(40, 20), QPoint(240, 120));
    m_regions->clear();
    if (key)
        QTest::keyClick(m_frame, Qt::Key(key));
    else
        QTest::mouseDClick(m_frame, Qt::LeftButton, Qt::NoModifier, QPoint(140, 70));
    QCOMPARE(m_regions->count(), 1);
    QCOMPARE(m_regions->first(), QList<QVariant>({20, 10, 100, 50, true}));
    QVERIFY(!m_frame->isVisible());
}

void TestCropFrame::AnEmptyRegionIsNotApplied()
{
    m_frame->slotSetROIFrameVisible(true, true);
    QTest::keyClick(m_frame, Qt::Key_Return);
    QTest::mouseDClick(m_frame, Qt::LeftButton, Qt::NoModifier, QPoint(140, 70));
    QCOMPARE(m_regions->count(), 0);
    QVERIFY(m_frame->isVisible());
}

void TestCropFrame::ItsKeysGoBeforeShortcutsOfTheWindow_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("taken");
    QTest::newRow("Esc") << int(Qt::Key_Escape) << true;
    QTest::newRow("Return") << int(Qt::Key_Return) << true;
    QTest::newRow("Enter") << int(Qt::Key_Enter) << true;
    QTest::newRow("F8") << int(Qt::Key_F8) << false;
}

void TestCropFrame::ItsKeysGoBeforeShortcutsOfTheWindow()
{
    QFETCH(int, key);
    QFETCH(bool, taken);
    QShortcut shortcut(QKeySequence(key), m_view.get());
    QSignalSpy activated(&shortcut, SIGNAL(activated()));
    m_frame->slotSetROIFrameVisible(true, true);
    Drag(QPoint(40, 20), QPoint(240, 120));
    QTest::keyClick(m_view->windowHandle(), Qt::Key(key));
    QTRY_COMPARE(m_frame->isHidden(), taken);
    QTRY_COMPARE(activated.count(), taken ? 0 : 1);
}

void TestCropFrame::ShortcutsOfTheWindowWorkWhileItIsHidden()
{
    QShortcut shortcut(QKeySequence(Qt::Key_Escape), m_view.get());
    QSignalSpy activated(&shortcut, SIGNAL(activated()));
    m_frame->slotSetROIFrameVisible(true, true);
    m_frame->slotSetROIFrameVisible(false, true);
    QTest::keyClick(m_view->windowHandle(), Qt::Key_Escape);
    QTRY_COMPARE(activated.count(), 1);
}

void TestCropFrame::EscLeavesTheMode_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<int>("regionStops");
    QTest::addColumn<int>("coverStops");
    QTest::addColumn<int>("emptyRegions");
    QTest::newRow("region of interest") << "roi" << 1 << 0 << 0;
    QTest::newRow("cover") << "cover" << 0 << 1 << 0;
    QTest::newRow("crop") << "crop" << 0 << 0 << 1;
}

void TestCropFrame::EscLeavesTheMode()
{
    QFETCH(QString, mode);
    QFETCH(int, regionStops);
    QFETCH(int, coverStops);
    QFETCH(int, emptyRegions);
    QSignalSpy regionStopped(m_frame, SIGNAL(signalStopRegionSelected()));
    QSignalSpy coverStopped(m_frame, SIGNAL(signalStopManualCover()));
    if (mode == "roi")
        m_frame->slotSetROIFrameVisible(true, true);
    else if (mode == "cover")
        m_frame->slotSetCoverFrameVisible(true);
    else
        m_frame->slotSetCropState(0, true);
    Drag(QPoint(40, 20), QPoint(240, 120));
    m_regions->clear();
    QTest::keyClick(m_frame, Qt::Key_Escape);
    QCOMPARE(regionStopped.count(), regionStops);
    QCOMPARE(coverStopped.count(), coverStops);
    QCOMPARE(m_regions->count(), emptyRegions);
    for (const QList<QVariant> &region : qAsConst(*m_regions))
        QCOMPARE(region, QList<QVariant>({ 0, 0, 0, 0, false }));
    QVERIFY(!m_frame->isVisible());
}

void TestCropFrame::ACoverIsAnnouncedWhenItIsFinished()
{
    QSignalSpy covers(m_frame, SIGNAL(signalManualCoverFinished(QRect)));
    m_frame->slotSetCoverFrameVisible(true);
    Drag(QPoint(40, 20), QPoint(240, 120));
    QCOMPARE(covers.count(), 0);
    QTest::keyClick(m_frame, Qt::Key_Return);
    QCOMPARE(covers.count(), 1);
    QCOMPARE(covers.first().at(0).toRect(), QRect(20, 10, 100, 50));
    QCOMPARE(m_regions->count(), 0);
    QVERIFY(!m_frame->isVisible());
}

void TestCropFrame::AFinishedCoverIsShown()
{
    QSignalSpy covers(m_frame, SIGNAL(signalManualCoverFinished(QRect)));
    m_frame->slotSetCoverFrameVisible(true);
    m_frame->slotFinishFillCover(QRect(10, 10, 500, 20));
    QTest::keyClick(m_frame, Qt::Key_Return);
    QCOMPARE(covers.count(), 1);
    QCOMPARE(covers.first().at(0).toRect(), QRect(10, 10, 190, 20)); // kept to the picture
}

void TestCropFrame::ACropBeginsAnewInStateZero()
{
    m_frame->slotSetCropState(0, true);
    Drag(QPoint(40, 20), QPoint(240, 120));
    m_frame->slotSetCropState(1, false);
    QVERIFY(!m_frame->isVisible());
    m_frame->slotSetCropState(1, true);
    QCOMPARE(AppliedRegion(), QRect(20, 10, 100, 50));
    m_frame->slotSetCropState(0, true);
    QCOMPARE(AppliedRegion(), QRect());
}

void TestCropFrame::ARegionIsKeptUnlessReset()
{
    m_frame->slotSetROIFrameVisible(true, true);
    Drag(QPoint(40, 20), QPoint(240, 120));
    m_frame->slotSetROIFrameVisible(false, false);
    m_frame->slotSetROIFrameVisible(true, false);
    QCOMPARE(AppliedRegion(), QRect(20, 10, 100, 50));
    m_frame->slotSetROIFrameVisible(true, true);
    QCOMPARE(AppliedRegion(), QRect());
}

void TestCropFrame::EachModeHasItsOwnSelection()
{
    QSignalSpy covers(m_frame, SIGNAL(signalManualCoverFinished(QRect)));
    m_frame->slotSetROIFrameVisible(true, true);
    Drag(QPoint(40, 20), QPoint(240, 120));
    m_frame->slotSetCoverFrameVisible(true);
    QTest::keyClick(m_frame, Qt::Key_Return); // nothing is drawn for the cover yet
    QCOMPARE(covers.count(), 0);
    QVERIFY(m_frame->isVisible());
    m_frame->slotSetCropState(1, true);
    QCOMPARE(AppliedRegion(), QRect());
    m_frame->slotSetROIFrameVisible(true, false);
    QCOMPARE(AppliedRegion(), QRect(20, 10, 100, 50));
}

void TestCropFrame::AFinishedCoverLeavesTheRegionAlone()
{
    m_frame->slotSetROIFrameVisible(true, true);
    Drag(QPoint(40, 20), QPoint(240, 120));
    m_frame->slotFinishFillCover(QRect(1, 2, 3, 4));
    QCOMPARE(AppliedRegion(), QRect(20, 10, 100, 50));
}

void TestCropFrame::HidingAnotherModeChangesNothing()
{
    m_frame->slotSetROIFrameVisible(true, true);
    m_frame->slotSetCoverFrameVisible(false);
    QVERIFY(m_frame->isVisible());
    Drag(QPoint(40, 20), QPoint(240, 120));
    QCOMPARE(AppliedRegion(), QRect(20, 10, 100, 50));
}

void TestCropFrame::TellsWhereTheMouseIs()
{
    QSignalSpy positions(m_frame, SIGNAL(signalUpdateMousePosition(QPoint)));
    m_frame->slotSetROIFrameVisible(true, true);
    QMouseEvent move(QEvent::MouseMove, QPoint(33, 44), m_frame->mapToGlobal(QPoint(33, 44)), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(m_frame, &move);
    QCOMPARE(positions.count(), 1);
    QCOMPARE(positions.first().at(0).toPoint(), QPoint(33, 44));
    QVERIFY(m_frame->hasMouseTracking());
}

void TestCropFrame::TheRightButtonDrawsNothing()
{
    m_frame->slotSetROIFrameVisible(true, true);
    QTest::mousePress(m_frame, Qt::RightButton, Qt::NoModifier, QPoint(40, 20));
    QMouseEvent move(QEvent::MouseMove, QPoint(240, 120), m_frame->mapToGlobal(QPoint(240, 120)),
                     Qt::NoButton, Qt::RightButton, Qt::NoModifier);
    QApplication::sendEvent(m_frame, &move);
    QTest::mouseRelease(m_frame, Qt::RightButton, Qt::NoModifier, QPoint(240, 120));
    QCOMPARE(m_regions->count(), 0);
}

void TestCropFrame::TheWheelReachesTheView()
{
    m_frame->slotSetROIFrameVisible(true, true);
    const QPoint pos(70, 30);
    QWheelEvent wheel(pos, m_frame->mapToGlobal(pos), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(m_frame, &wheel);
    QCOMPARE(m_view->wheelPositions, QVector<QPoint>({pos}));
    QVERIFY(wheel.isAccepted());
}

void TestCropFrame::KeepsToThePictureWhenItScrolls()
{
    m_view->setTransform(QTransform::fromScale(8, 8)); // the view shows 50 x 25 picture pixels
    m_view->horizontalScrollBar()->setValue(80);
    m_view->verticalScrollBar()->setValue(160);
    m_frame->slotSetROIFrameVisible(true, true);
    Drag(QPoint(8, 8), QPoint(80, 40));
    QCOMPARE(m_regions->last(), QList<QVariant>({11, 21, 9, 4, false}));
}

void TestCropFrame::DimsWhatIsOutside()
{
    m_frame->slotSetROIFrameVisible(true, true);
    m_frame->slotSetOpacity(1.0F); // of the cover alone
    Drag(QPoint(100, 50), QPoint(300, 150));
    const QImage picture = m_view->grab().toImage();
    const qreal ratio = picture.devicePixelRatio();
    const QColor inside = picture.pixelColor((QPointF(200, 100) * ratio).toPoint());
    const QColor outside = picture.pixelColor((QPointF(350, 180) * ratio).toPoint());
    QCOMPARE(inside, QColor(Qt::white));
    QVERIFY2(qAbs(outside.red() - 127) <= 1, qPrintable(outside.name())); // half as bright
}

void TestCropFrame::FillsTheCover()
{
    m_frame->slotSetCoverFrameVisible(true);
    m_frame->slotSetOpacity(1.0F);
    m_frame->slotFinishFillCover(QRect(50, 25, 100, 50));
    const QImage picture = m_view->grab().toImage();
    const qreal ratio = picture.devicePixelRatio();
    QCOMPARE(picture.pixelColor((QPointF(200, 100) * ratio).toPoint()), QColor(Qt::black));
    QCOMPARE(picture.pixelColor((QPointF(350, 180) * ratio).toPoint()), QColor(Qt::white));
}

void TestCropFrame::ASmallerPictureCutsTheRegion()
{
    m_frame->slotSetROIFrameVisible(true, true);
    Drag(QPoint(40, 20), QPoint(240, 120));
    m_scene->setSceneRect(0, 0, 60, 40);
    QCOMPARE(AppliedRegion(), QRect(20, 10, 40, 30));
}

GUARDED_TEST_MAIN(TestCropFrame)
#include "tst_cropframe.moc"
