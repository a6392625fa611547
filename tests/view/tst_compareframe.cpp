// SPDX-License-Identifier: GPL-3.0-or-later
#include "comparison.h"
#include "guardedtest.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>

/// The two halves together: which one is checked, and how the pictures follow each other.
class TestCompareFrame : public GuardedTest
{
    Q_OBJECT

private slots:
    void initTestCase() { StartOpenGLDriver(); }

    void form();
    void leftIsCheckedWhenAttached();
    void detachUndoesEverything();
    void setLeftChecked();
    void checkOfSomethingElseIsIgnored();
    void pressedScenesReachTheReceiver();
    void wheelZoomIsRepeated_data();
    void wheelZoomIsRepeated();
    void wheelZoomOutIsRepeated();
    void wheelZoomIsRepeatedWithGPUDrawing();
    void dragIsRepeated_data();
    void dragIsRepeated();
    void dragIsLogged();
    void ctrlKeepsThePicturesApart();
    void withoutCtrlThePicturesAreLinked();
    void strangeSendersAreIgnored();
    void emptyHalfFollowsNothing();
    void resizeFitsAgain();
};

void TestCompareFrame::form()
{
    CompareFrame compare;
    QCOMPARE(compare.styleSheet(), QString("CompareFrame{ background: white; }"));
    auto *row = qobject_cast<QHBoxLayout *>(compare.layout());
    QVERIFY(row);
    QCOMPARE(row->contentsMargins(), QMargins());
    QCOMPARE(row->spacing(), 1);
    QCOMPARE(row->count(), 2);
    for (int i : {0, 1}) {
        QVERIFY(qobject_cast<CompareChildFrame *>(row->itemAt(i)->widget()));
        QCOMPARE(row->stretch(i), 1);
    }
}

void TestCompareFrame::leftIsCheckedWhenAttached()
{
    Comparison c;
    c.right.child->SetChecked(true);
    c.Attach();
    QVERIFY(c.left.name->isChecked());
    QCOMPARE(c.left.name->styleSheet(), checkedStyle);
    QVERIFY(!c.right.name->isChecked());
    QCOMPARE(c.right.name->styleSheet(), plainStyle);
}

void TestCompareFrame::detachUndoesEverything()
{
    Comparison c;
    QVERIFY(c.Show());
    c.Attach();
    DrawViewBase *view = c.left.View();
    const double scale = c.left.Scale();
    const QString percent = c.left.percent->text();
    c.compare.DetachFrames();

    QVERIFY(!c.compare.GetLeftFrame());
    QVERIFY(!c.right.child->GetFrame());
    QVERIFY(!c.leftFrame->isHidden());
    QVERIFY(c.left.child->layout()->indexOf(c.leftFrame) < 0);
    emit c.services.mainImage.signalUpdateFileNameAndSize("cells.tif");
    emit c.services.mainImage.signalResetImageInfo();
    QCOMPARE(c.left.name->text(), QString("left"));
    emit view->signalScaleFactorChanged(7);
    QCOMPARE(c.left.percent->text(), percent);
    for (QPushButton *button : c.left.zoomUI->findChildren<QPushButton *>()) {
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(view->transform().m11(), scale);
    }
    const int lines = DebugLines().size();
    emit view->signalCompareScale(notch, QPointF(1, 1));
    emit view->signalCompareMove(QPointF(1, 1));
    QCOMPARE(DebugLines().size(), lines); // a linked move that arrives is logged
}

void TestCompareFrame::setLeftChecked()
{
    Comparison c;
    for (bool left : {true, false, true}) {
        c.compare.SetLeftChecked(left);
        QCOMPARE(c.left.name->isChecked(), left);
        QCOMPARE(c.right.name->isChecked(), !left);
        QCOMPARE(c.left.name->styleSheet(), left ? checkedStyle : plainStyle);
        QCOMPARE(c.right.name->styleSheet(), left ? plainStyle : checkedStyle);
    }
}

void TestCompareFrame::checkOfSomethingElseIsIgnored()
{
    Comparison c;
    c.left.child->SetChecked(true);
    c.right.child->SetChecked(true);
    c.compare.slotFrameChecked(this);
    c.compare.slotFrameChecked(nullptr);
    QVERIFY(c.left.name->isChecked());
    QVERIFY(c.right.name->isChecked());
}

