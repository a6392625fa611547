// SPDX-License-Identifier: GPL-3.0-or-later
#include "gaussianfit.h"
#include "guardedtest.h"

#include <cmath>

class GaussianFitTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void exactSamplesGiveTheExactPlace();
    void samplesOnTheFlanksAreEnough();
    void aValleyHasNoTop();
    void twoSamplesAreNotEnough();
};

void GaussianFitTest::exactSamplesGiveTheExactPlace()
{
    for (const double place : {1000.0, 1000.3, 1000.49}) {
        GaussianFit fit;
        for (int x = 997; x <= 1004; ++x)
            fit.Add(x, 500 * std::exp(-0.5 * std::pow((x - place) / 1.7, 2)));
        Gaussian shape;
        QVERIFY(fit.Solve(&shape));
        QVERIFY2(std::abs(shape.position - place) < 1e-6, qPrintable(QString::number(shape.position, 'g', 12)));
        QVERIFY(std::abs(shape.height - 500) < 1e-3);
        QVERIFY(std::abs(shape.sigma - 1.7) < 1e-6);
    }
}

void GaussianFitTest::samplesOnTheFlanksAreEnough()
{
    GaussianFit fit;
    for (const int x : {4, 5, 6, 15, 16, 17})
        fit.Add(x, 1e5 * std::exp(-0.5 * std::pow((x - 10.4) / 3, 2)));
    Gaussian shape;
    QVERIFY(fit.Solve(&shape));
    QVERIFY(std::abs(shape.position - 10.4) < 1e-6);
}

void GaussianFitTest::aValleyHasNoTop()
{
    GaussianFit fit;
    for (int x = 0; x < 7; ++x)
        fit.Add(x, 10 + (x - 3) * (x - 3));
    Gaussian shape;
    QVERIFY(!fit.Solve(&shape));
}

void GaussianFitTest::twoSamplesAreNotEnough()
{
    GaussianFit fit;
    fit.Add(1, 5);
    fit.Add(2, 9);
    fit.Add(3, 0);
    fit.Add(4, -3);
    Gaussian shape;
    QVERIFY(!fit.Solve(&shape));
}

GUARDED_TEST_MAIN(GaussianFitTest)
#include "gaussianfittest.moc"
