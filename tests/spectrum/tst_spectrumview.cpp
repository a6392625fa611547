// SPDX-License-Identifier: GPL-3.0-or-later
#include "applicationstylesheet.h"
#include "guardedtest.h"
#include "spectrumpieces.h"

#include <QMetaMethod>

/// The spectrum page: what it is made of, where it puts its pieces, and when it shows them.
class TestSpectrumView : public GuardedTest
{
    Q_OBJECT

private slots:
    void signalsAndSlotsInOrder();
    void rowsInOrder();
    void bornHidden();
    void sizesFollowTheDisplay();
    void firstPictureShowsWhatIsWanted_data();
    void firstPictureShowsWhatIsWanted();
    void widthOfNothingChangesNothing();
    void piecesTakeTheSizeOfTheImage();
    void piecesStandAroundTheImage();
    void emptyPage();
    void showEnablesUpdates();
    void groundIsDark();
    void pageMayBecomeSmaller();
};

void TestSpectrumView::signalsAndSlotsInOrder()
{
    const QMetaObject &meta = SpectrumView::staticMetaObject;
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        methods << meta.method(i).methodSignature();
    QCOMPARE(methods, QStringList({ "sglUpdateCurve(void*)", "SignalDisplayModeUpdate()",
                                    "SlotImageViewChange(QSize)", "SlotPressPosChange(QPointF,QRectF)",
                                    "SlotDrawArea(QPointF,bool,bool)", "SlotUpdateCurve(void*)",
                                    "SlotDisplayModeUpdate()", "SlotUpdateHorizontalCurve(int*,int,int,int)",
                                    "SlotUpdateVerticalCurve(int*,int,int,int)", "SlotUpdateLevel(int,int)",
                                    "SlotPressPosChangeStatic(QPointF,QRectF,bool)", "SlotSpectrumUIChange()",
                                    "slotResetImageInfo()", "SlotPseudoColorsChanged(QVector<QColor>)",
                                    "SlotSpectralPropertyChanged()" }));
}

void TestSpectrumView::rowsInOrder()
{
    SpectrumPage p;
    const Pieces pieces(p);
    QCOMPARE(p.page->styleSheet(),
             QString("Background:rgb(68, 73, 86); border:1px; border-color:rgb(255, 255, 255)"));
    QCOMPARE(pieces.layout->contentsMargins(), QMargins(15, 15, 15, 15));
    QCOMPARE(pieces.layout->spacing(), 0);
    QCOMPARE(pieces.layout->count(), 6);
    QCOMPARE(pieces.layout->itemAt(0)->widget(), pieces.colorBar);
    QVERIFY(pieces.grayRuler);
    QSpacerItem *space = pieces.layout->itemAt(2)->spacerItem();
    QVERIFY(space);
    QCOMPARE(space->sizeHint(), QSize(20, 1));
    QCOMPARE(space->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding));

    const QLayout *imageRow = pieces.layout->itemAt(3)->layout();
    QCOMPARE(imageRow->spacing(), 0);
    QCOMPARE(imageRow->count(), 4);
    QCOMPARE(imageRow->itemAt(0)->widget(), pieces.verticalCurve);
    QCOMPARE(imageRow->itemAt(1)->widget(), pieces.verticalRuler);
    QCOMPARE(imageRow->itemAt(2)->widget(), p.frame);
    QCOMPARE(imageRow->itemAt(3)->spacerItem()->sizeHint(), QSize(20, 1));
    QVERIFY(pieces.pixelRuler);
    QCOMPARE(pieces.layout->itemAt(5)->layout()->itemAt(0)->widget(), pieces.horizontalCurve);
    for (int row : { 4, 5 }) {
        const QLayout *lower = pieces.layout->itemAt(row)->layout();
        QCOMPARE(lower->spacing(), 0);
        QCOMPARE(lower->count(), 2);
        QCOMPARE(lower->itemAt(1)->spacerItem()->sizeHint(), QSize(20, 1));
        QCOMPARE(lower->itemAt(1)->spacerItem()->sizePolicy(),
                 QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum));
    }
}

