// SPDX-License-Identifier: GPL-3.0-or-later
#include "cosmicrays.h"

#include "mixbits.h"
#include "sensorreadout.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace {
constexpr double kMostHits = 10000; // however long the exposure
constexpr double kMostTrackPixels = 12;
constexpr int kLeastElectrons = 800;
constexpr int kMostElectrons = 6000;
constexpr double kFullTurn = 6.283185307179586;

/// The standard's distributions may differ from one library to the next; this is the same everywhere.
class Chance
{
public:
    explicit Chance(quint64 seed) : m_state(seed) {}
    double Next() { return double((m_state = MixBits(m_state)) >> 11) / 9007199254740992.0; }

private:
    quint64 m_state;
};

/// Whole number with that mean, by Knuth's method for small means and the normal distribution for large ones.
int Poisson(double mean, Chance *chance)
{
    if (mean > 30) {
        const double normal = std::sqrt(-2 * std::log(1 - chance->Next())) * std::cos(kFullTurn * chance->Next());
        return int(std::max(0.0, std::round(mean + std::sqrt(mean) * normal)));
    }
    const double limit = std::exp(-mean);
    int count = 0;
    for (double product = chance->Next(); product > limit; product *= chance->Next())
        ++count;
    return count;
}

template <typename Sample>
void Add(Sample *sample, double counts, double fullScale)
{
    *sample = Sample(std::min(*sample + counts, fullScale));
}
} // namespace

CosmicRays::CosmicRays(quint32 seed, double ratePerSecond)
    : m_seed(seed)
    , m_ratePerSecond(ratePerSecond)
{
}

std::vector<CosmicRays::Hit> CosmicRays::HitsIn(const SceneFrame &frame) const
{
    Chance chance(MixBits(MixBits(m_seed) ^ 0xC05Aull) ^ MixBits(frame.frameNumber));
    const int tracks = Poisson(std::min(m_ratePerSecond * frame.exposureUs * 1e-6, kMostHits), &chance);
    std::vector<Hit> hits;
    for (int track = 0; track < tracks; ++track) {
        const double x = chance.Next() * frame.sensorWidth;
        const double y = chance.Next() * frame.sensorHeight;
        const double angle = chance.Next() * kFullTurn;
        const int length = 1 + int(chance.Next() * kMostTrackPixels);
        const int electrons = kLeastElectrons + int(chance.Next() * (kMostElectrons - kLeastElectrons));
        for (int step = 0; step < length; ++step) {
            const QPoint pixel(int(std::floor(x + step * std::cos(angle))), int(std::floor(y + step * std::sin(angle))));
            hits.push_back({ pixel, electrons });
        }
    }
    return hits;
}

void CosmicRays::Strike(const SceneFrame &frame) const
{
    const SensorReadout::Settings settings = SensorReadout::SettingsFor(frame);
    const int channels = frame.isColour ? 3 : 1;
    for (const Hit &hit : HitsIn(frame)) {
        const int x = hit.pixel.x() - frame.offsetX;
        const int y = hit.pixel.y() - frame.offsetY;
        if (x < 0 || y < 0 || x >= frame.width || y >= frame.height)
            continue;
        uchar *row = frame.pixels + qptrdiff(y) * frame.strideBytes;
        const double counts = double(hit.electrons) * double(settings.countsPerElectron);
        for (int channel = 0; channel < channels; ++channel) {
            if (frame.bitDepth > 8 && !frame.isColour)
                Add(reinterpret_cast<quint16 *>(row) + x, counts, double(settings.fullScale));
            else
                Add(row + x * channels + channel, counts, double(settings.fullScale));
        }
    }
}
