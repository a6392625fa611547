// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrographscene.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {
constexpr double kPeakLight = 3.5;        // of the brightest line on the brightest track, in unit radiance
constexpr double kContinuumLight = 0.004; // stray light on a track
} // namespace

SpectrographScene::SpectrographScene(quint32 seed, const SpectrographSettings &settings)
    : m_settings(settings)
    , m_readout(seed)
    , m_dark(seed, settings)
    , m_cosmicRays(seed, settings.cosmicRaysPerSecond)
{
}

QString SpectrographScene::SceneName() { return QStringLiteral("spectrograph"); }

QString SpectrographScene::Name() const { return SceneName(); }

void SpectrographScene::AddLines(const SpectrographOptics &optics, const SceneFrame &frame, int row,
                                 double trackLight, std::vector<float> &light) const
{
    const double sigma = SpectrographOptics::LineSigmaPixels;
    const double reach = 6.0 * sigma;
    for (const EmissionLine &line : SpectrographOptics::Lines()) {
        const double centre = optics.LinePosition(line.wavelengthNm, frame.offsetY + row) - frame.offsetX;
        const int first = std::max(0, int(std::ceil(centre - reach)));
        const int last = std::min(frame.width - 1, int(std::floor(centre + reach)));
        for (int x = first; x <= last; ++x) {
            const double distance = (x - centre) / sigma;
            light[size_t(x)] +=
                float(trackLight * kPeakLight * line.strength * std::exp(-0.5 * distance * distance));
        }
    }
}

void SpectrographScene::KeepRow(const SceneFrame &frame, int row, const std::vector<float> &light)
{
    quint16 *kept = m_light.data() + qptrdiff(row) * frame.width;
    for (int x = 0; x < frame.width; ++x) {
        const quint32 dark = m_dark.LightAt(frame.offsetX + x, frame.offsetY + row);
        const float sum = light[size_t(x)] * SensorReadout::UnitRadiance + float(dark);
        kept[x] = quint16(std::min(sum, 65535.0f));
    }
}

void SpectrographScene::PrepareLight(const SceneFrame &frame)
{
    const int region[6] = { frame.offsetX, frame.offsetY,     frame.width,
                            frame.height,  frame.sensorWidth, frame.sensorHeight };
    if (!m_light.empty() && std::equal(std::begin(region), std::end(region), std::begin(m_region)))
        return;
    std::copy(std::begin(region), std::end(region), std::begin(m_region));

    const SpectrographOptics optics(QSize(frame.sensorWidth, frame.sensorHeight), m_settings.geometry);
    m_light.assign(size_t(frame.width) * size_t(frame.height), 0);
    std::vector<float> rowLight(size_t(frame.width));
    for (int row = 0; row < frame.height; ++row) {
        const double trackLight = optics.TrackLight(frame.offsetY + row);
        std::fill(rowLight.begin(), rowLight.end(), float(trackLight * kContinuumLight));
        if (trackLight > 1e-6)
            AddLines(optics, frame, row, trackLight, rowLight);
        KeepRow(frame, row, rowLight);
    }
}

void SpectrographScene::Fill(const SceneFrame &frame)
{
    PrepareLight(frame);
    const SensorReadout::Settings settings = SensorReadout::SettingsFor(frame);
    const int channels = frame.isColour ? 3 : 1;
    for (int row = 0; row < frame.height; ++row) {
        for (int channel = 0; channel < channels; ++channel)
            m_readout.ReadRow(m_light.data() + qptrdiff(row) * frame.width, frame, settings, row, channel);
    }
    m_cosmicRays.Strike(frame);
}
