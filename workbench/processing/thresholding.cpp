// SPDX-License-Identifier: GPL-3.0-or-later
#include "thresholding.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr int Ranges = 4096;

/// Counts of ranges of `width` from `least` on; what is no number is left out.
struct Histogram
{
    double least = 0;
    double width = 1;
    std::vector<qint64> counts;
};

template <typename Sample, typename Visitor>
void VisitNumbers(const Picture &picture, int channel, Visitor visit)
{
    for (int y = 0; y < picture.Height(); ++y) {
        const Sample *row = picture.Samples<Sample>(y) + channel;
        for (int x = 0; x < picture.Width(); ++x) {
            const Sample sample = row[x * picture.Channels()];
            if (std::isfinite(double(sample)))
                visit(double(sample));
        }
    }
}

template <typename Sample>
Histogram HistogramOf(const Picture &picture, int channel)
{
    Histogram histogram;
    if constexpr (sizeof(Sample) <= 2) {
        histogram.least = std::numeric_limits<Sample>::min();
        histogram.counts.resize(size_t(1) << (8 * sizeof(Sample)));
    } else {
        double least = std::numeric_limits<double>::infinity();
        double most = -least;
        VisitNumbers<Sample>(picture, channel, [&](double value) {
            least = std::min(least, value);
            most = std::max(most, value);
        });
        if (!(least < most))
            return { std::isfinite(least) ? least : 0, 1, { 1 } };
        histogram.least = least;
        histogram.width = most / Ranges - least / Ranges; // the difference may be too large for a number
        histogram.counts.resize(Ranges);
    }
    const int last = int(histogram.counts.size()) - 1;
    VisitNumbers<Sample>(picture, channel, [&](double value) {
        const double place = value / histogram.width - histogram.least / histogram.width;
        ++histogram.counts[size_t(std::clamp(int(place), 0, last))];
    });
    return histogram;
}

} // namespace

int OtsuIndex(const std::vector<qint64> &counts)
{
    double total = 0;
    double sum = 0;
    for (size_t i = 0; i < counts.size(); ++i) {
        total += double(counts[i]);
        sum += double(counts[i]) * double(i);
    }
    double below = 0;
    double sumBelow = 0;
    double best = 0;
    int firstBest = 0;
    int lastBest = 0;
    for (size_t i = 1; i < counts.size(); ++i) {
        below += double(counts[i - 1]);
        sumBelow += double(counts[i - 1]) * double(i - 1);
        const double above = total - below;
        if (below <= 0 || above <= 0)
            continue;
        const double difference = sumBelow / below - (sum - sumBelow) / above;
        const double variance = below * above * difference * difference;
        if (variance > best) {
            best = variance;
            firstBest = int(i);
        }
        if (variance >= best && best > 0)
            lastBest = int(i);
    }
    return (firstBest + lastBest + 1) / 2;
}

double OtsuLevel(const Picture &picture, int channel)
{
    return VisitSampleType(picture.Type(), [&](auto type) {
        const Histogram histogram = HistogramOf<decltype(type)>(picture, channel);
        return histogram.least + histogram.width * OtsuIndex(histogram.counts);
    });
}

Picture Thresholded(const Picture &picture, const ThresholdSettings &settings)
{
    constexpr quint8 taken = 255;
    Picture result(picture.Width(), picture.Height(), picture.Channels(), SampleType::U8);
    for (int channel = 0; channel < picture.Channels(); ++channel) {
        const double level = settings.isAutomatic ? OtsuLevel(picture, channel) : settings.level;
        VisitSampleType(picture.Type(), [&](auto type) {
            using Sample = decltype(type);
            for (int y = 0; y < picture.Height(); ++y) {
                const Sample *from = picture.Samples<Sample>(y) + channel;
                quint8 *to = result.Samples<quint8>(y) + channel;
                for (int x = 0; x < picture.Width() * picture.Channels(); x += picture.Channels()) {
                    const bool isTaken = settings.takesDark ? double(from[x]) < level : double(from[x]) >= level;
                    to[x] = isTaken && std::isfinite(double(from[x])) ? taken : 0;
                }
            }
        });
    }
    return result;
}
