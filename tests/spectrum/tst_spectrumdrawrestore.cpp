// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "spectrumpage.h"

#include <QSignalSpy>

/// The spectrum image when its surroundings change, and still pictures.
class TestSpectrumDrawRestore : public GuardedTest
{
    Q_OBJECT

private slots:
    void stillPictures_data();
    void stillPictures();
    void restoreFitsAnew();
    void restoreKeepsTheZoom();
    void restoreWithoutRoomKeepsAll();
    void restoreOfStillPictures_data();
    void restoreOfStillPictures();
    void hiddenFrameIsScrolledToo();
    void resetForgetsTheSize();
    void displayModeOfAStillPicture();
    void firstShowFitsAStillPicture();
};

void TestSpectrumDrawRestore::stillPictures_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("staticMode");
    QTest::addColumn<bool>("fitted");
    QTest::newRow("any") << QSize(1200, 400) << true << true;
    QTest::newRow("600 high") << QSize(1200, 600) << true << true;
    QTest::newRow("601 high") << QSize(1200, 601) << true << true;
    QTest::newRow("800 wide") << QSize(800, 400) << true << false;
    QTest::newRow("601 wide") << QSize(601, 400) << true << false;
    QTest::newRow("601 wide, live page") << QSize(601, 400) << false << true;
    QTest::newRow("800 wide, live page") << QSize(800, 400) << false << true;
    QTest::newRow("the default size") << QSize(800, 601) << false << false;
}

void TestSpectrumDrawRestore::stillPictures()
{
    QFETCH(QSize, size);
    QFETCH(bool, staticMode);
    QFETCH(bool, fitted);
    SpectrumPage p;
    p.view->SetStaticMode(staticMode);
    p.LogSignals();
    p.view->slotPaintStaticPreview(p.Picture(size));
    const QStringList fit{ "SignalNewRect", "SignalImageChange", "SignalPressPosChange",
                           "SignalPressPosChangeStatic", "SignalAnchorPosChange" };
    QStringList names = p.TakeSignals();
    for (QString &name : names)
        name = name.section('(', 0, 0);
    QCOMPARE(names, fitted ? fit : QStringList());
    QCOMPARE(p.view->GetImageSize(), size);
    QCOMPARE(p.view->scene()->sceneRect().size(), QSizeF(size));
}

void TestSpectrumDrawRestore::restoreFitsAnew()
{
    SpectrumPage p;
    p.ShowLive(QSize(1200, 400));
    p.Resize(QSize(1340, 580));
    QCOMPARE(p.view->size(), QSize(600, 200)); // never by itself
    p.LogSignals();
    p.view->RestoreView(false);
    QCOMPARE(p.TakeSignals(),
             QStringList({ "SignalImageChange(1200x400)", "SignalPressPosChange((600, 200), (0, 0, 1, 1))",
                           "SignalPressPosChangeStatic((600, 200), (0, 0, 1, 1), true)",
                           "SignalAnchorPosChange((600, 0))" }));
    QCOMPARE(p.Scale(), 1.0);
}

void TestSpectrumDrawRestore::restoreKeepsTheZoom()
{
    SpectrumPage p;
    QVERIFY(p.Show());
    p.ShowLive(QSize(1200, 400));
    p.DragInPicture(QPointF(200, 100), QPointF(500, 300));
    p.LogSignals();
    for (int width : { 1340, 1040, 440 }) {
        p.Resize(QSize(width, 580));
        p.view->RestoreView(false);
    }
    p.Resize(QSize(440, 380)); // 300 x 200, half of what it was
    CallLog::Clear();
    p.view->RestoreView(true);
    QCOMPARE(p.TakeSignals(),
             QStringList({ "SignalImageChange(300x200)", "SignalSetSliderPosition((200, 100))",
                           "SignalNewRect(200, 500, 100, 300)",
                           "SignalPressPosChange((350, 200), (0.166667, 0.25, 0.416667, 0.75))",
                           "SignalPressPosChangeStatic((350, 200), (0.166667, 0.25, 0.416667, 0.75), true)",
                           "SignalAnchorPosChange((150, 100))" }));
    QCOMPARE(p.FrameScroll(), QPoint(200, 100));
    // However often it was restored, one step leads back, to a picture that is fitted to the space of now.
    p.Drag(QPointF(500, 200), QPointF(300, 150));
    QCOMPARE(p.TakeSignals("SignalNewRect"), QStringList("SignalNewRect(0, 1200, 0, 400)"));
    QCOMPARE(p.view->size(), QSize(300, 100));
}

void TestSpectrumDrawRestore::restoreWithoutRoomKeepsAll()
{
    SpectrumPage p;
    QVERIFY(p.Show());
    p.ShowLive(QSize(1200, 400));
    p.DragInPicture(QPointF(200, 100), QPointF(500, 300));
    p.LogSignals();
    p.Resize(QSize(100, 100));
    p.view->RestoreView(true);
    QCOMPARE(p.TakeSignals(), QStringList());
    QCOMPARE(p.Scale(), 2.0);
    p.Resize(QSize(740, 580));
    p.view->RestoreView(true);
    QCOMPARE(p.TakeSignals("SignalNewRect"), QStringList("SignalNewRect(200, 500, 100, 300)"));
}

