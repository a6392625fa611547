// SPDX-License-Identifier: GPL-3.0-or-later
#include "objectcount.h"

#include "availablememory.h"
#include "objectsplit.h"
#include "opencvcall.h"
#include "processing.h"
#include "thresholding.h"

#include <QCoreApplication>

#include <opencv2/imgproc.hpp>

#include <cmath>
#include <vector>

namespace {

constexpr double Pi = 3.14159265358979323846;

/// The mean of three channels, else the picture itself.
Picture Grey(const Picture &picture)
{
    if (picture.Channels() == 1)
        return picture;
    Picture grey(picture.Width(), picture.Height(), 1, SampleType::F64);
    VisitSampleType(picture.Type(), [&](auto type) {
        const auto *from = reinterpret_cast<const decltype(type) *>(picture.Data());
        double *to = grey.Samples<double>(0);
        for (qint64 i = 0; i < qint64(picture.Width()) * picture.Height(); ++i)
            to[i] = (double(from[3 * i]) + double(from[3 * i + 1]) + double(from[3 * i + 2])) / 3;
    });
    return grey;
}

cv::Mat MaskOf(const Picture &grey, const CountSettings &settings, double level)
{
    const Picture taken = Thresholded(grey, { false, level, settings.takesDark });
    cv::Mat mask(taken.Height(), taken.Width(), CV_8U);
    for (int y = 0; y < mask.rows; ++y)
        std::copy_n(taken.Row(y), mask.cols, mask.ptr(y));
    return mask;
}

/// A hole is what is outside but does not reach the edge of the picture, by steps that are not diagonal.
void FillHoles(cv::Mat &mask)
{
    cv::Mat outside;
    cv::Mat boxes;
    cv::Mat centroids;
    constexpr int sidesOnly = 4;
    const int count = cv::connectedComponentsWithStats(mask == 0, outside, boxes, centroids, sidesOnly);
    std::vector<uchar> isHole(size_t(count), 0);
    for (int i = 1; i < count; ++i) {
        const int left = boxes.at<int>(i, cv::CC_STAT_LEFT);
        const int top = boxes.at<int>(i, cv::CC_STAT_TOP);
        const bool touches = left == 0 || top == 0 || left + boxes.at<int>(i, cv::CC_STAT_WIDTH) == mask.cols
                             || top + boxes.at<int>(i, cv::CC_STAT_HEIGHT) == mask.rows;
        isHole[size_t(i)] = !touches;
    }
    for (int y = 0; y < mask.rows; ++y) {
        for (int x = 0; x < mask.cols; ++x) {
            if (isHole[size_t(outside.at<int>(y, x))])
                mask.at<uchar>(y, x) = 255;
        }
    }
}

cv::Mat LabelsOf(const cv::Mat &mask, const CountSettings &settings)
{
    if (settings.splits)
        return SplitObjects(mask, qMax(0.0, settings.splitDepthPx));
    cv::Mat labels;
    cv::connectedComponents(mask, labels, 8, CV_32S);
    return labels;
}

/// What is gathered of an object while its pixels are read.
struct Gathering
{
    int area = 0;
    double sumX = 0;
    double sumY = 0;
    int numbers = 0; ///< samples that are numbers, and their sum
    double sum = 0;
    bool touchesEdge = false;
    int straightCrossings = 0; ///< of lines along rows and columns with its outline
    int diagonalCrossings = 0;

