// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

struct SpectrographSettings;

/// What a sensor collects without light: a little in every pixel, and much in a few hot ones, always the same of one
/// seed. Told as the light that would give as much, so that it grows with the exposure and has its shot noise.
class DarkCurrent
{
public:
    DarkCurrent(quint32 seed, const SpectrographSettings &settings);

    /// In units of SensorReadout::UnitRadiance; `x` and `y` are sensor pixels.
    quint32 LightAt(int x, int y) const;
    bool IsHot(int x, int y) const;

private:
    quint64 BitsOf(int x, int y) const;

    quint32 m_seed;
    double m_light;    ///< of a pixel that is not hot
    quint32 m_hotPart; ///< pixels whose bits lie below are hot
};
