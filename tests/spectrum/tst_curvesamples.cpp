// SPDX-License-Identifier: GPL-3.0-or-later
#include "curvesamples.h"
#include "tracerlabel.h"

#include "fakespectrumuimanager.h"
#include "guardedtest.h"

#include <limits>

namespace {

/// A calibration that fails from some pixel on.
class PartlyCalibrated : public FakeSpectrumUIManager
{
public:
    int firstFailure = 0;

    bool Calculate(int pixel, double &x) const override
    {
        x = 1e6;
        return pixel < firstFailure;
    }
};

} // namespace

class TestCurveSamples : public GuardedTest
{
    Q_OBJECT

private slots:
    void samplesAreCalibrated();
    void fallingCalibration();
    void pixelsStandInForMissingCalibration();
    void pixelsStandInForNumbersThatAreNone_data();
    void pixelsStandInForNumbersThatAreNone();
    void largeCounts();
    void samplesBelowZero();
    void anotherCurveLeavesNothingOfTheFirst();
    void tracerValue_data();
    void tracerValue();
    void tracerValueOfEqualPositions();
    void tracerText_data();
    void tracerText();
};

void TestCurveSamples::samplesAreCalibrated()
{
    FakeSpectrumUIManager settings;
    settings.calibrationOffset = 400.0;
    settings.calibrationFactor = 0.5;
    const unsigned int data[] = { 7, 3, 9, 4 };
    CurveSamples samples;
    samples.Assign(data, 4);
    QCOMPARE(samples.Count(), 4);
    QCOMPARE(samples.X(), QVector<double>({ 400.0, 400.5, 401.0, 401.5 }));
    QCOMPARE(samples.Values(), QVector<double>({ 7, 3, 9, 4 }));
    QCOMPARE(samples.Minimum(), 3.0);
    QCOMPARE(samples.Maximum(), 9.0);
    QCOMPARE(samples.Ends(), QCPRange(400.0, 402.0));
    samples.Clear();
    QCOMPARE(samples.Count(), 0);
    QCOMPARE(samples.Ends(), QCPRange(400.0, 402.0));
    QCOMPARE(samples.TracerValue(401.0), 0.0);
}

void TestCurveSamples::fallingCalibration()
{
    FakeSpectrumUIManager settings;
    settings.calibrationOffset = 500.0;
    settings.calibrationFactor = -1.0;
    const unsigned int data[] = { 1, 2, 3 };
    CurveSamples samples;
    samples.Assign(data, 3);
    QCOMPARE(samples.X(), QVector<double>({ 500.0, 499.0, 498.0 }));
    QCOMPARE(samples.Ends(), QCPRange(497.0, 500.0));
    QCOMPARE(samples.TracerValue(498.5), 2.0); // between 498 and 499, the upper one
}

void TestCurveSamples::pixelsStandInForMissingCalibration()
{
    PartlyCalibrated settings;
    settings.firstFailure = 1;
    QCOMPARE(CurveSamples::PixelToX(0), 1e6);
    QCOMPARE(CurveSamples::PixelToX(1), 1.0);
}

void TestCurveSamples::pixelsStandInForNumbersThatAreNone_data()
{
    QTest::addColumn<double>("offset");
    QTest::newRow("not a number") << qQNaN();
    QTest::newRow("infinite") << qInf();
}

void TestCurveSamples::pixelsStandInForNumbersThatAreNone()
{
    QFETCH(double, offset);
    FakeSpectrumUIManager settings;
    settings.calibrationOffset = offset;
    const unsigned int data[] = { 1, 2 };
    CurveSamples samples;
    samples.Assign(data, 2);
    QCOMPARE(samples.X(), QVector<double>({ 0.0, 1.0 }));
    QCOMPARE(samples.Ends(), QCPRange(0.0, 2.0));
}

void TestCurveSamples::largeCounts()
{
    FakeSpectrumUIManager settings;
    const unsigned int data[] = { 0, std::numeric_limits<unsigned int>::max() };
    CurveSamples samples;
    samples.Assign(data, 2);
    QCOMPARE(samples.Maximum(), 4294967295.0);
    QCOMPARE(samples.TracerValue(5), 4294967295.0);
}

void TestCurveSamples::samplesBelowZero()
{
    FakeSpectrumUIManager settings;
    const int data[] = { 5, -12, -3 };
    CurveSamples samples;
    samples.Assign(data, 3);
    QCOMPARE(samples.Values(), QVector<double>({ 5, -12, -3 }));
    QCOMPARE(samples.Minimum(), -12.0);
    QCOMPARE(samples.Maximum(), 5.0);
    QCOMPARE(samples.TracerValue(5), -3.0);
}

