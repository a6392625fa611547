// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "spectrumpieces.h"

/// The spectrum page when the use area and its aids change.
class TestSpectrumViewSettings : public GuardedTest
{
    Q_OBJECT

private slots:
    void leftMarginOfTheLowerRows_data();
    void leftMarginOfTheLowerRows();
    void settingsWithoutACamera();
    void theNextCameraShowsThePageAgain();
    void settingsOfALivePage();
    void settingsOfAStillPage_data();
    void settingsOfAStillPage();
    void leavingTheUseAreaIsGeneral_data();
    void leavingTheUseAreaIsGeneral();
    void resetHidesEverything();
};

void TestSpectrumViewSettings::leftMarginOfTheLowerRows_data()
{
    QTest::addColumn<bool>("axis");
    QTest::addColumn<bool>("curve");
    QTest::addColumn<int>("left");
    QTest::newRow("all") << true << true << 110;
    QTest::newRow("no axes") << false << true << 50;
    QTest::newRow("no curves") << true << false << 60;
    QTest::newRow("neither") << false << false << 0;
}

void TestSpectrumViewSettings::leftMarginOfTheLowerRows()
{
    QFETCH(bool, axis);
    QFETCH(bool, curve);
    const auto prepare = [=](FakeServices &services) {
        services.useArea.axisVisible = axis;
        services.useArea.curveVisible = curve;
    };
    SpectrumPage born(QSize(740, 580), prepare);
    const Pieces bornPieces(born);
    QTEST(bornPieces.LeftMargin(4), "left");
    QTEST(bornPieces.LeftMargin(5), "left");
}

void TestSpectrumViewSettings::settingsWithoutACamera()
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

/// Its frames have the size of those before, so that nothing but their coming says so.
void TestSpectrumViewSettings::theNextCameraShowsThePageAgain()
{
    FakeServices services;
    const DisplayScale scale(1.0);
    SpectrumView page(nullptr);
    page.resize(740, 580);
    auto *frame = page.findChild<SpectrumDrawFrameBase *>();
    const auto show = [&] { page.GetDrawView()->slotPaintPreview(SpectrumPage::Picture(QSize(1200, 400))); };
    {
        const FakeCameraMainManager camera;
        show();
        QVERIFY(!frame->isHidden());
    }
    page.SlotSpectrumUIChange(); // an aid is switched while no camera is open
    QVERIFY(frame->isHidden());
    const FakeCameraMainManager camera;
    show();
    QVERIFY(!frame->isHidden());
    QVERIFY(frame->isEnabled());
    QVERIFY(!page.findChild<IntensityCurveHorizontal *>()->isHidden());
    QVERIFY(!page.findChild<RulerBarVertical *>()->isHidden());
}

void TestSpectrumViewSettings::settingsOfALivePage()
{
    SpectrumPage p;
    const Pieces pieces(p);
    p.ShowLive(QSize(1200, 400));
    p.LogSignals();
    p.services.useArea.axisVisible = false;
    p.page->SlotSpectrumUIChange();
    QCOMPARE(pieces.Shown(), QString("curves, card, frame, cross"));
    QCOMPARE(pieces.LeftMargin(4), 50);
    QCOMPARE(pieces.LeftMargin(5), 50);
    QCOMPARE(p.frame->size(), QSize(660, 220)); // the image takes the room
    QCOMPARE(CallLog::Calls().filter("Manager::"), QStringList());
    p.services.useArea.curveVisible = p.services.useArea.colorCardVisible = false;
    p.page->SlotSpectrumUIChange();
    QCOMPARE(pieces.Shown(), QString("frame, cross"));
    p.services.useArea.axisVisible = p.services.useArea.curveVisible = p.services.useArea.colorCardVisible =
        true;
    p.page->SlotSpectrumUIChange();
    QCOMPARE(pieces.Shown(), QString("axes, curves, card, frame, cross"));
    QCOMPARE(pieces.LeftMargin(4), 110);
    QCOMPARE(p.frame->size(), QSize(600, 200));
}

void TestSpectrumViewSettings::settingsOfAStillPage_data()
{
    QTest::addColumn<bool>("open");
    QTest::addColumn<QStringList>("calls");
    QTest::newRow("a picture is open") << true << QStringList("ImageManager::DrawImage()");
    QTest::newRow("nothing is open") << false << QStringList();
}

void TestSpectrumViewSettings::settingsOfAStillPage()
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
    QCOMPARE(pieces.LeftMargin(4), 50);
    QCOMPARE(pieces.LeftMargin(5), 50);
    QCOMPARE(pieces.Shown(),
             QString(open ? "curves, card, frame, cross" : "axes, curves, card, frame, cross"));
    QCOMPARE(p.frame->width(), open ? 660 : 600);
}

void TestSpectrumViewSettings::leavingTheUseAreaIsGeneral_data()
{
    QTest::addColumn<int>("useArea");
    QTest::addColumn<bool>("hidden");
    QTest::addColumn<int>("calls");
    QTest::newRow("spectrum") << 1 << false << 0;
    QTest::newRow("spectrum, hidden") << 1 << true << 1;
    QTest::newRow("other") << 0 << false << 1;
}

void TestSpectrumViewSettings::leavingTheUseAreaIsGeneral()
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

void TestSpectrumViewSettings::resetHidesEverything()
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

GUARDED_TEST_MAIN(TestSpectrumViewSettings)
#include "tst_spectrumviewsettings.moc"