void TestCompareFrame::pressedScenesReachTheReceiver()
{
    Comparison c;
    QVERIFY(c.Show());
    SceneReceiver receiver;
    c.compare.ConnectFramePressed(&receiver);
    c.compare.ConnectFramePressed(&c.services.global);
    c.Attach();
    c.right.Click();
    c.left.Click();
    QCOMPARE(receiver.scenes, QList<QGraphicsScene *>({c.right.View()->scene(), c.left.View()->scene()}));
    QCOMPARE(CallLog::Count("GlobalManager::slotSetGraphicsScene()"), 2);
}

void TestCompareFrame::wheelZoomIsRepeated_data()
{
    QTest::addColumn<bool>("fromLeft");
    QTest::newRow("left leads") << true;
    QTest::newRow("right leads") << false;
}

void TestCompareFrame::wheelZoomIsRepeated()
{
    QFETCH(bool, fromLeft);
    Comparison c;
    QVERIFY(c.Show());
    c.Attach();
    c.ZoomToPixels();
    const Half &leader = fromLeft ? c.left : c.right;
    const Half &follower = fromLeft ? c.right : c.left;
    QSignalSpy zoomed(leader.View(), SIGNAL(signalCompareScale(int, QPointF)));
    leader.Wheel(notch);
    QCOMPARE(zoomed.count(), 1);
    QCOMPARE(leader.Scale(), 2.0);
    QCOMPARE(follower.Scale(), 2.0);
    const QPointF point = zoomed.first().at(1).toPointF();
    QCOMPARE(follower.Scroll(), QPoint(int(point.x()), int(point.y()))); // as it stands, no bias
}

void TestCompareFrame::wheelZoomOutIsRepeated()
{
    Comparison c;
    QVERIFY(c.Show());
    c.Attach();
    c.ZoomToPixels();
    c.left.Wheel(-notch);
    QCOMPARE(c.left.Scale(), 0.5);
    QCOMPARE(c.right.Scale(), 0.5);
}

void TestCompareFrame::wheelZoomIsRepeatedWithGPUDrawing()
{
    Comparison c;
    QVERIFY(c.Show());
    c.Attach();
    for (GPUDrawFrame *frame : {c.leftFrame, c.rightFrame})
        frame->slotSetCPUDraw(false);
    QCoreApplication::processEvents();
    c.ZoomToPixels();
    QSignalSpy zoomed(c.left.View(), SIGNAL(signalCompareScale(int, QPointF)));
    c.left.Wheel(notch);
    QCOMPARE(zoomed.count(), 1);
    const QPointF sliders(c.left.View()->horizontalScrollBar()->sliderPosition(),
                          c.left.View()->verticalScrollBar()->sliderPosition());
    QCOMPARE(zoomed.first().at(1).toPointF(), sliders);
    QCOMPARE(c.left.Scale(), 2.0);
    QCOMPARE(c.right.Scale(), 2.0);
    QVERIFY(sliders.x() > 0 && sliders.y() > 0);
    const QPointF followed(c.right.View()->horizontalScrollBar()->value(),
                           c.right.View()->verticalScrollBar()->value());
    QCOMPARE(followed, sliders);
}

void TestCompareFrame::dragIsRepeated_data()
{
    QTest::addColumn<bool>("fromLeft");
    QTest::newRow("left leads") << true;
    QTest::newRow("right leads") << false;
}

void TestCompareFrame::dragIsRepeated()
{
    QFETCH(bool, fromLeft);
    Comparison c;
    QVERIFY(c.Show());
    c.Attach();
    c.ZoomToPixels();
    QCOMPARE(c.left.Scroll(), QPoint(100, 80));
    const Half &leader = fromLeft ? c.left : c.right;
    const Half &follower = fromLeft ? c.right : c.left;
    leader.Drag(QPoint(30, -20)); // the picture goes right and up
    QCOMPARE(leader.Scroll(), QPoint(70, 100));
    QCOMPARE(follower.Scroll(), QPoint(70, 100));
}

void TestCompareFrame::dragIsLogged()
{
    Comparison c;
    c.Attach();
    const int before = DebugLines().size();
    emit c.left.View()->signalCompareMove(QPointF(30, -20.5));
    QCOMPARE(DebugLines().mid(before), QStringList("CompareFrame::slotCompareMove, 30.000000 -20.500000"));
}

