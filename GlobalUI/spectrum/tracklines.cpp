// SPDX-License-Identifier: GPL-3.0-or-later
#include "tracklines.h"

#include <QtGlobal>

namespace {

constexpr int lowestCountsDivisor = 500;

/// 37 -> 30, 153 -> 100.
int RoundedDownToLeadingDigit(int value)
{
    int power = 1;
    while (value / power >= 10)
        power *= 10;
    return value - value % power;
}

} // namespace

TrackSteps ComputeTrackSteps(int width, int minimum, int maximum)
{
    const qint64 span = qint64(maximum) - minimum;
    return { RoundedDownToLeadingDigit(qMax(width / 20, 20)),
             int(qMax(span / 5000, qint64(lowestCountsDivisor))) };
}

int ComputeSeriesDepth(int trackCount) { return trackCount < 6 ? 5 : qMin(trackCount, 20); }

std::vector<Qwt3D::TripleField> ComputeTrackLines(const unsigned int *tracks, int trackCount, int width,
                                                  int valueCount, const TrackSteps &steps)
{
    std::vector<Qwt3D::TripleField> lines(static_cast<size_t>(trackCount));
    for (int track = 0; track < trackCount; ++track) {
        const qint64 first = qint64(width) * track;
        const int count = int(qBound(qint64(0), valueCount - first, qint64(width)));
        Qwt3D::TripleField &line = lines[size_t(track)];
        line.reserve(size_t(count));
        for (int pixel = 0; pixel < count; ++pixel)
            line.emplace_back(pixel, steps.series * track,
                              double(tracks[first + pixel]) / steps.countsDivisor);
    }
    return lines;
}
