// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "scene.h"

#include <vector>

/// Turns light into samples the way a scientific sensor does: shot noise, read noise, dark offset, gain and a
/// full scale where it saturates. Noise comes from a table drawn once, so a megapixel frame stays cheap.
class SensorReadout
{
public:
    /// Light of this many units gives UnitElectrons in a 10 ms exposure.
    static constexpr quint16 UnitRadiance = 12000;
    static constexpr double UnitElectrons = 4500;
    /// At 0 dB the converter reaches full scale a little before the well is full, so a full well is evenly white.
    static constexpr double FullScaleElectrons = 7200;
    static constexpr double FullWellElectrons = 8000;
    static constexpr double ReadNoiseElectrons = 4;
    /// Part of full scale that a dark frame shows.
    static constexpr double DarkOffset = 0.02;

    /// The numbers that are the same for a whole frame.
    struct Settings
    {
        float electronsPerUnit;
        float countsPerElectron;
        float darkCounts;
        float fullScale;
    };

    explicit SensorReadout(quint32 seed);

    static Settings SettingsFor(const SceneFrame &frame);

    /// Reads one row of light; `row` and `channel` pick the noise. A colour channel fills every third sample.
    void ReadRow(const quint16 *light, const SceneFrame &frame, const Settings &settings, int row,
                 int channel) const;

private:
    const float *NoiseFor(quint64 frameNumber, int row, int channel, int segment) const;

    quint32 m_seed;
    std::vector<float> m_noise; ///< normally distributed, sigma 1
};
