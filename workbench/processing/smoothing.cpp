// SPDX-License-Identifier: GPL-3.0-or-later
#include "smoothing.h"

#include "sampleplane.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>

namespace {

constexpr double SigmasToEnd = 4.0; ///< beyond it a Gaussian is below 0.0004 of its height
constexpr double SigmasOfBilateral = 2.0;

cv::Mat Blurred(const cv::Mat &values, double sigma)
{
    const double within = qBound(DenoiseSettings::LeastSigma, sigma, DenoiseSettings::MostSigma);
    const int size = 2 * int(std::ceil(SigmasToEnd * within)) + 1;
    cv::Mat blurred;
    cv::GaussianBlur(values, blurred, cv::Size(size, size), within, within, cv::BORDER_REPLICATE);
    return blurred;
}

/// OpenCV has a median of every size for 8 bit only, and none for 64.
template <typename Value>
cv::Mat MedianOfAny(const cv::Mat &values, int radius)
{
    cv::Mat padded;
    cv::copyMakeBorder(values, padded, radius, radius, radius, radius, cv::BORDER_REPLICATE);
    cv::Mat result(values.size(), values.type());
    const int side = 2 * radius + 1;
    std::vector<Value> around(size_t(side) * side);
    const auto middle = around.begin() + around.size() / 2;
    for (int y = 0; y < values.rows; ++y) {
        for (int x = 0; x < values.cols; ++x) {
            auto next = around.begin();
            for (int row = y; row < y + side; ++row)
                next = std::copy_n(padded.ptr<Value>(row) + x, side, next);
            std::nth_element(around.begin(), middle, around.end());
            result.at<Value>(y, x) = *middle;
        }
    }
    return result;
}

cv::Mat Median(const cv::Mat &values, int radius)
{
    constexpr int mostOfOpenCv = 2;
    if (values.depth() == CV_64F)
        return MedianOfAny<double>(values, radius);
    if (radius > mostOfOpenCv)
        return MedianOfAny<float>(values, radius);
    cv::Mat result;
    cv::medianBlur(values, result, 2 * radius + 1);
    return result;
}

/// In 32 bit, as OpenCV does it: of the difference from one of the samples, which keeps the digits that count.
cv::Mat Bilateral(const cv::Mat &values, double sigma, double levelSigma)
{
    const double within = qBound(DenoiseSettings::LeastSigma, sigma, DenoiseSettings::MostBilateralSigma);
    const double levelsWithin = qMax(levelSigma, 1e-6);
    const int size = 2 * int(std::ceil(SigmasOfBilateral * within)) + 1;
    double least = 0;
    cv::minMaxLoc(values, &least);
    cv::Mat from;
    values.convertTo(from, CV_32F, 1, -least);
    cv::Mat smooth;
    cv::bilateralFilter(from, smooth, size, levelsWithin, within, cv::BORDER_REPLICATE);
    cv::Mat result;
    smooth.convertTo(result, values.depth(), 1, least);
    return result;
}

} // namespace

Picture Denoised(const Picture &picture, const DenoiseSettings &settings)
{
    return ProcessPlanes(picture, [&](cv::Mat &values) {
        switch (settings.method) {
        case DenoiseSettings::Method::Gaussian:
            values = Blurred(values, settings.sigma);
            break;
        case DenoiseSettings::Method::Median:
            values = Median(values, qBound(1, settings.radius, DenoiseSettings::MostRadius));
            break;
        case DenoiseSettings::Method::Bilateral:
            values = Bilateral(values, settings.sigma, settings.levelSigma);
            break;
        }
    });
}

Picture Sharpened(const Picture &picture, const SharpenSettings &settings)
{
    const double amount = qBound(0.0, settings.amount, SharpenSettings::MostAmount);
    return ProcessPlanes(picture, [&](cv::Mat &values) {
        values = values * (1 + amount) - Blurred(values, settings.sigma) * amount;
    });
}
