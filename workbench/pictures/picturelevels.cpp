// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturelevels.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

/// Samples may be larger than the contract's whole numbers.
int Rounded(double level)
{
    return int(std::clamp(std::round(level), double(std::numeric_limits<int>::min()),
                          double(std::numeric_limits<int>::max())));
}

} // namespace

PictureLevels::PictureLevels(QObject *parent)
    : ImageCore(parent)
{
}

void PictureLevels::Set(SampleType type, const SampleRange &range)
{
    m_type = type;
    m_range = range;
}

int PictureLevels::GetDepth() const { return BytesPerSample(m_type) == 1 ? 1 : 2; }

int PictureLevels::GetLeftLevel() const { return Rounded(m_range.left); }

int PictureLevels::GetRightLevel() const { return Rounded(m_range.right); }
