// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturecurves.h"
#include "guardedtest.h"
#include "picture.h"
#include "picturelevels.h"

#include <cmath>
#include <limits>

namespace {

constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();
const QRectF Whole(0, 0, 1, 1);

/// Sample (x, y) is scale * (100 y + x).
Picture Slope(SampleType type, double scale = 1, int channels = 1)
{
    Picture picture(20, 10, channels, type);
    VisitSampleType(type, [&](auto sample) {
        using Sample = decltype(sample);
        for (int y = 0; y < 10; ++y) {
            for (int i = 0; i < 20 * channels; ++i)
                picture.Samples<Sample>(y)[i] = Sample(scale * (100 * y + i / channels));
        }
    });
    return picture;
}

std::vector<int> Line(int count, int first, int step)
{
    std::vector<int> line;
    for (int i = 0; i < count; ++i)
        line.push_back(first + i * step);
    return line;
}

void Tell(PictureCurves *curves, double factor)
{
    curves->Row().Tell(factor);
    curves->Column().Tell(factor);
}

} // namespace

class PictureCurvesTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void saturationIsToldWhereItIsKnown_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<double>("most");
        QTest::addColumn<bool>("isKnownWithout");
        QTest::newRow("8 bits") << int(SampleType::U8) << 255.0 << true;
        QTest::newRow("16 bits") << int(SampleType::U16) << 65535.0 << false;
        QTest::newRow("16 bits with sign") << int(SampleType::S16) << 32767.0 << false;
        QTest::newRow("32 bits with sign") << int(SampleType::S32) << 2147483647.0 << false;
    }

    /// The band is of rows 3 and 4, or columns 11 and 12.
    void saturationIsToldWhereItIsKnown()
    {
        QFETCH(int, type);
        QFETCH(double, most);
        QFETCH(bool, isKnownWithout);
        for (const int channels : {1, 3}) {
            PictureCurves curves;
            curves.SetLines(2);
            curves.Pick(QPointF(12, 4), Whole);
            Picture picture = Slope(SampleType(type), 0.01, channels);
            const std::vector<quint8> without = isKnownWithout ? std::vector<quint8>(20, 0) : std::vector<quint8>();
            QCOMPARE(curves.Saturated(picture, true), without);
            VisitSampleType(SampleType(type), [&](auto sample) {
                using Sample = decltype(sample);
                picture.Samples<Sample>(3)[6 * channels] = Sample(most);
                picture.Samples<Sample>(5)[7 * channels] = Sample(most); // beside the rows
                picture.Samples<Sample>(9)[11 * channels + channels - 1] = Sample(most);
            });
            std::vector<quint8> row(20, 0);
            row[6] = 1;
            QCOMPARE(curves.Saturated(picture, true), row);
            std::vector<quint8> column(10, 0);
            column[9] = 1;
            QCOMPARE(curves.Saturated(picture, false), column);
        }
    }

    void saturationOfFractionsIsNotKnown()
    {
        PictureCurves curves;
        curves.Pick(QPointF(7, 3), Whole);
        QVERIFY(curves.Saturated(Slope(SampleType::F32), true).empty());
        QVERIFY(PictureCurves().Saturated(Slope(SampleType::U8), true).empty()); // nothing was picked
    }

    void goThroughThePixelOfAnyType_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("channels");
        for (const int channels : {1, 3}) {
            for (const SampleType type : {SampleType::U16, SampleType::S16, SampleType::U32, SampleType::S32, SampleType::F32,
                                          SampleType::F64})
                QTest::newRow(qPrintable(QString("%1 x %2").arg(SampleTypeName(type)).arg(channels))) << int(type) << channels;
        }
    }

    void goThroughThePixelOfAnyType()
    {
        QFETCH(int, type);
        QFETCH(int, channels);
        PictureCurves curves;
        curves.Pick(QPointF(7.9, 3.0), Whole);
        QVERIFY(curves.Make(Slope(SampleType(type), 1, channels)));
        Tell(&curves, 1);
        QCOMPARE(curves.Row().samples, Line(20, 300, 1));
        QCOMPARE(curves.Column().samples, Line(10, 7, 100));
        curves.SetLines(5);
        QVERIFY(curves.Make(Slope(SampleType(type), 1, channels)));
        Tell(&curves, 1);
        QCOMPARE(curves.Row().samples, Line(20, 300, 1));
        QCOMPARE(curves.Column().samples, Line(10, 7, 100));
    }

    void smallFractionsAreTold()
    {
        PictureLevels levels;
        levels.Set(SampleType::F32, {0, 0.5});
        QCOMPARE(levels.Factor(), 10000.0);
        QCOMPARE(levels.GetRightLevel(), 5000);
        QCOMPARE(levels.RightValue(), 1); // of the ruler, rounded
        PictureCurves curves;
        curves.Pick(QPointF(0, 2), Whole);
        QVERIFY(curves.Make(Slope(SampleType::F32, 0.0005)));
        Tell(&curves, levels.Factor());
        QCOMPARE(curves.Row().samples, Line(20, 1000, 5));

        levels.Set(SampleType::F32, {0, 60000});
        QCOMPARE(levels.Factor(), 1.0);
        levels.Set(SampleType::S16, {0, 5});
        QCOMPARE(levels.Factor(), 1.0);
        levels.Set(SampleType::F64, {3, 3}); // no difference is enlarged for ever
        QCOMPARE(levels.Factor(), 1e8);
        QCOMPARE(levels.GetLeftLevel(), 300000000);
    }

    /// A plot, which has an axis of its own, gets all that an int holds, whatever the levels are.
    void aPlotGetsFineFractions_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<double>("scale"); // the highest is 319 times that
        QTest::addColumn<double>("factor");
        QTest::newRow("counts") << int(SampleType::F32) << 1.0 << 1.0;
        QTest::newRow("fractions") << int(SampleType::F32) << 0.0047 << 1e7;
        QTest::newRow("below zero") << int(SampleType::F64) << -0.5 << 1e5;
        QTest::newRow("very small") << int(SampleType::F64) << 1.1e-40 << 1e45;
        QTest::newRow("smallest") << int(SampleType::F64) << 1.1e-310 << 1e300;
        QTest::newRow("more than an int holds") << int(SampleType::F64) << 1e30 << 1e-25;
        QTest::newRow("nothing") << int(SampleType::F64) << 0.0 << 1.0;
    }

    void aPlotGetsFineFractions()
    {
        QFETCH(int, type);
        QFETCH(double, scale);
        PictureCurves curves;
        curves.Pick(QPointF(0, 3), Whole);
        QVERIFY(curves.Make(Slope(SampleType(type), scale)));
        const double factor = curves.Row().FinestFactor();
        QTEST(factor, "factor");
        curves.Row().Tell(factor);
        for (size_t x = 0; x < 20; ++x) {
            const double value = scale * (300 + double(x));
            QVERIFY(std::abs(curves.Row().samples[x] / factor - value) <= 0.5 / factor + std::abs(value) * 1e-7);
        }
    }

    void whatIsNoNumberIsNothing()
    {
        Picture picture = Slope(SampleType::F64);
        picture.Samples<double>(3)[4] = NotANumber;
        picture.Samples<double>(3)[5] = std::numeric_limits<double>::infinity();
        picture.Samples<double>(3)[6] = -1e300;
        PictureCurves curves;
        curves.Pick(QPointF(0, 3), Whole);
        QVERIFY(curves.Make(picture));
        Tell(&curves, 1);
        QCOMPARE(curves.Row().samples[3], 303);
        QCOMPARE(curves.Row().samples[4], 0);
        QCOMPARE(curves.Row().samples[5], 0);
        QCOMPARE(curves.Row().samples[6], std::numeric_limits<int>::min());
        QCOMPARE(curves.Row().values[6], -1e300);
    }

    void visiblePart_data()
    {
        QTest::addColumn<QRectF>("region");
        QTest::addColumn<int>("offset");
        QTest::addColumn<int>("count");
        QTest::newRow("all") << Whole << 0 << 20;
        QTest::newRow("half") << QRectF(0.25, 0, 0.75, 1) << 5 << 10;
        QTest::newRow("beyond") << QRectF(-0.5, 0, 1.5, 1) << 0 << 20;
        QTest::newRow("no number") << QRectF(NotANumber, 0, 1, 1) << 0 << 20;
        QTest::newRow("turned round") << QRectF(0.75, 0, 0.25, 1) << 0 << 20;
        QTest::newRow("right of the picture") << QRectF(1.5, 0, 2, 1) << 0 << 20;
        QTest::newRow("less than a pixel") << QRectF(0.51, 0, 0.52, 1) << 10 << 0;
    }

    void visiblePart()
    {
        QFETCH(QRectF, region);
        PictureCurves curves;
        curves.Pick(QPointF(1, 1), region);
        QVERIFY(curves.Make(Slope(SampleType::U16)));
        QTEST(curves.Row().offset, "offset");
        QTEST(curves.Row().count, "count");
        QCOMPARE(int(curves.Row().values.size()), 20);
    }

    void pointsOutsideAreAtTheEdge()
    {
        PictureCurves curves;
        curves.Pick(QPointF(-5, 1e300), Whole);
        QVERIFY(curves.Make(Slope(SampleType::U16)));
        Tell(&curves, 1);
        QCOMPARE(curves.Row().samples, Line(20, 900, 1));
        QCOMPARE(curves.Column().samples, Line(10, 0, 100));
    }

    void nothingPickedNothingMade()
    {
        PictureCurves curves;
        QVERIFY(!curves.Make(Slope(SampleType::U16)));
        curves.Pick(QPointF(NotANumber, 1), Whole);
        QVERIFY(!curves.IsPicked());
        curves.Pick(QPointF(1, 1), Whole);
        QVERIFY(!curves.Make(Picture()));
        QVERIFY(curves.Make(Slope(SampleType::U8)));
        curves.Forget();
        QVERIFY(!curves.Make(Slope(SampleType::U16)));
    }
};

GUARDED_TEST_MAIN(PictureCurvesTest)
#include "picturecurvestest.moc"
