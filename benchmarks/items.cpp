// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarks.h"

#include "intensitypolyline.h"
#include "rulersteps.h"
#include "rulerticks.h"

namespace {

constexpr double CurveBoundMs = 0.030;
constexpr double RulerBoundMs = 0.050;
constexpr int Rounds = 400;

} // namespace

QVector<BenchmarkResult> BenchmarkItems()
{
    std::vector<int> samples(4096);
    for (size_t i = 0; i < samples.size(); ++i)
        samples[i] = int(i * 37 % 60000);
    QVector<QLineF> lines;
    RulerTicks ticks;
    return {MeasureTime("curve of 4096 samples on 1200 pixels", CurveBoundMs, Rounds,
                        [&] { BuildHorizontalCurve(samples, {QSize(1200, 50), 1, 0, 60000}, &lines); }),
            MeasureTime("ruler of 4096 pixels on 1200", RulerBoundMs, Rounds, [&] {
                const RulerSteps steps = ComputeRulerSteps(4096, 4096, 1200, 5, 5);
                const RulerNumbers numbers = ComputeRulerNumbers(steps.minorStep, 4096, 200.0, 900.0, 0);
                BuildHorizontalTicks(steps, numbers, {QSize(1200, 50), 0, 1.0, 6, 3}, &ticks);
            })};
}
