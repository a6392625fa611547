// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarks.h"

#include "levelsconverter.h"
#include "sampleview.h"

#include <QRandomGenerator>

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
        std::vector<quint16> samples(size_t(side) * size_t(side));
        QRandomGenerator random(1);
        for (quint16 &sample : samples)
            sample = quint16(random.bounded(65536));
        std::vector<quint16> copy(samples.size());

        SampleView view;
        view.samples = reinterpret_cast<const uchar *>(samples.data());
        view.width = side;
        view.height = side;
        view.strideBytes = side * int(sizeof(quint16));
        view.bitDepth = 16;
        LevelsConverter converter;
        QImage picture;
        for (double gamma : {1.0, 1.8}) {
            const DisplayLevels levels{300, 52000, gamma};
            results << MeasureRatio(
                QString("16-bit to display, %1 x %1, gamma %2").arg(side).arg(gamma), LevelsBound, 60,
                [&] { copyBytes(copy.data(), samples.data(), samples.size() * sizeof(quint16)); },
                [&] { converter.Convert(view, levels, &picture); });
        }
    }
    return results;
}
