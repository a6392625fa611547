// SPDX-License-Identifier: GPL-3.0-or-later
#include "rulersteps.h"
#include "rulertexts.h"
#include "rulerticks.h"

#include "guardedtest.h"

#include <QRandomGenerator>

#include <cmath>
#include <limits>

class TestRulerSteps : public GuardedTest
{
    Q_OBJECT

private slots:
    void roundUp_data();
    void roundUp();
    void steps_data();
    void steps();
    void noStepsNoTicks();
    void numbers_data();
    void numbers();
    void horizontalTicks();
    void verticalTicksFromTheTop();
    void verticalTicksFromTheBottom();
    void randomHorizontalTicks();
    void randomVerticalTicks();
    void randomScalesAndRanges();
    void labelOrigins();
    void titleOrigins();
};

void TestRulerSteps::roundUp_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<int>("rounded");
    const QVector<QPair<double, int>> rows{{1, 1},    {7, 7},     {12, 20},   {37, 40},  {95, 100}, {100, 100}, {101, 200},
                                           {0, 0},    {204.8, 300}, {0.2, 1}, {-37, 0},  {-1, 0},   {9.1, 10},  {999, 1000}};
    for (const auto &row : rows)
        QTest::addRow("%g", row.first) << row.first << row.second;
    QTest::newRow("no number") << std::nan("") << 0;
    QTest::newRow("beyond int") << 1e12 << std::numeric_limits<int>::max();
}

void TestRulerSteps::roundUp()
{
    QFETCH(double, x);
    QFETCH(int, rounded);
    QCOMPARE(RoundUpToLeadingDigit(x), rounded);
}

void TestRulerSteps::steps_data()
{
    QTest::addColumn<int>("visible");
    QTest::addColumn<int>("item");
    QTest::addColumn<int>("major");
    QTest::addColumn<int>("minor");
    QTest::addColumn<int>("minorsPerMajor");
    QTest::addColumn<double>("minorStepPx");
    QTest::newRow("1024 on 512") << 1024 << 512 << 300 << 60 << 5 << 30.0;
    QTest::newRow("1000") << 1000 << 500 << 200 << 40 << 5 << 20.0;
    QTest::newRow("35: a minor does not divide a major") << 35 << 350 << 7 << 2 << 4 << 20.0;
    for (int visible = 1; visible <= 5; ++visible)
        QTest::addRow("%d", visible) << visible << 60 << 1 << 1 << 1 << 60.0 / visible;
}

void TestRulerSteps::steps()
{
    QFETCH(int, visible);
    QFETCH(int, item);
    const RulerSteps steps = ComputeRulerSteps(2 * visible, visible, item, 5, 5);
    QTEST(steps.majorStep, "major");
    QTEST(steps.minorStep, "minor");
    QTEST(steps.minorsPerMajor, "minorsPerMajor");
    QTEST(steps.minorStepPx, "minorStepPx");
    QCOMPARE(steps.scale, double(item) / visible);
    QCOMPARE(steps.majorCount, int(std::ceil(2.0 * visible / steps.majorStep)));
    QVERIFY(steps.IsValid());
}

void TestRulerSteps::noStepsNoTicks()
{
    const RulerPlace place{QSize(400, 400), 0, 1.0, 6, 3};
    for (const auto &lengths : {qMakePair(0, 400), qMakePair(-7, 400), qMakePair(100, 0), qMakePair(100, -3)}) {
        const RulerSteps steps = ComputeRulerSteps(400, lengths.first, lengths.second, 5, 5);
        QVERIFY(!steps.IsValid());
        RulerTicks ticks;
        ticks.lines.append(QLineF(0, 0, 1, 1));
        BuildHorizontalTicks(steps, {1, 0, 0}, place, &ticks);
        QVERIFY(ticks.lines.isEmpty());
        ticks.lines.append(QLineF(0, 0, 1, 1));
        BuildVerticalTicks(steps, {1, 0, 0}, place, false, &ticks);
        QVERIFY(ticks.lines.isEmpty() && ticks.labels.isEmpty());
    }
}

