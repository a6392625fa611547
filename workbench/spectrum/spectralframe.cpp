// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectralframe.h"

#include <algorithm>

SpectralFrame SpectralFrame::Of(const SensorFrame &frame, bool isHorizontal)
{
    SpectralFrame spectrum;
    spectrum.isHorizontal = isHorizontal;
    spectrum.binning = std::max(1, frame.binning);
    const QSize size(frame.region.width() / spectrum.binning, frame.region.height() / spectrum.binning); // whole ones
    if (size.isEmpty())
        return spectrum;
    spectrum.isAlongRows = isHorizontal != frame.orientation.SwapsSides();
    spectrum.count = spectrum.isAlongRows ? size.width() : size.height();
    spectrum.first = spectrum.isAlongRows ? frame.region.x() : frame.region.y();
    const QPoint corner = frame.orientation.Map(QPoint(0, 0), size);
    spectrum.isReversed = (isHorizontal ? corner.x() : corner.y()) != 0;
    return spectrum;
}

double SpectralFrame::OnSensor(double sample) const
{
    const double inOrder = isReversed ? count - 1 - sample : sample;
    return first + binning * inOrder + (binning - 1) / 2.0;
}

double SpectralFrame::SampleAt(double onSensor) const
{
    const double inOrder = (onSensor - first - (binning - 1) / 2.0) / binning;
    return isReversed ? count - 1 - inOrder : inOrder;
}

bool SpectralFrame::IsWithin(const SpectralFrame &other) const
{
    if (IsNull() || other.IsNull() || isAlongRows != other.isAlongRows || fileExtent != other.fileExtent)
        return false;
    const double one = other.SampleAt(OnSensor(0));
    const double end = other.SampleAt(OnSensor(count - 1));
    return std::min(one, end) >= -0.5 && std::max(one, end) <= other.count - 0.5;
}
