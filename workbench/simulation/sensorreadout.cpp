// SPDX-License-Identifier: GPL-3.0-or-later
#include "sensorreadout.h"

#include "mixbits.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace {
constexpr int kNoiseStarts = 1 << 14;   // places in the noise table where a segment may begin
constexpr int kSegmentPixels = 1 << 10; // long rows are cut, each part gets its own noise

template <typename Sample>
void ReadSegment(const quint16 *light, const float *noise, int count, const SensorReadout::Settings &settings,
                 Sample *out)
{
    const float electronsPerUnit = settings.electronsPerUnit;
    const float countsPerElectron = settings.countsPerElectron;
    const float dark = settings.darkCounts + 0.5f; // the half rounds
    const float fullScale = settings.fullScale;
    const float well = float(SensorReadout::FullWellElectrons);
    const float readVariance = float(SensorReadout::ReadNoiseElectrons * SensorReadout::ReadNoiseElectrons);

    for (int i = 0; i < count; ++i) {
        float electrons = float(light[i]) * electronsPerUnit;
        electrons = electrons < well ? electrons : well;
        float value = dark + countsPerElectron * (electrons + std::sqrt(electrons + readVariance) * noise[i]);
        value = value < fullScale ? value : fullScale;
        value = value > 0.0f ? value : 0.0f;
        out[i] = Sample(int(value));
    }
}
/// One channel of a colour row: read side by side, which vectorises, then spread out.
void ReadColourSegment(const quint16 *light, const float *noise, int count,
                       const SensorReadout::Settings &settings, uchar *out)
{
    uchar samples[kSegmentPixels];
    ReadSegment(light, noise, count, settings, samples);
    for (int i = 0; i < count; ++i)
        out[3 * i] = samples[i];
}
} // namespace

SensorReadout::SensorReadout(quint32 seed)
    : m_seed(seed)
    , m_noise(kNoiseStarts + kSegmentPixels)
{
    std::mt19937 random(seed);
    std::normal_distribution<float> normal;
    std::generate(m_noise.begin(), m_noise.end(), [&] { return normal(random); });
}

SensorReadout::Settings SensorReadout::SettingsFor(const SceneFrame &frame)
{
    const double fullScale = (1 << (frame.isColour ? 8 : frame.bitDepth)) - 1;
    Settings settings;
    settings.electronsPerUnit = float(UnitElectrons / UnitRadiance * frame.exposureUs / 10000.0);
    settings.countsPerElectron = float(fullScale / FullScaleElectrons * std::pow(10.0, frame.gainDb / 20.0));
    settings.darkCounts = float(fullScale * DarkOffset);
    settings.fullScale = float(fullScale);
    return settings;
}

const float *SensorReadout::NoiseFor(quint64 frameNumber, int row, int channel, int segment) const
{
    const quint64 place = (quint64(row) << 16) ^ (quint64(segment) << 4) ^ quint64(channel);
    return m_noise.data() + MixBits(MixBits(MixBits(m_seed) ^ frameNumber) ^ place) % kNoiseStarts;
}

void SensorReadout::ReadRow(const quint16 *light, const SceneFrame &frame, const Settings &settings, int row,
                            int channel) const
{
    uchar *out = frame.pixels + qptrdiff(row) * frame.strideBytes;
    for (int begin = 0; begin < frame.width; begin += kSegmentPixels) {
        const int count = std::min(kSegmentPixels, frame.width - begin);
        const float *noise = NoiseFor(frame.frameNumber, row, channel, begin / kSegmentPixels);
        if (frame.isColour)
            ReadColourSegment(light + begin, noise, count, settings, out + begin * 3 + channel);
        else if (frame.bitDepth > 8)
            ReadSegment(light + begin, noise, count, settings, reinterpret_cast<quint16 *>(out) + begin);
        else
            ReadSegment(light + begin, noise, count, settings, out + begin);
    }
}
