// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The steps of a ruler, in image pixels and on the widget.

/// Rounds up to one leading digit and zeros: 37 -> 40, 101 -> 200. No number gives 0.
int RoundUpToLeadingDigit(double x);

struct RulerSteps
{
    int majorCount = 5;       ///< majors on the whole image
    int minorsPerMajor = 5;
    int majorStep = 1;        ///< image pixels
    int minorStep = 1;        ///< image pixels
    double scale = 1.0;       ///< widget pixels per image pixel
    double minorStepPx = 1.0; ///< widget pixels

    /// There is something to count with.
    bool IsValid() const;
};

/// Lengths along the ruler: image and visible in image pixels, item in widget pixels. About
/// `majorDivisions` majors span the visible length and `minorDivisions` minors a major. Steps that
/// are not valid come of a visible length below 1.
RulerSteps ComputeRulerSteps(int imageLength, int visibleLength, int itemLength, int majorDivisions,
                             int minorDivisions);
