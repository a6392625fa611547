// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrographscene.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {
constexpr double kCurvatureNm = 6.0;        // departure from a straight dispersion
constexpr double kTiltPixelsPerRow = 0.002; // 4 pixels over 2048 rows
constexpr double kSmilePixels = 3.0;        // at the top and bottom edge
constexpr double kPeakLight = 3.5;          // of the brightest line on the brightest track, in unit radiance
constexpr double kContinuumLight = 0.004;   // stray light on a track
constexpr double kTrackLight[SpectrographScene::TrackCount] = { 1.0, 0.7, 0.45 };

/// How much of a fibre's light falls on row y: a flat top with soft edges, 6 % of the height wide.
double TrackProfile(double y, double centre, int sensorHeight)
{
    const double halfWidth = std::max(0.03 * sensorHeight, 0.5);
    const double distance = std::abs(y - centre) / halfWidth;
    return std::exp(-std::pow(distance, 6.0));
}

double LightOfTracks(double y, int sensorHeight)
{
    double light = 0;
    for (int track = 0; track < SpectrographScene::TrackCount; ++track)
        light += kTrackLight[track]
                 * TrackProfile(y, SpectrographScene::TrackCentre(track, sensorHeight), sensorHeight);
    return light;
}
} // namespace

SpectrographScene::SpectrographScene(quint32 seed)
    : m_readout(seed)
{
}

QString SpectrographScene::SceneName() { return QStringLiteral("spectrograph"); }

QString SpectrographScene::Name() const { return SceneName(); }

const std::vector<SpectrographScene::Line> &SpectrographScene::Lines()
{
    static const std::vector<Line> lines = {
        { 404.656, 0.30 }, { 435.834, 0.80 }, { 546.075, 1.00 },
        { 576.961, 0.25 }, { 579.067, 0.27 }, // mercury
        { 696.543, 0.45 }, { 706.722, 0.20 }, { 738.398, 0.35 },
        { 750.387, 0.55 }, { 763.511, 0.90 }, // argon from here on
        { 772.376, 0.40 }, { 794.818, 0.30 }, { 811.531, 0.85 },
        { 826.452, 0.30 }, { 842.465, 0.45 }, { 912.297, 0.25 },
    };
    return lines;
}

double SpectrographScene::WavelengthAt(double x, int sensorWidth)
{
    const double u = sensorWidth > 1 ? x / (sensorWidth - 1) : 0.0;
    return FirstWavelengthNm + (LastWavelengthNm - FirstWavelengthNm) * u + kCurvatureNm * u * (1.0 - u);
}

double SpectrographScene::LinePosition(double wavelengthNm, double y, int sensorWidth, int sensorHeight)
{
    const double slope = LastWavelengthNm - FirstWavelengthNm + kCurvatureNm;
    const double offset = wavelengthNm - FirstWavelengthNm;
    // The root of kCurvatureNm u^2 - slope u + offset = 0 that lies on the sensor.
    const double u = (slope - std::sqrt(slope * slope - 4.0 * kCurvatureNm * offset)) / (2.0 * kCurvatureNm);

    const double middle = (sensorHeight - 1) / 2.0;
    const double fromMiddle = y - middle;
    const double bend = middle > 0 ? fromMiddle / middle : 0.0;
    return u * (sensorWidth - 1) + kTiltPixelsPerRow * fromMiddle + kSmilePixels * bend * bend;
}

double SpectrographScene::TrackCentre(int track, int sensorHeight)
{
    return (track + 1) * (sensorHeight - 1) / double(TrackCount + 1);
}

void SpectrographScene::AddLines(const SceneFrame &frame, int row, double trackLight,
                                 std::vector<float> &light) const
{
    const double reach = 6.0 * LineSigmaPixels;
    for (const Line &line : Lines()) {
        const double centre =
            LinePosition(line.wavelengthNm, frame.offsetY + row, frame.sensorWidth, frame.sensorHeight)
            - frame.offsetX;
        const int first = std::max(0, int(std::ceil(centre - reach)));
        const int last = std::min(frame.width - 1, int(std::floor(centre + reach)));
        for (int x = first; x <= last; ++x) {
            const double distance = (x - centre) / LineSigmaPixels;
            light[size_t(x)] +=
                float(trackLight * kPeakLight * line.strength * std::exp(-0.5 * distance * distance));
        }
    }
}

void SpectrographScene::PrepareLight(const SceneFrame &frame)
{
    const int region[6] = { frame.offsetX, frame.offsetY,     frame.width,
                            frame.height,  frame.sensorWidth, frame.sensorHeight };
    if (!m_light.empty() && std::equal(std::begin(region), std::end(region), std::begin(m_region)))
        return;
    std::copy(std::begin(region), std::end(region), std::begin(m_region));

    m_light.assign(size_t(frame.width) * size_t(frame.height), 0);
    std::vector<float> rowLight(size_t(frame.width));
    for (int row = 0; row < frame.height; ++row) {
        const double trackLight = LightOfTracks(frame.offsetY + row, frame.sensorHeight);
        std::fill(rowLight.begin(), rowLight.end(), float(trackLight * kContinuumLight));
        if (trackLight > 1e-6)
            AddLines(frame, row, trackLight, rowLight);
        std::transform(
            rowLight.begin(), rowLight.end(), m_light.begin() + qptrdiff(row) * frame.width,
            [](float light) { return quint16(std::min(light * SensorReadout::UnitRadiance, 65535.0f)); });
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
}
