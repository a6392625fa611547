// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointF>
#include <QSize>

#include <vector>

/// One line of the lamp.
struct EmissionLine
{
    double wavelengthNm; ///< in air
    double strength;     ///< 1 is the brightest line
};

/// How the light of a mercury-argon lamp falls on the sensor behind an imaging spectrograph: what the spectrograph
/// scene draws, and the truth that a measurement of it can be held against. Places are sensor pixels, whole numbers
/// at the centres of pixels.
class SpectrographOptics
{
public:
    static constexpr int MostTracks = 20;
    static constexpr double FirstWavelengthNm = 390.0; ///< in the left column
    static constexpr double LastWavelengthNm = 930.0;  ///< in the right column
    static constexpr double CurvatureNm = 6.0;         ///< how far the dispersion bends away from a straight one
    static constexpr double LineSigmaPixels = 2.5;

    struct Geometry
    {
        int tracks = 3;                   ///< fibres one above the other, 1 to MostTracks
        double tiltPixelsPerRow = 0.002;  ///< a line moves right by so much from one row to the next
        double smilePixels = 3.0;         ///< a line is that much further right at the top and bottom edge
    };

    /// Where a line crosses the middle row of a track.
    struct LinePlace
    {
        int track;
        EmissionLine line;
        QPointF centre;
    };

    explicit SpectrographOptics(QSize sensor) : SpectrographOptics(sensor, Geometry()) {}
    SpectrographOptics(QSize sensor, const Geometry &geometry);

    /// By wavelength. Wavelengths in air of the NIST Atomic Spectra Database; the strengths are those of a low-pressure
    /// pen lamp, by eye. Lines that would merge with a stronger neighbour are left out.
    static const std::vector<EmissionLine> &Lines();

    int TrackCount() const { return m_geometry.tracks; }
    /// At the middle row: 390 + 540 u + 6 u (1 - u), with u = x / (width - 1).
    double WavelengthAt(double x) const;
    /// Where the centre of a line crosses row y: the inverse of WavelengthAt(), plus tilt and smile.
    double LinePosition(double wavelengthNm, double y) const;
    /// Middle row of a track; 0 is the top one.
    double TrackCentre(int track) const;
    /// 0 to 1: how much of the light of the brightest track falls on row y.
    double TrackLight(double y) const;
    /// All lines on all tracks, track by track.
    std::vector<LinePlace> LinePlaces() const;

private:
    double TrackBrightness(int track) const;
    double TrackHalfHeight() const;

    QSize m_sensor;
    Geometry m_geometry;
};
