// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarkframes.h"
#include "benchmarks.h"
#include "levelskernel.h"
#include "pickedprofiles.h"
#include "sampleview.h"

namespace {

constexpr double ProfilesBound = 2.0;
constexpr int Side = 2048;
constexpr int Rounds = 100;

/// Looks at every sample once, in the widest vectors of the processor.
void ReadOnce(const SampleView &view)
{
    int least = 65535;
    int most = 0;
    for (int y = 0; y < view.height; ++y)
        LevelsKernel::FindRange(view.Row16(y), view.width, &least, &most);
}

} // namespace

QVector<BenchmarkResult> BenchmarkProfiles()
{
    const SpecimenFrame frame(Side, 0);
    const SampleView view = frame.View();
    PickedProfiles profiles;
    QVector<BenchmarkResult> results;
    for (const int lines : {1, PickedProfiles::MostLines}) {
        results << MeasureRatio(QString("row and column profile, mean of %1, %2 x %2").arg(lines).arg(Side), ProfilesBound,
                                Rounds, [&] { ReadOnce(view); },
                                [&] { profiles.Extract(view, QPoint(Side / 2, Side / 2), lines); });
    }
    return results;
}
