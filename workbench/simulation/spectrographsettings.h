// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "spectrographoptics.h"

#include <QString>

/// What can be set of the spectrograph scene. All together they can be written as
/// "tracks=3,tilt=0.002,smile=3,dark=40,hot=50,cosmic=1", in any order, each name at most once; what is left out keeps
/// its default.
struct SpectrographSettings
{
    SpectrographOptics::Geometry geometry;
    double darkElectronsPerSecond = 40;
    double hotPixelsPerMillion = 50;
    double cosmicRaysPerSecond = 1; ///< on the whole sensor: far more than nature's, so that some are seen

    /// False when the text is not like that, or a number lies outside its range; then `fault` says what and where.
    bool Read(const QString &text, QString *fault);
};
