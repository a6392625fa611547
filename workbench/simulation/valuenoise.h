// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

/// Smooth random texture: a random value at every whole-number point, blended in between.
/// The same seed gives the same texture everywhere.
class ValueNoise
{
public:
    explicit ValueNoise(quint32 seed);

    /// One octave, 0..1, features about one unit wide.
    double At(double x, double y) const;
    /// Three octaves, 0..1: clouds with finer and finer detail.
    double CloudsAt(double x, double y) const;

private:
    double Corner(int x, int y) const;

    quint32 m_seed;
};
