// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrographoptics.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr double kFaintestTrack = 0.45;
} // namespace

SpectrographOptics::SpectrographOptics(QSize sensor, const Geometry &geometry)
    : m_sensor(sensor)
    , m_geometry(geometry)
{
    m_geometry.tracks = std::clamp(geometry.tracks, 1, MostTracks);
}

const std::vector<EmissionLine> &SpectrographOptics::Lines()
{
    static const std::vector<EmissionLine> lines = {
        { 404.656, 0.30 }, { 407.784, 0.06 }, { 435.834, 0.80 }, { 546.075, 1.00 },
        { 576.961, 0.25 }, { 579.067, 0.27 }, // mercury
        { 696.543, 0.45 }, { 706.722, 0.20 }, { 714.704, 0.05 }, { 727.294, 0.12 },
        { 738.398, 0.35 }, { 750.387, 0.55 }, { 763.511, 0.90 }, // argon from here on
        { 772.376, 0.40 }, { 794.818, 0.30 }, { 811.531, 0.85 }, { 826.452, 0.30 },
        { 842.465, 0.45 }, { 852.144, 0.25 }, { 866.794, 0.10 }, { 912.297, 0.25 }, { 922.450, 0.20 },
    };
    return lines;
}

double SpectrographOptics::WavelengthAt(double x) const
{
    const double u = m_sensor.width() > 1 ? x / (m_sensor.width() - 1) : 0.0;
    return FirstWavelengthNm + (LastWavelengthNm - FirstWavelengthNm) * u + CurvatureNm * u * (1.0 - u);
}

double SpectrographOptics::LinePosition(double wavelengthNm, double y) const
{
    const double slope = LastWavelengthNm - FirstWavelengthNm + CurvatureNm;
    const double offset = wavelengthNm - FirstWavelengthNm;
    // The root of CurvatureNm u^2 - slope u + offset = 0 that lies on the sensor.
    const double u = (slope - std::sqrt(slope * slope - 4.0 * CurvatureNm * offset)) / (2.0 * CurvatureNm);

    const double middle = (m_sensor.height() - 1) / 2.0;
    const double fromMiddle = y - middle;
    const double bend = middle > 0 ? fromMiddle / middle : 0.0;
    return u * (m_sensor.width() - 1) + m_geometry.tiltPixelsPerRow * fromMiddle
           + m_geometry.smilePixels * bend * bend;
}

double SpectrographOptics::TrackCentre(int track) const
{
    return (track + 1) * (m_sensor.height() - 1) / double(m_geometry.tracks + 1);
}

double SpectrographOptics::TrackBrightness(int track) const
{
    return m_geometry.tracks > 1 ? 1.0 - (1.0 - kFaintestTrack) * track / (m_geometry.tracks - 1) : 1.0;
}

/// 6 % of the sensor in all, less where many tracks share it.
double SpectrographOptics::TrackHalfHeight() const
{
    return std::max(std::min(0.03, 0.2 / (m_geometry.tracks + 1)) * m_sensor.height(), 0.5);
}

/// A fibre has a flat top with soft edges.
double SpectrographOptics::TrackLight(double y) const
{
    double light = 0;
    for (int track = 0; track < m_geometry.tracks; ++track)
        light += TrackBrightness(track) * std::exp(-std::pow(std::abs(y - TrackCentre(track)) / TrackHalfHeight(), 6.0));
    return light;
}

std::vector<SpectrographOptics::LinePlace> SpectrographOptics::LinePlaces() const
{
    std::vector<LinePlace> places;
    for (int track = 0; track < m_geometry.tracks; ++track) {
        const double y = TrackCentre(track);
        for (const EmissionLine &line : Lines())
            places.push_back({ track, line, QPointF(LinePosition(line.wavelengthNm, y), y) });
    }
    return places;
}
