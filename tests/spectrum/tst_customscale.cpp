// SPDX-License-Identifier: GPL-3.0-or-later
#include "customaxisticker.h"
#include "customscale.h"

#include "guardedtest.h"

#include <memory>

namespace {

/// A scale with these majors, as its axis works them out.
struct ScaleWithMajors : CustomScale
{
    ScaleWithMajors(double factor, int mode, std::vector<double> majors)
        : CustomScale(factor, mode)
    {
        majors_p = std::move(majors);
    }
};

} // namespace

class TestCustomScale : public GuardedTest
{
    Q_OBJECT

private slots:
    void labels_data();
    void labels();
    void noLabelBehindTheLastMajor();
    void copiesKeepFactorAndMode();
    void ticksStandAsThePlotChooses();
    void wholeSteps();
};

void TestCustomScale::labels_data()
{
    QTest::addColumn<double>("factor");
    QTest::addColumn<int>("mode");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("label");
    QTest::newRow("track number") << 20.0 << 1 << 60.0 << "3";
    QTest::newRow("between tracks") << 30.0 << 1 << 10.0 << "0.333333";
    QTest::newRow("counts") << 500.0 << 0 << 80.0 << "4e+04";
    QTest::newRow("no counts") << 500.0 << 0 << 0.0 << "0e+00";
    QTest::newRow("any other mode") << 500.0 << 2 << 1234567.0 << "1.23457e+06";
}

void TestCustomScale::labels()
{
    QFETCH(double, factor);
    QFETCH(int, mode);
    QFETCH(double, value);
    QTEST(ScaleWithMajors(factor, mode, { value }).ticLabel(0), "label");
}

void TestCustomScale::noLabelBehindTheLastMajor()
{
    for (int mode : { 0, 1, 2 }) {
        const ScaleWithMajors scale(10.0, mode, { 10.0, 20.0 });
        QVERIFY(!scale.ticLabel(1).isEmpty());
        QCOMPARE(scale.ticLabel(2), QString());
        QCOMPARE(ScaleWithMajors(10.0, mode, {}).ticLabel(0), QString());
    }
}

void TestCustomScale::copiesKeepFactorAndMode()
{
    const ScaleWithMajors scale(20.0, CustomScale::OverFactor, { 60.0 });
    const std::unique_ptr<CustomScale> copy(static_cast<CustomScale *>(scale.clone()));
    QCOMPARE(copy->ticLabel(0), QString("3"));
}

void TestCustomScale::ticksStandAsThePlotChooses()
{
    CustomAxisTicker ticker(false);
    QCPAxisTicker plain;
    for (const QCPRange &range : { QCPRange(0, 2048), QCPRange(380.5, 780.25), QCPRange(0.4, 0.8) }) {
        QVector<double> ticks;
        QVector<QString> labels;
        QVector<double> plainTicks;
        QVector<QString> plainLabels;
        ticker.generate(range, QLocale::c(), 'g', 6, ticks, nullptr, &labels);
        plain.generate(range, QLocale::c(), 'g', 6, plainTicks, nullptr, &plainLabels);
        QCOMPARE(ticks, plainTicks);
        QCOMPARE(labels, plainLabels);
        QVERIFY(ticks.size() > 2);
    }
}

void TestCustomScale::wholeSteps()
{
    CustomAxisTicker ticker(true);
    QVector<double> ticks;
    ticker.generate(QCPRange(10.2, 12.8), QLocale::c(), 'g', 6, ticks, nullptr, nullptr);
    QVERIFY(ticks.contains(11.0));
    QVERIFY(ticks.contains(12.0));
    for (double tick : ticks)
        QCOMPARE(tick, double(qRound(tick)));
}

GUARDED_TEST_MAIN(TestCustomScale)
#include "tst_customscale.moc"