void TestCurveSamples::anotherCurveLeavesNothingOfTheFirst()
{
    FakeSpectrumUIManager settings;
    const unsigned int first[] = { 9, 9, 9, 9 };
    const unsigned int second[] = { 1, 2 };
    CurveSamples samples;
    samples.Assign(first, 4);
    samples.Assign(second, 2);
    QCOMPARE(samples.Count(), 2);
    QCOMPARE(samples.Maximum(), 2.0);
    QCOMPARE(samples.TracerValue(3), 2.0);
}

void TestCurveSamples::tracerValue_data()
{
    QTest::addColumn<QVector<unsigned int>>("data");
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("expected");
    const QVector<unsigned int> five{ 10, 11, 12, 13, 14 };
    // Steps of the search by hand: low, high -> middle.
    QTest::newRow("left of all") << five << -0.5 << 0.0; // (-1,4)->2, (-1,1)->0, low stays -1
    QTest::newRow("first") << five << 0.0 << 11.0;       // (-1,4)->2, (-1,1)->0, low 1
    QTest::newRow("second") << five << 1.0 << 11.0;      // (-1,4)->2, (-1,1)->0, low 1
    QTest::newRow("third") << five << 2.0 << 13.0;       // (-1,4)->2, (3,4)->4, high 3, low 3
    QTest::newRow("between") << five << 2.5 << 13.0;     // the same
    QTest::newRow("fifth") << five << 4.0 << 14.0;       // (-1,4)->2, (3,4)->4, low 5: behind the last
    QTest::newRow("right of all") << five << 99.0 << 14.0;
    QTest::newRow("one sample, at it") << QVector<unsigned int>{ 7 } << 0.0 << 7.0; // (-1,0)->0, low 1
    QTest::newRow("one sample, left of it") << QVector<unsigned int>{ 7 } << -1.0 << 0.0;
}

void TestCurveSamples::tracerValue()
{
    QFETCH(QVector<unsigned int>, data);
    QFETCH(double, x);
    FakeSpectrumUIManager settings;
    CurveSamples samples;
    samples.Assign(data.constData(), data.size());
    QTEST(samples.TracerValue(x), "expected");
}

void TestCurveSamples::tracerValueOfEqualPositions()
{
    FakeSpectrumUIManager settings;
    settings.calibrationFactor = 0.0; // every pixel at x 0
    const unsigned int data[] = { 5, 6, 8 };
    CurveSamples samples;
    samples.Assign(data, 3);
    QCOMPARE(samples.TracerValue(0.0), 8.0); // the last one stays
}

void TestCurveSamples::tracerText_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("value");
    QTest::addColumn<bool>("isWhole");
    QTest::addColumn<QString>("text");
    QTest::newRow("pixels") << 1234.4 << 56.0 << true << "[Pos : 1234, Value : 56]";
    QTest::newRow("one") << 1.0 << 0.0 << true << "[Pos : 1.000000, Value : 0]";
    QTest::newRow("above one") << 1.4 << 0.0 << true << "[Pos : 1, Value : 0]";
    QTest::newRow("micrometres") << 0.5321234 << 65535.0 << true << "[Pos : 0.532123, Value : 65535]";
    QTest::newRow("negative") << -3.0 << 1.0 << true << "[Pos : -3.000000, Value : 1]";
    QTest::newRow("32 bits") << 300.0 << 4294967295.0 << true << "[Pos : 300, Value : 4294967295]";
    QTest::newRow("fifteen digits") << 300.0 << -999999999999999.0 << true << "[Pos : 300, Value : -999999999999999]";
    QTest::newRow("more digits than are known") << 300.0 << 3.4e38 << true << "[Pos : 300, Value : 3.4e+38]";
    QTest::newRow("fraction") << 300.0 << 1.2345678 << false << "[Pos : 300, Value : 1.234568]";
    QTest::newRow("fraction below zero") << 300.0 << -3.0 << false << "[Pos : 300, Value : -3]";
}

void TestCurveSamples::tracerText()
{
    QFETCH(double, x);
    QFETCH(double, value);
    QFETCH(bool, isWhole);
    QTEST(TracerLabel::Text(x, value, isWhole), "text");
}

GUARDED_TEST_MAIN(TestCurveSamples)
#include "tst_curvesamples.moc"
