// SPDX-License-Identifier: GPL-3.0-or-later
#include "flatfield.h"

#include "sampleplane.h"

#include <QCoreApplication>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(FlatField)
};

QString SizeText(const QSize &size) { return QString("%1x%2").arg(size.width()).arg(size.height()); }

/// Mean of the reference over the reference at each sample; 1 where that says nothing.
template <typename Value>
cv::Mat Gains(SamplePlane &reference)
{
    cv::Mat &values = reference.Values();
    cv::Mat isUsable = values > 0;
    if (reference.HasGaps())
        isUsable.setTo(0, reference.Gaps());
    const double mean = cv::mean(values, isUsable)[0];
    cv::Mat gains(values.size(), CV_64F, cv::Scalar(1));
    for (int y = 0; y < values.rows; ++y) {
        for (int x = 0; x < values.cols; ++x) {
            if (isUsable.at<uchar>(y, x))
                gains.at<double>(y, x) = mean / double(values.at<Value>(y, x));
        }
    }
    return gains;
}

cv::Mat Gains(const Picture &reference, int channel)
{
    SamplePlane plane(reference, channel);
    return plane.Values().depth() == CV_32F ? Gains<float>(plane) : Gains<double>(plane);
}

} // namespace

Picture FlatFielded(const Picture &picture, const Picture &reference, QString &error)
{
    if (reference.Size() != picture.Size()) {
        error = Text::tr("The reference is %1 pixels and the picture %2. Choose a reference of the same size, and "
                          "correct the picture before it is cropped, turned or binned.")
                    .arg(SizeText(reference.Size()), SizeText(picture.Size()));
        return Picture();
    }
    int channel = 0;
    cv::Mat gains;
    return ProcessPlanes(picture, [&](cv::Mat &values) {
        if (gains.empty() || reference.Channels() > 1)
            gains = Gains(reference, qMin(channel, reference.Channels() - 1));
        cv::multiply(values, gains, values, 1, values.depth());
        ++channel;
    });
}
