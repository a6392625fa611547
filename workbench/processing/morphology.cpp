// SPDX-License-Identifier: GPL-3.0-or-later
#include "morphology.h"

#include "sampleplane.h"

#include <opencv2/imgproc.hpp>

namespace {

cv::Mat Element(const MorphologySettings &settings)
{
    const bool isDisc = settings.shape == MorphologySettings::Shape::Disc;
    const int radius = qBound(1, settings.radius,
                              isDisc ? MorphologySettings::MostDiscRadius : MorphologySettings::MostSquareRadius);
    cv::Mat element(2 * radius + 1, 2 * radius + 1, CV_8U, cv::Scalar(1));
    for (int y = -radius; isDisc && y <= radius; ++y) {
        for (int x = -radius; x <= radius; ++x)
            element.at<uchar>(y + radius, x + radius) = x * x + y * y <= radius * radius ? 1 : 0;
    }
    return element;
}

cv::MorphTypes OperationOf(MorphologySettings::Method method)
{
    switch (method) {
    case MorphologySettings::Method::Erode:
        return cv::MORPH_ERODE;
    case MorphologySettings::Method::Dilate:
        return cv::MORPH_DILATE;
    case MorphologySettings::Method::Open:
        return cv::MORPH_OPEN;
    case MorphologySettings::Method::Close:
        return cv::MORPH_CLOSE;
    case MorphologySettings::Method::TopHat:
        break;
    }
    return cv::MORPH_TOPHAT;
}

} // namespace

Picture Morphed(const Picture &picture, const MorphologySettings &settings)
{
    const cv::Mat element = Element(settings);
    return ProcessPlanes(picture, [&](cv::Mat &values) {
        cv::Mat result;
        cv::morphologyEx(values, result, OperationOf(settings.method), element);
        values = result;
    });
}
