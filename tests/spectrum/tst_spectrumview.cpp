// SPDX-License-Identifier: GPL-3.0-or-later
#include "crossitem.h"
#include "gradientcolorlayoutitem.h"
#include "guardedtest.h"
#include "intensitycurvehorizontal.h"
#include "intensitycurvevertical.h"
#include "rulerbarhorizontal.h"
#include "rulerbarvertical.h"
#include "spectrumpage.h"

#include <QGraphicsScene>
#include <QMetaMethod>
#include <QVBoxLayout>

namespace {

/// The pieces of the page.
struct Pieces
{
    explicit Pieces(const SpectrumPage &p)
        : colorBar(p.page->findChild<GradientColorLayoutItem *>())
        , verticalRuler(p.page->findChild<RulerBarVertical *>())
        , verticalCurve(p.page->findChild<IntensityCurveVertical *>())
        , horizontalCurve(p.page->findChild<IntensityCurveHorizontal *>())
        , layout(qobject_cast<QVBoxLayout *>(p.page->layout()))
        , grayRuler(qobject_cast<RulerBarHorizontal *>(layout->itemAt(1)->widget()))
        , pixelRuler(qobject_cast<RulerBarHorizontal *>(layout->itemAt(4)->layout()->itemAt(0)->widget()))
        , cross(dynamic_cast<CrossItem *>(p.view->scene()->items().value(0)))
        , frame(p.frame)
    {
    }

    /// Axes, curves, colour card, frame and cross, as they are shown.
    QString Shown() const
    {
        QStringList shown;
        const auto add = [&shown](const QWidget *first, const QWidget *second, const QString &name) {
            if (first->isVisibleTo(first->parentWidget()) && second->isVisibleTo(second->parentWidget()))
                shown << name;
            else if (!first->isHidden() || !second->isHidden())
                shown << "half of " + name;
        };
        add(verticalRuler, pixelRuler, "axes");
        add(verticalCurve, horizontalCurve, "curves");
        add(grayRuler, colorBar, "card");
        if (!frame->isHidden() && frame->isEnabled())
            shown << "frame";
        if (cross->isVisible())
            shown << "cross";
        return shown.join(", ");
    }

    GradientColorLayoutItem *colorBar;
    RulerBarVertical *verticalRuler;
    IntensityCurveVertical *verticalCurve;
    IntensityCurveHorizontal *horizontalCurve;
    QVBoxLayout *layout;
    RulerBarHorizontal *grayRuler;
    RulerBarHorizontal *pixelRuler;
    CrossItem *cross;
    SpectrumDrawFrameBase *frame;
};

int LeftMargin(const Pieces &pieces, int row)
{
    return pieces.layout->itemAt(row)->layout()->contentsMargins().left();
}

} // namespace

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
    void leftMarginOfTheLowerRows_data();
    void leftMarginOfTheLowerRows();
    void settingsWithoutACamera();
    void settingsOfALivePage();
    void settingsOfAStillPage_data();
    void settingsOfAStillPage();
    void leavingTheUseAreaIsGeneral_data();
    void leavingTheUseAreaIsGeneral();
    void resetHidesEverything();
    void showEnablesUpdates();
    void pageMayBecomeSmaller();
};

void TestSpectrumView::signalsAndSlotsInOrder()
{
    const QMetaObject &meta = SpectrumView::staticMetaObject;
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        methods << meta.method(i).methodSignature();
    QCOMPARE(methods,
             QStringList({ "sglUpdateCurve(void*)", "SignalDisplayModeUpdate()", "SlotImageViewChange(QSize)",
                           "SlotPressPosChange(QPointF,QRectF)", "SlotDrawArea(QPointF,bool,bool)",
                           "SlotUpdateCurve(void*)", "SlotDisplayModeUpdate()",
                           "SlotUpdateHorizontalCurve(int*,int,int,int)", "SlotUpdateVerticalCurve(int*,int,int,int)",
                           "SlotUpdateLevel(int,int)", "SlotPressPosChangeStatic(QPointF,QRectF,bool)",
                           "SlotSpectrumUIChange()", "slotResetImageInfo()", "SlotPseudoColorsChanged(QVector<QColor>)",
                           "SlotSpectralPropertyChanged()" }));
}

