// SPDX-License-Identifier: GPL-3.0-or-later
#include "background.h"

#include "sampleplane.h"

#include <opencv2/imgproc.hpp>

namespace {

cv::Mat Opened(const cv::Mat &values, int radius)
{
    const cv::Size square(2 * radius + 1, 2 * radius + 1);
    cv::Mat opened;
    cv::morphologyEx(values, opened, cv::MORPH_OPEN, cv::getStructuringElement(cv::MORPH_RECT, square));
    cv::blur(opened, opened, square, cv::Point(-1, -1), cv::BORDER_REPLICATE);
    return opened;
}

/// Slope of the plane a + b x + c y nearest to the values, by least squares. With x and y counted from the middle the
/// three are independent of each other.
template <typename Value>
void TakeSlopeAway(cv::Mat &values)
{
    const double middleX = (values.cols - 1) / 2.0;
    const double middleY = (values.rows - 1) / 2.0;
    double sumX = 0;
    double sumY = 0;
    for (int y = 0; y < values.rows; ++y) {
        const Value *row = values.ptr<Value>(y);
        double rowSum = 0;
        for (int x = 0; x < values.cols; ++x) {
            rowSum += row[x];
            sumX += row[x] * (x - middleX);
        }
        sumY += rowSum * (y - middleY);
    }
    // The sum of squares of n numbers one apart around their middle is n (n^2 - 1) / 12.
    const double squareX = values.cols * (double(values.cols) * values.cols - 1) / 12 * values.rows;
    const double squareY = values.rows * (double(values.rows) * values.rows - 1) / 12 * values.cols;
    const double slopeX = squareX > 0 ? sumX / squareX : 0;
    const double slopeY = squareY > 0 ? sumY / squareY : 0;
    for (int y = 0; y < values.rows; ++y) {
        Value *row = values.ptr<Value>(y);
        for (int x = 0; x < values.cols; ++x)
            row[x] = Value(row[x] - slopeX * (x - middleX) - slopeY * (y - middleY));
    }
}

} // namespace

Picture WithoutBackground(const Picture &picture, const BackgroundSettings &settings)
{
    const int radius = qBound(1, settings.radius, BackgroundSettings::MostRadius);
    return ProcessPlanes(picture, [&](cv::Mat &values) {
        switch (settings.method) {
        case BackgroundSettings::Method::Constant:
            values -= settings.level;
            break;
        case BackgroundSettings::Method::Opening:
            values -= Opened(values, radius);
            break;
        case BackgroundSettings::Method::Plane:
            if (values.depth() == CV_32F)
                TakeSlopeAway<float>(values);
            else
                TakeSlopeAway<double>(values);
            break;
        }
    });
}
