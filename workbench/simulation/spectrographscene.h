// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "scene.h"
#include "sensorreadout.h"

#include <vector>

/// A mercury-argon calibration lamp seen through an imaging spectrograph: emission lines over three fibre tracks,
/// slightly tilted and bent (smile), on a dark sensor. Its line positions are known exactly: LinePosition().
class SpectrographScene : public Scene
{
public:
    struct Line
    {
        double wavelengthNm; ///< in air
        double strength;     ///< 1 is the brightest line
    };

    static constexpr int TrackCount = 3;
    static constexpr double FirstWavelengthNm = 390.0; ///< at the left sensor edge
    static constexpr double LastWavelengthNm = 930.0;  ///< at the right sensor edge
    static constexpr double LineSigmaPixels = 2.5;

    explicit SpectrographScene(quint32 seed);

    static QString SceneName();
    static const std::vector<Line> &Lines();
    /// Wavelength at the middle row: 390 + 540 u + 6 u (1 - u), with u = x / (sensorWidth - 1).
    static double WavelengthAt(double x, int sensorWidth);
    /// Where the centre of a line crosses row y: the inverse of WavelengthAt() plus tilt and smile, in sensor pixels.
    static double LinePosition(double wavelengthNm, double y, int sensorWidth, int sensorHeight);
    /// Middle row of a track, 0 being the top one.
    static double TrackCentre(int track, int sensorHeight);

    QString Name() const override;
    void Fill(const SceneFrame &frame) override;

private:
    void PrepareLight(const SceneFrame &frame);
    void AddLines(const SceneFrame &frame, int row, double trackLight, std::vector<float> &light) const;

    SensorReadout m_readout;
    std::vector<quint16> m_light; ///< the region's light, kept while the region stays the same
    int m_region[6] = {};         ///< the region and sensor size that m_light was drawn for
};