void TestRulerSteps::numbers_data()
{
    QTest::addColumn<int>("imageLength");
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("multiplier");
    QTest::addColumn<double>("offset");
    QTest::newRow("pixels") << 400 << -6.0 << -1.0 << 40.0 << 0.0;
    QTest::newRow("lower end below 0") << 400 << -2.0 << 3.0 << 40.0 << 0.0;
    QTest::newRow("range") << 400 << 10.0 << 2010.0 << 200.0 << 10.0;
    QTest::newRow("no image") << 0 << 10.0 << 2010.0 << 40.0 << 0.0;
}

void TestRulerSteps::numbers()
{
    QFETCH(int, imageLength);
    QFETCH(double, min);
    QFETCH(double, max);
    const RulerNumbers numbers = ComputeRulerNumbers(40, imageLength, min, max, 0);
    QTEST(numbers.multiplier, "multiplier");
    QTEST(numbers.offset, "offset");
}

void TestRulerSteps::horizontalTicks()
{
    const RulerSteps steps = ComputeRulerSteps(1024, 1024, 512, 5, 5);
    RulerTicks ticks;
    BuildHorizontalTicks(steps, {60, 0, 0}, {QSize(512, 50), 0, 1.0, 6, 3}, &ticks);
    QCOMPARE(ticks.lines.size(), 18); // 0, 30, ... 510
    QCOMPARE(ticks.lines.at(0), QLineF(0, 0, 0, 6));
    QCOMPARE(ticks.lines.at(1), QLineF(30, 0, 30, 3));
    QCOMPARE(ticks.majorLines, (QVector<QLineF>{{150, 0, 150, 6}, {300, 0, 300, 6}, {450, 0, 450, 6}}));
    QCOMPARE(ticks.labels, QStringList({"300", "600", "900"}));
    // From pixel 100 on: the first whole step is 120, ten widget pixels in.
    BuildHorizontalTicks(steps, {60, 0, 0}, {QSize(512, 50), 100, 1.0, 6, 3}, &ticks);
    QCOMPARE(ticks.lines.at(0), QLineF(10, 0, 10, 3));
    QCOMPARE(ticks.labels.first(), QString("300"));
    QCOMPARE(ticks.majorLines.first().x1(), 100.0);
    // Before the image it starts at 0.
    BuildHorizontalTicks(steps, {60, 0, 0}, {QSize(512, 50), -100, 1.0, 6, 3}, &ticks);
    QCOMPARE(ticks.lines.at(0), QLineF(0, 0, 0, 6));
}

void TestRulerSteps::verticalTicksFromTheTop()
{
    const RulerSteps steps = ComputeRulerSteps(1000, 1000, 500, 5, 5); // 20 px a minor
    RulerTicks ticks;
    BuildVerticalTicks(steps, {40, 0, 0}, {QSize(60, 500), 50, 1.0, 6, 3}, false, &ticks);
    // Start 25 px, first index 2, first offset 15; the ticks begin at the edge all the same.
    QCOMPARE(ticks.lines.first(), QLineF(60, 0, 57, 0));
    QCOMPARE(ticks.lines.size(), 25); // 0 ... 480 below 486
    QCOMPARE(ticks.majorLines.first(), QLineF(60, 60, 54, 60));
    QCOMPARE(ticks.labels, QStringList({"200", "400", "600", "800", "1000"}));
    // Not held at 0 like the horizontal one: index -2 comes first.
    BuildVerticalTicks(steps, {40, 0, 0}, {QSize(60, 500), -100, 1.0, 6, 3}, false, &ticks);
    QCOMPARE(ticks.majorLines.first().y1(), 40.0);
    QCOMPARE(ticks.labels.first(), QString("0"));
}

void TestRulerSteps::verticalTicksFromTheBottom()
{
    const RulerSteps steps = ComputeRulerSteps(1000, 1000, 500, 5, 5);
    RulerTicks ticks;
    BuildVerticalTicks(steps, {40, 0, 0}, {QSize(60, 500), 0, 1.0, 6, 3}, true, &ticks);
    QCOMPARE(ticks.lines.first(), QLineF(60, 501, 54, 501));
    QCOMPARE(ticks.lines.size(), 26); // 501 ... 1
    QCOMPARE(ticks.lines.last().y1(), 1.0);
    QCOMPARE(ticks.labels, QStringList({"200", "400", "600", "800", "1000"}));
    QCOMPARE(ticks.majorLines.first().y1(), 401.0);
}