void TestSpectrumView::rowsInOrder()
{
    SpectrumPage p;
    const Pieces pieces(p);
    QCOMPARE(p.page->styleSheet(), QString("Background:rgb(68, 73, 86); border:1px; border-color:rgb(255, 255, 255)"));
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
    QTest::newRow("none") << false << false << false << "frame, cross" << QSize(709, 236); // 710 / 1200 as a float is a little less
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

void TestSpectrumView::leftMarginOfTheLowerRows_data()
{
    QTest::addColumn<bool>("axis");
    QTest::addColumn<bool>("curve");
    QTest::addColumn<int>("left");
    QTest::newRow("all") << true << true << 110;
    QTest::newRow("no axes") << false << true << 50;
    QTest::newRow("no curves") << true << false << 60;
    QTest::newRow("neither") << false << false << 0;
}

void TestSpectrumView::leftMarginOfTheLowerRows()
{
    QFETCH(bool, axis);
    QFETCH(bool, curve);
    const auto prepare = [=](FakeServices &services) {
        services.useArea.axisVisible = axis;
        services.useArea.curveVisible = curve;
    };
    SpectrumPage born(QSize(740, 580), prepare);
    const Pieces bornPieces(born);
    QTEST(LeftMargin(bornPieces, 4), "left");
    QTEST(LeftMargin(bornPieces, 5), "left");
}

void TestSpectrumView::settingsWithoutACamera()
{
    FakeServices services;
    const DisplayScale scale(1.0);
    SpectrumView page(nullptr);
    page.resize(740, 580);
    page.GetDrawView()->slotPaintPreview(SpectrumPage::Picture(QSize(1200, 400)));
    auto *frame = page.findChild<SpectrumDrawFrameBase *>();
    QVERIFY(!frame->isHidden());
    services.useArea.axisVisible = false;
    page.SlotSpectrumUIChange();
    QVERIFY(frame->isHidden());
    QVERIFY(!frame->isEnabled());
    QVERIFY(page.findChild<IntensityCurveVertical *>()->isHidden());
    QCOMPARE(page.layout()->itemAt(4)->layout()->contentsMargins().left(), 110); // as before
}

void TestSpectrumView::settingsOfALivePage()
{
    SpectrumPage p;
    const Pieces pieces(p);
    p.ShowLive(QSize(1200, 400));
    p.LogSignals();
    p.services.useArea.axisVisible = false;
    p.page->SlotSpectrumUIChange();
    QCOMPARE(pieces.Shown(), QString("curves, card, frame, cross"));
    QCOMPARE(LeftMargin(pieces, 4), 50);
    QCOMPARE(LeftMargin(pieces, 5), 50);
    QCOMPARE(p.frame->size(), QSize(660, 220)); // the image takes the room
    QCOMPARE(CallLog::Calls().filter("Manager::"), QStringList());
    p.services.useArea.curveVisible = p.services.useArea.colorCardVisible = false;
    p.page->SlotSpectrumUIChange();
    QCOMPARE(pieces.Shown(), QString("frame, cross"));
    p.services.useArea.axisVisible = p.services.useArea.curveVisible = p.services.useArea.colorCardVisible = true;
    p.page->SlotSpectrumUIChange();
    QCOMPARE(pieces.Shown(), QString("axes, curves, card, frame, cross"));
    QCOMPARE(LeftMargin(pieces, 4), 110);
    QCOMPARE(p.frame->size(), QSize(600, 200));
}

void TestSpectrumView::settingsOfAStillPage_data()
{
    QTest::addColumn<bool>("open");
    QTest::addColumn<QStringList>("calls");
    QTest::newRow("a picture is open") << true << QStringList("ImageManager::DrawImage()");
    QTest::newRow("nothing is open") << false << QStringList();
}

void TestSpectrumView::settingsOfAStillPage()
{
    QFETCH(bool, open);
    SpectrumPage p;
    const Pieces pieces(p);
    p.page->SetStaticMode(true);
    p.view->SetStaticMode(true);
    p.services.mainImage.nonImage = false;
    p.view->slotPaintStaticPreview(p.Picture(QSize(1200, 400)));
    p.services.mainImage.nonImage = !open;
    p.services.useArea.axisVisible = false;
    CallLog::Clear();
    p.page->SlotSpectrumUIChange();
    QTEST(CallLog::Calls(), "calls");
    QCOMPARE(LeftMargin(pieces, 4), 50);
    QCOMPARE(LeftMargin(pieces, 5), 50);
    QCOMPARE(pieces.Shown(), QString(open ? "curves, card, frame, cross" : "axes, curves, card, frame, cross"));
    QCOMPARE(p.frame->width(), open ? 660 : 600);
}

void TestSpectrumView::leavingTheUseAreaIsGeneral_data()
{
    QTest::addColumn<int>("useArea");
    QTest::addColumn<bool>("hidden");
    QTest::addColumn<int>("calls");
    QTest::newRow("spectrum") << 1 << false << 0;
    QTest::newRow("spectrum, hidden") << 1 << true << 1;
    QTest::newRow("other") << 0 << false << 1;
}

void TestSpectrumView::leavingTheUseAreaIsGeneral()
{
    QFETCH(int, useArea);
    QFETCH(bool, hidden);
    SpectrumPage p;
    p.services.useArea.useAreaType = useArea;
    p.services.useArea.spectrumHidden = hidden;
    CallLog::Clear();
    p.page->SlotSpectrumUIChange();
    QTEST(CallLog::Count("SpectrumUIManager::SetDisplayModeGeneral()"), "calls");
}

void TestSpectrumView::resetHidesEverything()
{
    SpectrumPage p;
    const Pieces pieces(p);
    p.ShowLive(QSize(1200, 400));
    p.page->slotResetImageInfo();
    QCOMPARE(pieces.Shown(), QString());
    QVERIFY(!p.frame->isEnabled());
    QVERIFY(p.frame->isHidden());
    p.ShowLive(QSize(600, 400));
    QCOMPARE(pieces.Shown(), QString("axes, curves, card, frame, cross"));
}

void TestSpectrumView::showEnablesUpdates()
{
    SpectrumPage p;
    p.page->setUpdatesEnabled(false);
    QVERIFY(p.Show());
    QVERIFY(p.page->updatesEnabled());
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
