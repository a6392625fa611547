// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "picture.h"

#include <opencv2/core.hpp>

/// One channel of a picture in floating point, to calculate with: 32 bit for samples of up to 16 bit and for 32-bit
/// floating point, which that holds exactly, else 64 bit. What is no finite number counts as the number before it in its
/// row, or, at the start of the row, as the first one after it; a row without any is as the row above, or as the first
/// row that has one. IsGap() tells which they were.
class SamplePlane
{
public:
    /// CV_32F or CV_64F.
    static int DepthFor(SampleType type);

    SamplePlane(const Picture &picture, int channel);

    const cv::Mat &Values() const { return m_values; }
    cv::Mat &Values() { return m_values; }
    /// 255 where there was no finite number; empty when all were.
    const cv::Mat &Gaps() const { return m_gaps; }
    bool HasGaps() const { return !m_gaps.empty(); }

    /// Writes values into a channel of a picture of their size: rounded, and limited to what its type holds.
    static void Store(const cv::Mat &values, Picture &picture, int channel);
    /// As Store(); the gaps of this plane are not numbers in the result.
    void StoreWithGaps(Picture &picture, int channel) const;

private:
    void FillGaps();

    cv::Mat m_values;
    cv::Mat m_gaps;
};

/// A picture of the same size made of each channel; `work` changes the values of a plane in place, its gaps stay gaps.
template <typename Work>
Picture ProcessPlanes(const Picture &picture, Work work)
{
    Picture result(picture.Width(), picture.Height(), picture.Channels(), picture.Type());
    for (int channel = 0; channel < picture.Channels(); ++channel) {
        SamplePlane plane(picture, channel);
        work(plane.Values());
        plane.StoreWithGaps(result, channel);
    }
    return result;
}