/// In whole image pixels: every multiple of the minor step from the start to the item's end.
void TestRulerSteps::randomHorizontalTicks()
{
    QRandomGenerator random(20260);
    for (int round = 0; round < 500; ++round) {
        const int visible = random.bounded(1, 6000);
        const int scale = random.bounded(1, 4);
        const int start = random.bounded(0, 3000);
        const RulerSteps steps = ComputeRulerSteps(9000, visible, visible * scale, 5, 5);
        RulerTicks ticks;
        BuildHorizontalTicks(steps, {double(steps.minorStep), 0, 0}, {QSize(visible * scale, 50), start, 1.0, 6, 3}, &ticks);
        QVector<QLineF> lines;
        QStringList labels;
        for (int pixel = start; pixel < start + visible; ++pixel) {
            if (pixel % steps.minorStep != 0)
                continue;
            const bool major = pixel / steps.minorStep % steps.minorsPerMajor == 0;
            const double x = (pixel - start) * scale;
            lines.append(QLineF(x, 0, x, major ? 6 : 3));
            if (major && x > steps.minorStep * scale)
                labels.append(QString::number(pixel));
        }
        QCOMPARE(ticks.lines, lines);
        QCOMPARE(ticks.labels, labels);
        QCOMPARE(ticks.majorLines.size(), labels.size());
    }
}

/// By counting: ticks stand a minor step apart, from the upper edge down or from below the lower edge up, and are
/// numbered on from the first whole step after the start.
void TestRulerSteps::randomVerticalTicks()
{
    QRandomGenerator random(20261);
    for (int round = 0; round < 500; ++round) {
        const int visible = random.bounded(1, 6000);
        const int scale = random.bounded(1, 4); // whole, so that every place is exact
        const int start = random.bounded(-3000, 3000);
        const int height = visible * scale;
        const RulerSteps steps = ComputeRulerSteps(9000, visible, height, 5, 5);
        const int apart = steps.minorStep * scale;
        int firstStep = -3000;
        while (firstStep * steps.minorStep < start)
            ++firstStep;
        const int firstOffset = firstStep * apart - start * scale;
        const int end = height + 1 - firstOffset;
        for (const bool bottomUp : {false, true}) {
            QVector<QLineF> lines;
            QVector<QLineF> labelled;
            QStringList labels;
            for (int tick = 0; tick * apart < end; ++tick) {
                const int y = bottomUp ? end - tick * apart : tick * apart;
                const int index = firstStep + tick;
                const bool major = index % steps.minorsPerMajor == 0;
                lines.append(QLineF(60, y, major ? 54 : 57, y));
                if (!major || (bottomUp ? tick == 0 : y <= firstOffset))
                    continue;
                labelled.append(lines.last());
                labels.append(QString::number(index * steps.minorStep));
            }
            RulerTicks ticks;
            BuildVerticalTicks(steps, {double(steps.minorStep), 0, 0}, {QSize(60, height), start, 1.0, 6, 3}, bottomUp, &ticks);
            QCOMPARE(ticks.lines, lines);
            QCOMPARE(ticks.majorLines, labelled);
            QCOMPARE(ticks.labels, labels);
        }
    }
}

