// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturelevels.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double EnoughSteps = 1000;
/// Leaves room for samples beyond the levels.
constexpr double MostLevel = 1e8;
constexpr double MostFactor = 1e9;

double FactorFor(SampleType type, const SampleRange &range)
{
    const double largest = std::max(std::abs(range.left), std::abs(range.right));
    double factor = 1;
    while (IsFloat(type) && (range.right - range.left) * factor < EnoughSteps && largest * factor < MostLevel
           && factor < MostFactor)
        factor *= 10;
    return factor;
}

} // namespace

int PictureLevels::Rounded(double value)
{
    if (std::isnan(value))
        return 0;
    return int(std::clamp(std::round(value), double(std::numeric_limits<int>::min()),
                          double(std::numeric_limits<int>::max())));
}

PictureLevels::PictureLevels(QObject *parent)
    : ImageCore(parent)
{
}

void PictureLevels::Set(SampleType type, const SampleRange &range)
{
    m_type = type;
    m_range = range;
    m_factor = FactorFor(type, range);
}

int PictureLevels::GetDepth() const { return BytesPerSample(m_type) == 1 ? 1 : 2; }

int PictureLevels::GetLeftLevel() const { return Rounded(m_range.left * m_factor); }

int PictureLevels::GetRightLevel() const { return Rounded(m_range.right * m_factor); }

int PictureLevels::LeftValue() const { return Rounded(m_range.left); }

int PictureLevels::RightValue() const { return Rounded(m_range.right); }
