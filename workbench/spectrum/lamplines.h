// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVector>

/// The gases of calibration lamps.
enum class Lamp
{
    Mercury,
    Argon,
    Neon,
    Krypton,
    Xenon,
    Helium
};

/// One emission line of a lamp.
struct LampLine
{
    double nm;       ///< in air
    double strength; ///< 1 is the brightest line of its gas; a guide only, lamps differ
};

/// "Hg"
QString LampName(Lamp lamp);
const QVector<Lamp> &AllLamps();
/// Rising wavelengths.
const QVector<LampLine> &LinesOf(Lamp lamp);
