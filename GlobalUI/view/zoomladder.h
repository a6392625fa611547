// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>

/// The scales at which one picture is shown: powers of two between a minimum that depends on the
/// picture and 32. A scale of 1.0 shows one picture pixel per screen pixel.
class ZoomLadder
{
public:
    static constexpr double MaximumScale = 32.0;

    /// Both sides of the picture must be above 0.
    explicit ZoomLadder(const QSize &imageSize);

    /// Shows the longer side with 256 screen pixels, but the height with at least one.
    double Minimum() const;
    /// The next power of two at or above twice the scale, 32 at most.
    double In(double scale) const;
    /// The next power of two at or below half the scale; the last step lands on the minimum.
    double Out(double scale) const;
    /// 1.0. A picture whose minimum is above that gets the whole part of it: below its own minimum,
    /// but with screen pixels that are all alike.
    double OneToOne() const;
    /// The whole picture, as large as the host shows it.
    double Fit(const QSize &hostSize) const;
    /// A scale of the caller's choice: not below the minimum, without an upper bound.
    double Bounded(double scale) const;

    /// Size on the screen in whole pixels, never more than a widget can have.
    static QSize ScaledSize(const QSize &imageSize, double scale);

private:
    QSize m_imageSize;
    double m_minimum;
};
