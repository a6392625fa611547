// SPDX-License-Identifier: GPL-3.0-or-later
#include "valuenoise.h"

#include <cmath>

namespace {
double Smooth(double t) { return t * t * (3.0 - 2.0 * t); }

double Blend(double from, double to, double part) { return from + (to - from) * part; }
} // namespace

ValueNoise::ValueNoise(quint32 seed)
    : m_seed(seed)
{
}

double ValueNoise::Corner(int x, int y) const
{
    quint32 hash = m_seed + quint32(x) * 0x8DA6B343u + quint32(y) * 0xD8163841u;
    hash = (hash ^ (hash >> 15)) * 0x2C1B3C6Du;
    hash = (hash ^ (hash >> 12)) * 0x297A2D39u;
    hash ^= hash >> 15;
    return hash / 4294967295.0;
}

double ValueNoise::At(double x, double y) const
{
    const int left = int(std::floor(x));
    const int top = int(std::floor(y));
    const double across = Smooth(x - left);
    const double down = Smooth(y - top);
    return Blend(Blend(Corner(left, top), Corner(left + 1, top), across),
                 Blend(Corner(left, top + 1), Corner(left + 1, top + 1), across), down);
}

double ValueNoise::CloudsAt(double x, double y) const
{
    return (4.0 * At(x, y) + 2.0 * At(2.0 * x, 2.0 * y) + At(4.0 * x, 4.0 * y)) / 7.0;
}