/// On any scale and with a range of values: ticks by their place in the picture, numbers by the straight line from one
/// end of the picture to the other.
void TestRulerSteps::randomScalesAndRanges()
{
    constexpr double slack = 1e-6;
    QRandomGenerator random(20262);
    int labels = 0;
    for (int round = 0; round < 600; ++round) {
        const int imageLength = random.bounded(20, 6000);
        const int visible = random.bounded(10, imageLength);
        const int item = random.bounded(30, 2500);
        const bool hasRange = round % 3 != 0;
        const double rangeMin = hasRange ? random.bounded(2000.0) : -1;
        const double rangeMax = hasRange ? rangeMin + 5 + random.bounded(3000.0) : -1;
        const RulerSteps steps = ComputeRulerSteps(imageLength, visible, item, 5, 5);
        const RulerNumbers numbers = ComputeRulerNumbers(steps.minorStep, imageLength, rangeMin, rangeMax, 0);
        int start = random.bounded(0, imageLength - visible + 1);
        if (start % steps.minorStep == 0)
            start = 0; // a start on a step is the whole numbers' case
        const double scale = double(item) / visible;
        const double stepPx = steps.minorStep * scale;
        const int firstStep = (start + steps.minorStep - 1) / steps.minorStep;
        const double firstOffset = (firstStep * steps.minorStep - start) * scale;
        const double end = item + 1 - firstOffset;
        for (const char *way : { "horizontal", "down", "up" }) {
            const bool isHorizontal = way == QString("horizontal");
            const bool isUp = way == QString("up");
            RulerTicks ticks;
            if (isHorizontal)
                BuildHorizontalTicks(steps, numbers, { QSize(item, 50), start, 1.0, 6, 3 }, &ticks);
            else
                BuildVerticalTicks(steps, numbers, { QSize(60, item), start, 1.0, 6, 3 }, isUp, &ticks);
            int labelled = 0;
            for (int i = 0; i < ticks.lines.size(); ++i) {
                const double place = isHorizontal ? firstOffset + i * stepPx
                                     : isUp       ? end - i * stepPx
                                                  : i * stepPx;
                const QLineF line = ticks.lines.at(i);
                QVERIFY(std::abs((isHorizontal ? line.x1() : line.y1()) - place) < slack);
                const bool isMajor = (firstStep + i) % steps.minorsPerMajor == 0;
                QVERIFY(std::abs(line.length() - (isMajor ? 6 : 3)) < slack);
                const bool isLabelled = isMajor
                                        && (isHorizontal ? place > stepPx
                                            : isUp       ? i > 0
                                                         : place > firstOffset);
                if (!isLabelled)
                    continue;
                const int pixel = (firstStep + i) * steps.minorStep;
                const double value =
                    hasRange ? rangeMin + (rangeMax - rangeMin) * pixel / imageLength : pixel;
                QVERIFY(labelled < ticks.labels.size());
                QCOMPARE(ticks.majorLines.at(labelled), line);
                QVERIFY(std::abs(ticks.labels.at(labelled).toDouble() - value) <= 0.5 + slack);
                ++labelled;
            }
            QCOMPARE(ticks.labels.size(), labelled);
            labels += labelled;
            // None is missing at the far end, and none stands beyond it.
            const double length = isHorizontal ? item : end;
            QVERIFY((ticks.lines.size() - 1) * stepPx + (isHorizontal ? firstOffset : 0) < length + slack);
            QVERIFY(ticks.lines.size() * stepPx + (isHorizontal ? firstOffset : 0) > length - slack);
        }
    }
    QVERIFY(labels > 4000);
}

void TestRulerSteps::labelOrigins()
{
    QCOMPARE(*HorizontalLabelOrigin(QLineF(150, 0, 150, 6), 21, 15, 512), QPoint(139, 19));
    QCOMPARE(*HorizontalLabelOrigin(QLineF(90, 0, 90, 6), 20, 15, 100), QPoint(80, 19));
    QVERIFY(!HorizontalLabelOrigin(QLineF(90.5, 0, 90.5, 6), 20, 15, 100));
    QCOMPARE(*VerticalLabelOrigin(QLineF(60, 100, 54, 100), 21, 16, 500), QPoint(29, 107));
    QCOMPARE(*VerticalLabelOrigin(QLineF(60, 7, 54, 7), 21, 16, 500), QPoint(29, 14));
    QVERIFY(!VerticalLabelOrigin(QLineF(60, 6, 54, 6), 21, 16, 500));
    QVERIFY(VerticalLabelOrigin(QLineF(60, 493, 54, 493), 21, 16, 500));
    QVERIFY(!VerticalLabelOrigin(QLineF(60, 494, 54, 494), 21, 16, 500));
}

void TestRulerSteps::titleOrigins()
{
    QCOMPARE(HorizontalTitleOrigin(QSize(400, 50), 73, 15), QPoint(163, 35));
    QCOMPARE(VerticalTitleOrigin(QSize(60, 400), 73, 15), QPoint(-236, 19));
}

GUARDED_TEST_MAIN(TestRulerSteps)
#include "tst_rulersteps.moc"
