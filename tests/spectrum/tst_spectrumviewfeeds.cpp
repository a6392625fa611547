// SPDX-License-Identifier: GPL-3.0-or-later
#include "fedpage.h"
#include "guardedtest.h"
#include "plotpage.h"

#include <QSignalSpy>

#include <functional>
#include <limits>

namespace {

using PayloadChange = std::function<void(SpectrumCurvePayload &)>;

} // namespace

Q_DECLARE_METATYPE(PayloadChange)

/// The curves, levels and colours that the spectrum page is fed with.
class TestSpectrumViewFeeds : public GuardedTest
{
    Q_OBJECT

private slots:
    void profilesOfTheRegion();
    void profilesNeedPhysicsMode();
    void profilesThatDoNotFit_data();
    void profilesThatDoNotFit();
    void levelsOfProfilesShowOnTheGrayRuler();
    void shiftOfProfiles_data();
    void shiftOfProfiles();
    void profilesWithoutACamera();
    void imageCurves();
    void imageCurvesThatDoNotFit();
    void imageCurvesWithoutAPicture();
    void levelUpdate();
    void paletteReachesTheBar();
};

void TestSpectrumViewFeeds::profilesOfTheRegion()
{
    FedPage p;
    // Of the row the part from 512 to 1536 fills the curve of 1024 pixels, one sample a pixel.
    CurvePayload payload(Bump(2048, 612, 712), Bump(512, 0, 128));
    payload.record.region = QRectF(0.25, 0.0, 0.75, 1.0);
    payload.record.rightLevel = 100;
    p.page->SlotUpdateCurve(payload.Param());
    QCOMPARE(payload.record.horizontalShow, payload.row.data());
    QCOMPARE(payload.record.verticalShow, payload.column.data());
    QCOMPARE(p.RowAt(50), 48); // the baseline
    QCOMPARE(p.RowAt(150), 2); // 100 of 100
    QCOMPARE(p.RowAt(250), 48);
    QCOMPARE(p.ColumnAt(30), 47); // the upper quarter of the column
    QCOMPARE(p.ColumnAt(120), 1);
}

void TestSpectrumViewFeeds::profilesNeedPhysicsMode()
{
    FedPage p;
    p.services.spectrumUI.displayModePhysics = false;
    CurvePayload payload(Bump(2048, 0, 2048), Bump(512, 0, 512));
    payload.record.region = QRectF(0, 0, 1, 1);
    payload.record.rightLevel = 100;
    p.page->SlotUpdateCurve(payload.Param());
    QCOMPARE(payload.record.horizontalShow, payload.oldRow.data());
    QCOMPARE(p.RowAt(150), -1);
    p.page->SlotUpdateCurve(nullptr);
}

void TestSpectrumViewFeeds::profilesThatDoNotFit_data()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::addColumn<PayloadChange>("change");
    QTest::newRow("row too long") << PayloadChange(
        [](SpectrumCurvePayload &payload) { payload.horizontalSize = 4096; });
    QTest::newRow("row too short") << PayloadChange(
        [](SpectrumCurvePayload &payload) { payload.horizontalSize = 100; });
    QTest::newRow("column below 0") << PayloadChange(
        [](SpectrumCurvePayload &payload) { payload.verticalSize = -1; });
    QTest::newRow("no row") << PayloadChange(
        [](SpectrumCurvePayload &payload) { payload.horizontalFill = nullptr; });
    QTest::newRow("no lock") << PayloadChange([](SpectrumCurvePayload &payload) { payload.lock = nullptr; });
    QTest::newRow("region below 0") << PayloadChange(
        [](SpectrumCurvePayload &payload) { payload.region.setX(-0.5); });
    QTest::newRow("region above 1") << PayloadChange(
        [](SpectrumCurvePayload &payload) { payload.region = QRectF(0, 0, 1.5, 1); });
    QTest::newRow("no number") << PayloadChange(
        [nan](SpectrumCurvePayload &payload) { payload.region = QRectF(nan, 0, 1, 1); });
}

void TestSpectrumViewFeeds::profilesThatDoNotFit()
{
    QFETCH(PayloadChange, change);
    FedPage p;
    CurvePayload good(Bump(2048, 0, 2048), Bump(512, 0, 512));
    good.record.region = QRectF(0, 0, 1, 1);
    good.record.rightLevel = 100;
    p.page->SlotUpdateCurve(good.Param());
    const QImage before = p.page->grab().toImage();
    CurvePayload bad(Bump(2048, 0, 1), Bump(512, 0, 1));
    bad.record.region = QRectF(0, 0, 1, 1);
    bad.record.rightLevel = 7;
    change(bad.record);
    p.page->SlotUpdateCurve(bad.Param());
    QCOMPARE(p.page->grab().toImage(), before); // the picture stays
}

void TestSpectrumViewFeeds::levelsOfProfilesShowOnTheGrayRuler()
{
    FedPage p;
    QVERIFY(p.Show());
    const QImage before = Painted(p.GrayRuler());
    CurvePayload payload(Bump(2048, 0, 1), Bump(512, 0, 1));
    payload.record.region = QRectF(0, 0, 1, 1);
    payload.record.leftLevel = 0;
    payload.record.rightLevel = 255; // as it is born
    p.page->SlotUpdateCurve(payload.Param());
    QCOMPARE(Painted(p.GrayRuler()), before);
    payload.record.rightLevel = 65535;
    p.page->SlotUpdateCurve(payload.Param());
    QVERIFY(Painted(p.GrayRuler()) != before);
    // A frame later than a refit: the ruler's place is still its own.
    QCOMPARE(p.GrayRuler()->geometry(), QRect(15, 25, 1134, 40));
}

