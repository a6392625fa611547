// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "imagecore.h"
#include "samplerange.h"
#include "sampletype.h"

/// Pixel depth and display levels of an opened picture; while nothing is open, those of an 8-bit
/// picture shown as it is. The contract has whole numbers for levels and curves, so fractions that span little are told
/// multiplied by Factor(), and so are the curves that are seen between the levels; a plot gets finer ones. Owned by its
/// OpenedPicture. GUI thread.
class PictureLevels : public ImageCore
{
    Q_OBJECT

public:
    explicit PictureLevels(QObject *parent = nullptr);

    void Set(SampleType type, const SampleRange &range);
    /// Of what is told: 1, or a power of ten for floating-point samples whose levels lie less than 1000 apart.
    double Factor() const { return m_factor; }
    void SetCurveFactor(double factor) { m_curveFactor = factor; }
    /// The levels themselves, rounded.
    int LeftValue() const;
    int RightValue() const;
    /// The nearest whole number that the contract can hold; 0 for what is no number.
    static int Rounded(double value);

    int GetDepth() const override;
    int GetLeftLevel() const override;
    int GetRightLevel() const override;
    double GetCurveFactor() const override { return m_curveFactor; }

private:
    SampleType m_type = SampleType::U8;
    SampleRange m_range = { 0, 255 };
    double m_factor = 1;
    double m_curveFactor = 1;
};
