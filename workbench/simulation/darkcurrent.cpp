// SPDX-License-Identifier: GPL-3.0-or-later
#include "darkcurrent.h"

#include "mixbits.h"
#include "sensorreadout.h"
#include "spectrographsettings.h"

namespace {
constexpr double kLeastHotElectronsPerSecond = 20e3;
constexpr double kMostHotElectronsPerSecond = 300e3;
constexpr double kTwoTo32 = 4294967296.0;
/// Light that gives one electron a second.
constexpr double kUnitsPerElectronPerSecond = SensorReadout::UnitRadiance / (SensorReadout::UnitElectrons * 100.0);
} // namespace

DarkCurrent::DarkCurrent(quint32 seed, const SpectrographSettings &settings)
    : m_seed(seed)
    , m_light(settings.darkElectronsPerSecond * kUnitsPerElectronPerSecond)
    , m_hotPart(quint32(settings.hotPixelsPerMillion * 1e-6 * kTwoTo32))
{
}

quint64 DarkCurrent::BitsOf(int x, int y) const
{
    return MixBits(MixBits(MixBits(m_seed) ^ 0xDA4Cull) ^ (quint64(quint32(y)) << 32 | quint32(x)));
}

bool DarkCurrent::IsHot(int x, int y) const { return quint32(BitsOf(x, y)) < m_hotPart; }

/// Light is counted in whole units, so the part of a unit falls on a part of the pixels.
quint32 DarkCurrent::LightAt(int x, int y) const
{
    const quint64 bits = BitsOf(x, y);
    const double chance = double(bits >> 32) / kTwoTo32;
    double light = m_light + chance;
    if (quint32(bits) < m_hotPart) {
        const double electrons =
            kLeastHotElectronsPerSecond + (kMostHotElectronsPerSecond - kLeastHotElectronsPerSecond) * chance;
        light += electrons * kUnitsPerElectronPerSecond;
    }
    return quint32(light);
}