void TestSpectrumDrawRestore::restoreOfStillPictures_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("staticMode");
    QTest::addColumn<bool>("fitted");
    QTest::newRow("any") << QSize(1200, 400) << true << true;
    QTest::newRow("800 wide") << QSize(800, 400) << true << false;
    QTest::newRow("601 wide") << QSize(601, 400) << true << false;
    QTest::newRow("601 high") << QSize(400, 601) << true << true;
    QTest::newRow("800 wide, live") << QSize(800, 400) << false << true;
    QTest::newRow("601 wide, live") << QSize(601, 400) << false << true;
}

void TestSpectrumDrawRestore::restoreOfStillPictures()
{
    QFETCH(QSize, size);
    QFETCH(bool, staticMode);
    QFETCH(bool, fitted);
    SpectrumPage p;
    p.view->SetStaticMode(staticMode);
    p.view->slotPaintStaticPreview(p.Picture(size));
    p.LogSignals();
    p.view->RestoreView(true);
    QCOMPARE(p.TakeSignals("SignalImageChange").size(), fitted ? 1 : 0);
}

void TestSpectrumDrawRestore::hiddenFrameIsScrolledToo()
{
    SpectrumPage p;
    QVERIFY(p.Show());
    p.ShowLive(QSize(1200, 400));
    p.DragInPicture(QPointF(800, 150), QPointF(1100, 350));
    p.page->hide(); // another page of the stack is in front
    p.Resize(QSize(440, 380));
    p.view->RestoreView(false);
    p.page->show();
    QCoreApplication::processEvents();
    QCOMPARE(p.FrameScroll(), QPoint(800, 150));
    QCOMPARE(p.view->pos(), QPoint(-800, -150));
    p.page->hide();
    p.ShowLive(QSize(600, 400));
    p.page->show();
    QCoreApplication::processEvents();
    QCOMPARE(p.view->pos(), QPoint(0, 0));
}

void TestSpectrumDrawRestore::resetForgetsTheSize()
{
    SpectrumPage p;
    QVERIFY(p.Show());
    p.view->SetStaticMode(true);
    p.view->slotPaintStaticPreview(p.Picture(QSize(1200, 400)));
    p.DragInPicture(QPointF(200, 100), QPointF(500, 300));
    p.view->slotResetImageInfo();
    QCOMPARE(p.view->GetImageSize(), QSize(0, 0));
    p.LogSignals();
    p.view->RestoreView(true);
    p.Drag(QPointF(100, 100), QPointF(300, 200)); // into what is no picture any more
    QCOMPARE(p.TakeSignals("SignalNewRect"), QStringList());
    QCOMPARE(p.Scale(), 2.0);
    // The same size again is a new one, and nothing of the zoom is remembered.
    p.view->slotPaintStaticPreview(p.Picture(QSize(1200, 400)));
    QCOMPARE(p.TakeSignals("SignalPressPosChange("),
             QStringList("SignalPressPosChange((600, 200), (0, 0, 1, 1))"));
}

void TestSpectrumDrawRestore::displayModeOfAStillPicture()
{
    SpectrumPage p;
    QVERIFY(p.Show());
    p.LogSignals();
    p.view->SlotDisplayModeChange();
    p.view->SetStaticMode(true);
    p.view->SlotDisplayModeChange(); // nothing was picked or fitted yet
    QCOMPARE(p.TakeSignals(), QStringList());
    p.view->slotPaintStaticPreview(p.Picture(QSize(1200, 400)));
    CallLog::Clear();
    p.view->SlotDisplayModeChange();
    QCOMPARE(p.TakeSignals(), QStringList({ "SignalPressPosChange((600, 200), (0, 0, 1, 1))",
                                            "SignalPressPosChangeStatic((600, 200), (0, 0, 1, 1), true)" }));
    p.Press(QPointF(30, 40));
    p.Release(QPointF(30, 40));
    CallLog::Clear();
    p.view->SlotDisplayModeChange();
    QCOMPARE(p.TakeSignals("SignalPressPosChange("),
             QStringList("SignalPressPosChange((60, 80), (0, 0, 1, 1))"));
    // After a zoom the place is the centre of what is seen, not the end of the drag.
    p.Drag(QPointF(100, 50), QPointF(250, 150));
    CallLog::Clear();
    p.view->SlotDisplayModeChange();
    QCOMPARE(p.TakeSignals("SignalPressPosChange("),
             QStringList("SignalPressPosChange((350, 200), (0.166667, 0.25, 0.416667, 0.75))"));
    p.view->SetStaticMode(false);
    p.view->SlotDisplayModeChange();
    QCOMPARE(p.TakeSignals(), QStringList());
}

void TestSpectrumDrawRestore::firstShowFitsAStillPicture()
{
    FakeServices services;
    const DisplayScale scale(1.0);
    QWidget parent;
    parent.resize(740, 580);
    SpectrumDrawFrameBase frame(&parent);
    SpectrumDrawViewBase *view = frame.GetDrawView();
    view->SetStaticMode(true);
    QSignalSpy fits(view, SIGNAL(SignalPressPosChangeStatic(QPointF, QRectF, bool)));
    view->slotPaintStaticPreview(
        SpectrumPage::Picture(QSize(601, 400))); // a size that is not fitted when it comes
    QCOMPARE(fits.size(), 0);
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));
    QCOMPARE(fits.size(), 1);
    QCOMPARE(fits.first().at(2).toBool(), false);
    parent.hide();
    parent.show();
    QCOMPARE(fits.size(), 1);
}

GUARDED_TEST_MAIN(TestSpectrumDrawRestore)
#include "tst_spectrumdrawrestore.moc"