void TestSpectrumView::bornHidden()
{
    SpectrumPage p;
    const Pieces pieces(p);
    QVERIFY(pieces.cross);
    QCOMPARE(pieces.Shown(), QString());
    QVERIFY(!p.frame->isEnabled());
    QVERIFY(p.page->IsFirstShow());
    QCOMPARE(p.page->GetLastRect(), QRectF(0, 0, 1, 1));
    QCOMPARE(p.view->scene()->items().size(), 1); // no drag yet
    QCOMPARE(p.page->layout(), pieces.layout);
}

void TestSpectrumView::sizesFollowTheDisplay()
{
    FakeServices services;
    const DisplayScale scale(2.0);
    SpectrumView page(nullptr);
    QCOMPARE(page.layout()->contentsMargins(), QMargins(30, 30, 30, 30));
    QCOMPARE(page.findChild<GradientColorLayoutItem *>()->maximumHeight(), 20);
    QCOMPARE(page.findChild<IntensityCurveVertical *>()->maximumWidth(), 100);
    QCOMPARE(page.findChild<IntensityCurveHorizontal *>()->maximumHeight(), 100);
    QCOMPARE(page.findChild<RulerBarVertical *>()->maximumWidth(), 120);
    QCOMPARE(page.layout()->itemAt(1)->widget()->maximumHeight(), 80);
    QCOMPARE(page.layout()->itemAt(4)->layout()->itemAt(0)->widget()->maximumHeight(), 100);
    QCOMPARE(page.layout()->itemAt(3)->layout()->itemAt(3)->spacerItem()->sizeHint(), QSize(40, 1));
    QCOMPARE(page.layout()->itemAt(4)->layout()->contentsMargins(), QMargins(220, 0, 0, 0)); // 280 - 60
}

void TestSpectrumView::firstPictureShowsWhatIsWanted_data()
{
    QTest::addColumn<bool>("axis");
    QTest::addColumn<bool>("curve");
    QTest::addColumn<bool>("colorCard");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QSize>("image"); // of 740 x 580, for a picture three times as wide as high
    QTest::newRow("all") << true << true << true << "axes, curves, card, frame, cross" << QSize(600, 200);
    QTest::newRow("no axes") << false << true << true << "curves, card, frame, cross" << QSize(660, 220);
    QTest::newRow("no curves") << true << false << true << "axes, card, frame, cross" << QSize(650, 216);
    QTest::newRow("no card") << true << true << false << "axes, curves, frame, cross" << QSize(600, 200);
    QTest::newRow("none") << false << false << false << "frame, cross"
                          << QSize(709, 236); // 710 / 1200 as a float is a little less
}

void TestSpectrumView::firstPictureShowsWhatIsWanted()
{
    QFETCH(bool, axis);
    QFETCH(bool, curve);
    QFETCH(bool, colorCard);
    SpectrumPage p;
    const Pieces pieces(p);
    p.services.useArea.axisVisible = axis;
    p.services.useArea.curveVisible = curve;
    p.services.useArea.colorCardVisible = colorCard;
    p.ShowLive(QSize(1200, 400));
    QTEST(pieces.Shown(), "shown");
    QTEST(p.frame->size(), "image");
    QVERIFY(!p.page->IsFirstShow());
}

void TestSpectrumView::widthOfNothingChangesNothing()
{
    SpectrumPage p;
    const Pieces pieces(p);
    p.page->SlotImageViewChange(QSize(0, 300));
    QVERIFY(!p.page->IsFirstShow());
    QCOMPARE(pieces.Shown(), QString());
    p.page->SlotImageViewChange(QSize(-5, 300));
    QCOMPARE(pieces.Shown(), QString());
    p.page->SlotImageViewChange(QSize(1, 300));
    QCOMPARE(pieces.Shown(), QString("axes, curves, card, frame, cross"));
}

