// SPDX-License-Identifier: GPL-3.0-or-later
#include "tracklines.h"

#include "guardedtest.h"

#include <limits>

class TestTrackLines : public GuardedTest
{
    Q_OBJECT

private slots:
    void seriesStep_data();
    void seriesStep();
    void countsDivisor_data();
    void countsDivisor();
    void depth_data();
    void depth();
    void lines();
    void linesEndWithTheValues();
};

void TestTrackLines::seriesStep_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("step");
    QTest::newRow("300") << 300 << 20;
    QTest::newRow("1000") << 1000 << 50;
    QTest::newRow("740: 37") << 740 << 30;
    QTest::newRow("400: 20") << 400 << 20;
    QTest::newRow("3060: 153") << 3060 << 100;
    QTest::newRow("2048: 102") << 2048 << 100;
    QTest::newRow("1980: 99") << 1980 << 90;
    QTest::newRow("one pixel") << 1 << 20;
    QTest::newRow("widest frame: 3276") << 65535 << 3000;
}

void TestTrackLines::seriesStep()
{
    QFETCH(int, width);
    QTEST(ComputeTrackSteps(width, 0, 0).series, "step");
}

void TestTrackLines::countsDivisor_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("divisor");
    QTest::newRow("16 bit") << 0 << 65535 << 500;
    QTest::newRow("just") << 0 << 2504999 << 500;
    QTest::newRow("one more") << 0 << 2505000 << 501;
    QTest::newRow("span") << 1000000 << 6000000 << 1000;
    QTest::newRow("flat") << 7 << 7 << 500;
    QTest::newRow("reversed") << 9 << 7 << 500;
    QTest::newRow("widest") << std::numeric_limits<int>::min() << std::numeric_limits<int>::max() << 858993;
}

void TestTrackLines::countsDivisor()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QTEST(ComputeTrackSteps(100, minimum, maximum).countsDivisor, "divisor");
}

void TestTrackLines::depth_data()
{
    QTest::addColumn<int>("tracks");
    QTest::addColumn<int>("steps");
    QTest::newRow("1") << 1 << 5;
    QTest::newRow("5") << 5 << 5;
    QTest::newRow("6") << 6 << 6;
    QTest::newRow("20") << 20 << 20;
    QTest::newRow("21") << 21 << 20;
    QTest::newRow("300") << 300 << 20;
}

void TestTrackLines::depth()
{
    QFETCH(int, tracks);
    QTEST(ComputeSeriesDepth(tracks), "steps");
}

void TestTrackLines::lines()
{
    const unsigned int values[] = { 500, 1000, 250, 4000000000u, 0, 750 };
    const std::vector<Qwt3D::TripleField> lines = ComputeTrackLines(values, 2, 3, 6, { 20, 500 });
    QCOMPARE(lines.size(), size_t(2));
    const double expected[2][3][3] = { { { 0, 0, 1 }, { 1, 0, 2 }, { 2, 0, 0.5 } },
                                       { { 0, 20, 8000000 }, { 1, 20, 0 }, { 2, 20, 1.5 } } };
    for (size_t track = 0; track < 2; ++track) {
        QCOMPARE(lines[track].size(), size_t(3));
        for (size_t pixel = 0; pixel < 3; ++pixel) {
            QCOMPARE(lines[track][pixel].x, expected[track][pixel][0]);
            QCOMPARE(lines[track][pixel].y, expected[track][pixel][1]);
            QCOMPARE(lines[track][pixel].z, expected[track][pixel][2]);
        }
    }
}

void TestTrackLines::linesEndWithTheValues()
{
    const std::vector<unsigned int> values{ 1, 2, 3, 4 };
    const std::vector<Qwt3D::TripleField> lines = ComputeTrackLines(values.data(), 3, 3, 4, { 20, 500 });
    QCOMPARE(lines.size(), size_t(3));
    QCOMPARE(lines[0].size(), size_t(3));
    QCOMPARE(lines[1].size(), size_t(1));
    QCOMPARE(lines[2].size(), size_t(0));
}

GUARDED_TEST_MAIN(TestTrackLines)
#include "tst_tracklines.moc"