void TestCompareFrame::ctrlKeepsThePicturesApart()
{
    Comparison c;
    QVERIFY(c.Show());
    c.Attach();
    c.ZoomToPixels();
    const int lines = DebugLines().size();
    c.compare.ctrlPressed = true;
    c.left.Drag(QPoint(30, -20));
    QCOMPARE(c.left.Scroll(), QPoint(70, 100));
    QCOMPARE(c.right.Scroll(), QPoint(100, 80));
    c.left.Wheel(notch);
    QCOMPARE(c.left.Scale(), 2.0);
    QCOMPARE(c.right.Scale(), 1.0);
    QCOMPARE(c.right.Scroll(), QPoint(100, 80));
    QCOMPARE(DebugLines().size(), lines);

    c.compare.ctrlPressed = false;
    c.left.Wheel(notch);
    QCOMPARE(c.left.Scale(), 4.0);
    QCOMPARE(c.right.Scale(), 2.0); // what was done alone stays so
}

void TestCompareFrame::withoutCtrlThePicturesAreLinked()
{
    Comparison c;
    CompareFrame compare; // asks the keyboard, on which nothing is pressed
    compare.AttachLeftFrame(c.leftFrame, nullptr, QString());
    compare.AttachRightFrame(c.rightFrame, nullptr, QString());
    DrawViewBase *leftView = c.leftFrame->GetDrawFrame()->GetDrawView();
    DrawViewBase *rightView = c.rightFrame->GetDrawFrame()->GetDrawView();
    rightView->slotPaintPreview(GreyPicture({800, 600}));
    rightView->slotSetScaleFactor(1.0);
    emit leftView->signalCompareScale(notch, QPointF(0, 0));
    QCOMPARE(rightView->transform().m11(), 2.0);
}

void TestCompareFrame::strangeSendersAreIgnored()
{
    Comparison c;
    QVERIFY(c.Show());
    c.Attach();
    c.ZoomToPixels();
    GPUDrawFrame stranger(nullptr);
    DrawViewBase *view = stranger.GetDrawFrame()->GetDrawView();
    QVERIFY(connect(view, SIGNAL(signalCompareScale(int, QPointF)), &c.compare, SLOT(slotCompareScale(int, QPointF))));
    QVERIFY(connect(view, SIGNAL(signalCompareMove(QPointF)), &c.compare, SLOT(slotCompareMove(QPointF))));
    emit view->signalCompareScale(notch, QPointF(0, 0));
    emit view->signalCompareMove(QPointF(10, 10));
    c.compare.slotCompareScale(notch, QPointF(0, 0)); // nobody's signal at all
    c.compare.slotCompareMove(QPointF(10, 10));
    for (const Half &half : {c.left, c.right}) {
        QCOMPARE(half.Scale(), 1.0);
        QCOMPARE(half.Scroll(), QPoint(100, 80));
    }
}

void TestCompareFrame::emptyHalfFollowsNothing()
{
    Comparison c;
    QVERIFY(c.Show());
    c.compare.AttachLeftFrame(c.leftFrame, nullptr, QString());
    c.left.View()->slotPaintPreview(GreyPicture({800, 600}));
    c.left.View()->slotSetScaleFactor(1.0);
    c.left.Wheel(notch);
    c.left.Drag(QPoint(10, 10));
    QCOMPARE(c.left.Scale(), 2.0);
    QCOMPARE(c.right.percent->text(), QString());
    QVERIFY(!c.right.View());
}

void TestCompareFrame::resizeFitsAgain()
{
    Comparison c;
    QVERIFY(c.Show());
    c.Attach();
    c.ZoomToPixels();
    QCOMPARE(c.left.zoomUI->geometry(), QRect(0, 0, 400, 30));
    c.compare.resize(1201, 900);
    QTRY_COMPARE(c.left.child->width(), 600);
    QCOMPARE(c.left.zoomUI->geometry(), QRect(0, 0, 600, 30));
    QCOMPARE(c.left.Scale(), 0.75); // 600 of 800
    QCOMPARE(c.right.Scale(), 0.75);
    QCOMPARE(c.left.percent->text(), QString("75.00 %"));
}

GUARDED_TEST_MAIN(TestCompareFrame)
#include "tst_compareframe.moc"
