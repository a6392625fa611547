// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarkframes.h"
#include "benchmarks.h"
#include "levelsconverter.h"

#include <cstring>
#include <vector>

namespace {

constexpr double LevelsBound = 2.0;

/// Called through a pointer that the compiler can't see through, so that the copy is made.
void *(*volatile copyBytes)(void *, const void *, size_t) = std::memcpy;

} // namespace

QVector<BenchmarkResult> BenchmarkLevels()
{
    QVector<BenchmarkResult> results;
    for (int side : {2048, 4096}) {
        const SpecimenFrame frame(side, 0);
        const SampleView view = frame.View();
        std::vector<uchar> copy(frame.ByteCount());
        LevelsConverter converter;
        QImage picture;
        for (double gamma : {1.0, 1.8}) {
            const DisplayLevels levels{300, 52000, gamma};
            results << MeasureRatio(
                QString("16-bit to display, %1 x %1, gamma %2").arg(side).arg(gamma), LevelsBound, 60,
                [&] { copyBytes(copy.data(), view.samples, copy.size()); },
                [&] { converter.Convert(view, levels, &picture); });
        }
    }
    return results;
}
