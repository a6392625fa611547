// SPDX-License-Identifier: GPL-3.0-or-later
#include "sampleplane.h"

#include "limitedsample.h"

#include <cmath>
#include <limits>

namespace {

template <typename Value>
void Load(const Picture &picture, int channel, cv::Mat &values)
{
    const int channels = picture.Channels();
    VisitSampleType(picture.Type(), [&](auto type) {
        for (int y = 0; y < picture.Height(); ++y) {
            const auto *from = picture.Samples<decltype(type)>(y) + channel;
            Value *to = values.ptr<Value>(y);
            for (int x = 0; x < picture.Width(); ++x)
                to[x] = Value(from[x * channels]);
        }
    });
}

template <typename Value>
void StoreValues(const cv::Mat &values, Picture &picture, int channel)
{
    const int channels = picture.Channels();
    VisitSampleType(picture.Type(), [&](auto type) {
        using Sample = decltype(type);
        for (int y = 0; y < picture.Height(); ++y) {
            const Value *from = values.ptr<Value>(y);
            Sample *to = picture.Samples<Sample>(y) + channel;
            for (int x = 0; x < picture.Width(); ++x)
                to[x * channels] = LimitedSample<Sample>(from[x]);
        }
    });
}

template <typename Value>
cv::Mat FindGaps(const cv::Mat &values)
{
    cv::Mat gaps;
    for (int y = 0; y < values.rows; ++y) {
        const Value *row = values.ptr<Value>(y);
        for (int x = 0; x < values.cols; ++x) {
            if (std::isfinite(row[x]))
                continue;
            if (gaps.empty())
                gaps = cv::Mat::zeros(values.size(), CV_8U);
            gaps.at<uchar>(y, x) = 255;
        }
    }
    return gaps;
}

/// False when the row has no number.
template <typename Value>
bool FillRow(Value *row, const uchar *gaps, int count)
{
    int first = 0;
    while (first < count && gaps[first])
        ++first;
    if (first == count)
        return false;
    std::fill(row, row + first, row[first]);
    for (int x = first + 1; x < count; ++x) {
        if (gaps[x])
            row[x] = row[x - 1];
    }
    return true;
}

template <typename Value>
void FillAll(cv::Mat &values, const cv::Mat &gaps)
{
    int firstFilled = -1;
    for (int y = 0; y < values.rows; ++y) {
        if (FillRow(values.ptr<Value>(y), gaps.ptr<uchar>(y), values.cols)) {
            firstFilled = firstFilled < 0 ? y : firstFilled;
        } else if (firstFilled >= 0) {
            values.row(y - 1).copyTo(values.row(y));
        }
    }
    if (firstFilled < 0)
        values.setTo(0); // nothing is a number
    for (int y = 0; y < firstFilled; ++y)
        values.row(firstFilled).copyTo(values.row(y));
}

} // namespace

int SamplePlane::DepthFor(SampleType type)
{
    return BytesPerSample(type) <= 2 || type == SampleType::F32 ? CV_32F : CV_64F;
}

SamplePlane::SamplePlane(const Picture &picture, int channel)
    : m_values(picture.Height(), picture.Width(), DepthFor(picture.Type()))
{
    if (m_values.depth() == CV_32F)
        Load<float>(picture, channel, m_values);
    else
        Load<double>(picture, channel, m_values);
    if (IsFloat(picture.Type()))
        FillGaps();
}

void SamplePlane::FillGaps()
{
    const bool isSingle = m_values.depth() == CV_32F;
    m_gaps = isSingle ? FindGaps<float>(m_values) : FindGaps<double>(m_values);
    if (!HasGaps())
        return;
    if (isSingle)
        FillAll<float>(m_values, m_gaps);
    else
        FillAll<double>(m_values, m_gaps);
}

void SamplePlane::Store(const cv::Mat &values, Picture &picture, int channel)
{
    if (values.depth() == CV_32F)
        StoreValues<float>(values, picture, channel);
    else
        StoreValues<double>(values, picture, channel);
}

void SamplePlane::StoreWithGaps(Picture &picture, int channel) const
{
    Store(m_values, picture, channel);
    if (!HasGaps())
        return;
    VisitSampleType(picture.Type(), [&](auto type) {
        using Sample = decltype(type);
        for (int y = 0; y < picture.Height(); ++y) {
            const uchar *gaps = m_gaps.ptr<uchar>(y);
            for (int x = 0; x < picture.Width(); ++x) {
                if (gaps[x])
                    picture.Samples<Sample>(y)[x * picture.Channels() + channel] =
                        std::numeric_limits<Sample>::quiet_NaN();
            }
        }
    });
}