void TestSpectrumViewFeeds::shiftOfProfiles_data()
{
    QTest::addColumn<int>("bitDepth");
    QTest::addColumn<int>("shift");
    QTest::newRow("8 bits") << 8 << 0;
    QTest::newRow("12 bits") << 12 << 4;
    QTest::newRow("16 bits") << 16 << 8;
    QTest::newRow("fewer than 8") << 1 << 0;
}

void TestSpectrumViewFeeds::shiftOfProfiles()
{
    QFETCH(int, bitDepth);
    FedPage p;
    p.camera.bitDepth = bitDepth;
    CurvePayload payload(Bump(2048, 0, 2048), Bump(512, 0, 512));
    payload.record.region = QRectF(0, 0, 1, 1);
    payload.record.rightLevel = 200;
    p.page->SlotUpdateCurve(payload.Param());
    QTEST(p.row->GetShift(), "shift");
    QTEST(p.column->GetShift(), "shift");
    QCOMPARE(p.RowAt(150), 25); // whatever the shift
}

void TestSpectrumViewFeeds::profilesWithoutACamera()
{
    FakeServices services;
    services.frame.frameWidth = services.frame.frameHeight = 1;
    services.spectrumUI.displayModePhysics = true;
    SpectrumView page(nullptr);
    CurvePayload payload({ 7 }, { 7 });
    payload.record.region = QRectF(0, 0, 1, 1);
    page.SlotUpdateCurve(payload.Param());
    QCOMPARE(page.findChild<IntensityCurveHorizontal *>()->GetShift(), 0);
}

void TestSpectrumViewFeeds::imageCurves()
{
    FedPage p;
    for (int depth : { 1, 2, 4 }) {
        p.services.imageCore.depth = depth;
        p.services.imageCore.leftLevel = 0;
        p.services.imageCore.rightLevel = 100;
        std::vector<int> row = Bump(2048, 612, 712);
        p.page->SlotUpdateHorizontalCurve(row.data(), 2048, 512, 1024);
        QCOMPARE(p.RowAt(50), 48);
        QCOMPARE(p.RowAt(150), 2);
        std::vector<int> column = Bump(512, 0, 128);
        p.page->SlotUpdateVerticalCurve(column.data(), 512, 0, 512);
        QCOMPARE(p.ColumnAt(30), 47);
        QCOMPARE(p.row->GetShift(), depth == 2 ? 8 : 0);
        QCOMPARE(p.column->GetShift(), depth == 2 ? 8 : 0);
        p.services.imageCore.rightLevel = 200; // with the next samples
        p.page->SlotUpdateVerticalCurve(column.data(), 512, 0, 512);
        QCOMPARE(p.ColumnAt(30), 24);
    }
}

void TestSpectrumViewFeeds::imageCurvesThatDoNotFit()
{
    FedPage p;
    p.services.imageCore.rightLevel = 100;
    std::vector<int> row = Bump(100, 0, 100);
    p.page->SlotUpdateHorizontalCurve(row.data(), 100, 90, 20);
    p.page->SlotUpdateHorizontalCurve(row.data(), 100, -1, 20);
    p.page->SlotUpdateHorizontalCurve(nullptr, 100, 0, 20);
    p.page->SlotUpdateVerticalCurve(row.data(), 0, 0, 0);
    QCOMPARE(p.RowAt(150), -1);
    p.page->SlotUpdateHorizontalCurve(row.data(), 100, 90, 10);
    QCOMPARE(p.RowAt(150), 2);
}

void TestSpectrumViewFeeds::imageCurvesWithoutAPicture()
{
    FedPage p;
    std::vector<int> row = Bump(100, 0, 100);
    p.services.mainImage.imageCore = nullptr;
    p.page->SlotUpdateHorizontalCurve(row.data(), 100, 0, 100);
    p.services.global.activeImageManager = nullptr;
    p.page->SlotUpdateVerticalCurve(row.data(), 100, 0, 100);
    p.page->SlotPressPosChangeStatic(QPointF(3, 4), QRectF(0, 0, 1, 1), true);
    p.page->SetStaticMode(true);
    p.page->SlotSpectrumUIChange();
    QCOMPARE(p.RowAt(50), -1);
    QCOMPARE(p.ColumnAt(50), -1);
}

void TestSpectrumViewFeeds::levelUpdate()
{
    FedPage p;
    const QImage before = Painted(p.GrayRuler());
    p.page->SlotUpdateLevel(100, 4000);
    QVERIFY(Painted(p.GrayRuler()) != before);
    p.page->SlotUpdateLevel(0, 255);
    QCOMPARE(Painted(p.GrayRuler()), before);
}

void TestSpectrumViewFeeds::paletteReachesTheBar()
{
    FedPage p;
    auto *bar = p.Find<GradientColorLayoutItem>();
    QSignalSpy changed(bar, SIGNAL(changeColors(QVector<QColor>)));
    QVector<QColor> colors;
    for (int level = 0; level < 256; ++level)
        colors << QColor(level, 0, 255 - level);
    p.page->SlotPseudoColorsChanged(colors);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(Painted(bar).pixelColor(5, 5), QColor(0, 0, 255));
    p.page->SlotPseudoColorsChanged({}); // an empty palette paints no cell
    QCOMPARE(Painted(bar).pixelColor(5, 5), QColor(Qt::black));
}

GUARDED_TEST_MAIN(TestSpectrumViewFeeds)
#include "tst_spectrumviewfeeds.moc"
