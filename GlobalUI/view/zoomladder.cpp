// SPDX-License-Identifier: GPL-3.0-or-later
#include "zoomladder.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double smallestLongSide = 256.0; // screen pixels
constexpr double largestWidgetSide = 16777215.0;

double ComputeMinimum(const QSize &imageSize)
{
    const double minimum =
        std::min(smallestLongSide / imageSize.width(), smallestLongSide / imageSize.height());
    return imageSize.height() * minimum < 1.0 ? 1.0 / imageSize.height() : minimum;
}

} // namespace

ZoomLadder::ZoomLadder(const QSize &imageSize)
    : m_imageSize(imageSize)
    , m_minimum(ComputeMinimum(imageSize))
{
}

double ZoomLadder::Minimum() const { return m_minimum; }

double ZoomLadder::In(double scale) const
{
    const double target = std::min(MaximumScale, 2.0 * scale);
    double rung = MaximumScale;
    while (rung >= m_minimum)
        rung /= 2.0;
    while (rung < target && rung < MaximumScale)
        rung *= 2.0;
    return rung;
}

double ZoomLadder::Out(double scale) const
{
    const double target = std::max(m_minimum, scale * 0.5);
    for (double rung = MaximumScale; rung > m_minimum; rung /= 2.0) {
        if (rung <= target)
            return rung;
    }
    return target;
}

double ZoomLadder::OneToOne() const { return m_minimum > 1.0 ? std::trunc(m_minimum) : 1.0; }

double ZoomLadder::Fit(const QSize &hostSize) const
{
    const double scale = std::min(double(hostSize.width()) / m_imageSize.width(),
                                  double(hostSize.height()) / m_imageSize.height());
    // In this order: the minimum of a picture of a few pixels is above the maximum.
    return std::min(std::max(scale, m_minimum), MaximumScale);
}

double ZoomLadder::Bounded(double scale) const { return std::max(m_minimum, scale); }

QSize ZoomLadder::ScaledSize(const QSize &imageSize, double scale)
{
    return QSize(int(std::min(imageSize.width() * scale, largestWidgetSide)),
                 int(std::min(imageSize.height() * scale, largestWidgetSide)));
}