void TestSpectrumView::piecesTakeTheSizeOfTheImage()
{
    SpectrumPage p;
    const Pieces pieces(p);
    p.page->SlotImageViewChange(QSize(500, 300));
    QCOMPARE(p.frame->size(), QSize(500, 300));
    QCOMPARE(p.frame->minimumSize(), p.frame->maximumSize());
    QCOMPARE(pieces.colorBar->size(), QSize(710, 10));
    QCOMPARE(pieces.grayRuler->size(), QSize(710, 40));
    QCOMPARE(pieces.verticalCurve->size(), QSize(50, 300));
    QCOMPARE(pieces.verticalRuler->size(), QSize(60, 300));
    QCOMPARE(pieces.pixelRuler->size(), QSize(500, 50));
    QCOMPARE(pieces.horizontalCurve->size(), QSize(500, 50));
    p.page->SlotImageViewChange(QSize(500, 300)); // again and again: nothing grows
    p.page->SlotImageViewChange(QSize(500, 300));
    QCOMPARE(pieces.verticalCurve->size(), QSize(50, 300));
    QCOMPARE(pieces.horizontalCurve->size(), QSize(500, 50));
}

void TestSpectrumView::piecesStandAroundTheImage()
{
    SpectrumPage p;
    const Pieces pieces(p);
    QVERIFY(p.Show());
    for (const QSize &picture : { QSize(1200, 400), QSize(300, 900), QSize(600, 400) }) {
        p.ShowLive(picture);
        QTRY_COMPARE(p.frame->geometry().bottom() + 1, pieces.pixelRuler->y());
        const QRect image = p.frame->geometry();
        QCOMPARE(image.left(), 125);
        QCOMPARE(pieces.verticalRuler->geometry(), QRect(65, image.top(), 60, image.height()));
        QCOMPARE(pieces.verticalCurve->geometry(), QRect(15, image.top(), 50, image.height()));
        QCOMPARE(pieces.pixelRuler->geometry(), QRect(125, image.bottom() + 1, image.width(), 50));
        QCOMPARE(pieces.horizontalCurve->geometry(), QRect(125, image.bottom() + 51, image.width(), 50));
        QCOMPARE(pieces.horizontalCurve->geometry().bottom(), 564); // above the page's margin
        QCOMPARE(pieces.colorBar->geometry(), QRect(15, 15, 710, 10));
        QCOMPARE(pieces.grayRuler->geometry(), QRect(15, 25, 710, 40));
        QCOMPARE(p.view->mapTo(p.page, QPoint(0, 0)), image.topLeft()); // nothing lies between them
        QCOMPARE(p.view->viewport()->size(), image.size());
    }
}

void TestSpectrumView::emptyPage()
{
    SpectrumPage p(QSize(20, 20));
    p.page->SlotImageViewChange(QSize(100, 100)); // the page is narrower than its margins
    QCOMPARE(Pieces(p).colorBar->width(), 0);
}

void TestSpectrumView::showEnablesUpdates()
{
    SpectrumPage p;
    p.page->setUpdatesEnabled(false);
    QVERIFY(p.Show());
    QVERIFY(p.page->updatesEnabled());
}

/// Wherever the page stands and whatever the application's style says: the aids are white.
void TestSpectrumView::groundIsDark()
{
    const ApplicationStyleSheet light("QWidget { background: white; color: black; }");
    SpectrumPage p;
    QVERIFY(p.Show());
    p.ShowLive(QSize(1200, 400));
    const QImage image = p.window.grab().toImage();
    const Pieces pieces(p);
    for (const QPoint &place : { QPoint(3, 3), QPoint(735, 300), QPoint(400, 150), QPoint(30, 550) })
        QCOMPARE(image.pixelColor(place), QColor(68, 73, 86));
    // Within the curves and rulers too.
    QCOMPARE(image.pixelColor(pieces.verticalCurve->mapTo(&p.window, QPoint(3, 3))), QColor(68, 73, 86));
    QCOMPARE(image.pixelColor(pieces.pixelRuler->mapTo(&p.window, QPoint(3, 45))), QColor(68, 73, 86));
}

void TestSpectrumView::pageMayBecomeSmaller()
{
    SpectrumPage p;
    auto *rows = new QVBoxLayout(&p.window);
    rows->addWidget(p.page);
    p.window.resize(1000, 800);
    QVERIFY(p.Show());
    p.ShowLive(QSize(1200, 1200));
    p.window.resize(300, 300);
    QTRY_COMPARE(p.window.size(), QSize(300, 300));
    QVERIFY(p.page->width() <= 300 && p.page->height() <= 300);
}

GUARDED_TEST_MAIN(TestSpectrumView)
#include "tst_spectrumview.moc"