    bool Passes(const CountSettings &settings, const CountedObject &object) const
    {
        return !(touchesEdge && settings.leavesOutEdge) && area >= settings.leastArea && area <= settings.mostArea
               && object.circularity >= settings.leastCircularity && object.circularity <= settings.mostCircularity;
    }
    CountedObject Object() const
    {
        CountedObject object;
        object.area = area;
        object.centroid = QPointF(sumX / area + 0.5, sumY / area + 0.5);
        object.meanIntensity = sum / numbers;
        object.equivalentDiameter = 2 * std::sqrt(area / Pi);
        // Crofton's formula with lines in four directions; diagonal lines are closer together.
        object.perimeter = Pi / 8 * (straightCrossings + diagonalCrossings / std::sqrt(2.0));
        object.circularity = qMin(1.0, 4 * Pi * area / (object.perimeter * object.perimeter));
        return object;
    }
};

bool IsCrossing(const cv::Mat &labels, int x, int y, int stepX, int stepY)
{
    const int otherX = x + stepX;
    const int otherY = y + stepY;
    const bool isInside = otherX >= 0 && otherY >= 0 && otherX < labels.cols && otherY < labels.rows;
    return !isInside || labels.at<int>(otherY, otherX) != labels.at<int>(y, x);
}

void Gather(const cv::Mat &labels, int x, int y, double sample, Gathering &object)
{
    ++object.area;
    object.sumX += x;
    object.sumY += y;
    if (std::isfinite(sample)) {
        ++object.numbers;
        object.sum += sample;
    }
    object.touchesEdge |= x == 0 || y == 0 || x == labels.cols - 1 || y == labels.rows - 1;
    for (const int step : { -1, 1 }) {
        object.straightCrossings += IsCrossing(labels, x, y, step, 0) + IsCrossing(labels, x, y, 0, step);
        object.diagonalCrossings += IsCrossing(labels, x, y, step, step) + IsCrossing(labels, x, y, step, -step);
    }
}

std::vector<Gathering> GatherAll(const cv::Mat &labels, const Picture &grey)
{
    double most = 0;
    cv::minMaxLoc(labels, nullptr, &most);
    std::vector<Gathering> all(size_t(most) + 1);
    VisitSampleType(grey.Type(), [&](auto type) {
        for (int y = 0; y < labels.rows; ++y) {
            const auto *samples = grey.Samples<decltype(type)>(y);
            for (int x = 0; x < labels.cols; ++x) {
                if (const int label = labels.at<int>(y, x))
                    Gather(labels, x, y, double(samples[x]), all[size_t(label)]);
            }
        }
    });
    return all;
}

/// Those that pass, numbered anew, in the order of their first pixels.
void Select(const std::vector<Gathering> &all, const CountSettings &settings, const cv::Mat &labels,
            ObjectCount &count)
{
    constexpr int unread = -1;
    std::vector<int> numbers(all.size(), unread);
    numbers[0] = 0;
    count.labels = Picture(labels.cols, labels.rows, 1, SampleType::U32);
    for (int y = 0; y < labels.rows; ++y) {
        for (int x = 0; x < labels.cols; ++x) {
            const size_t label = size_t(labels.at<int>(y, x));
            if (numbers[label] == unread) {
                const CountedObject object = all[label].Object();
                const bool passes = all[label].Passes(settings, object);
                if (passes)
                    count.objects << object;
                numbers[label] = passes ? count.objects.size() : 0;
            }
            count.labels.Samples<quint32>(y)[x] = quint32(numbers[label]);
        }
    }
}

} // namespace

ObjectCount CountObjects(const Picture &picture, const CountSettings &settings, QString &error)
{
    constexpr qint64 bytesPerPixel = 48;
    ObjectCount count;
    if (picture.Size().isEmpty()) {
        error = QCoreApplication::translate("ObjectCount", "There is no picture whose objects could be counted.");
        return count;
    }
    // The mask, distances, labels and the order in which pixels are flooded.
    error = MemoryFault(qint64(picture.Width()) * picture.Height() * bytesPerPixel, AvailableMemory());
    if (!error.isEmpty())
        return count;
    QString fault;
    CallOpenCv(fault, [&] {
        const Picture grey = Grey(picture);
        count.level = settings.isAutomatic ? OtsuLevel(grey, 0) : settings.level;
        cv::Mat mask = MaskOf(grey, settings, count.level);
        if (settings.fillsHoles)
            FillHoles(mask);
        const cv::Mat labels = LabelsOf(mask, settings);
        Select(GatherAll(labels, grey), settings, labels, count);
    });
    if (!fault.isEmpty()) {
        error = QCoreApplication::translate("ObjectCount", "The objects could not be counted: %1.").arg(fault);
        return ObjectCount();
    }
    return count;
}
