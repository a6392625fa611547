// SPDX-License-Identifier: GPL-3.0-or-later
#include "scaledsamples.h"

#include "picture.h"
#include "saturationmark.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <vector>

namespace {

/// So many samples tell the levels of a large picture within the noise of the picture itself.
constexpr qint64 enoughSamples = 1 << 19;
constexpr double tail = 0.001;
/// Finer than the eye tells in 256 greys, for any gamma that is allowed.
constexpr int gammaSteps = 4096;

SampleRange NotEmpty(double left, double right)
{
    if (!(left <= right))
        return { 0, 1 }; // not one number among the samples
    if (left < right)
        return { left, right };
    const double margin = std::max(std::abs(left) * 1e-6, 0.5);
    return { left - margin, left + margin };
}

template <typename Sample>
bool IsNumber(Sample sample)
{
    if constexpr (std::is_floating_point_v<Sample>)
        return std::isfinite(sample);
    else
        return true;
}

template <typename Sample>
SampleRange FindFull(const Picture &picture, int rowStep = 1)
{
    double left = std::numeric_limits<double>::infinity();
    double right = -left;
    for (int y = 0; y < picture.Height(); y += rowStep) {
        const Sample *samples = picture.Samples<Sample>(y);
        for (int i = 0; i < picture.Width() * picture.Channels(); ++i) {
            if (!IsNumber(samples[i]))
                continue;
            left = std::min(left, double(samples[i]));
            right = std::max(right, double(samples[i]));
        }
    }
    return NotEmpty(left, right);
}

template <typename Sample>
SampleRange FindTypical(const Picture &picture)
{
    const qint64 perRow = qint64(picture.Width()) * picture.Channels();
    const int rowStep = int(std::max(qint64(1), perRow * picture.Height() / enoughSamples));
    std::vector<Sample> numbers;
    numbers.reserve(size_t(perRow * (picture.Height() / rowStep + 1)));
    for (int y = 0; y < picture.Height(); y += rowStep) {
        const Sample *samples = picture.Samples<Sample>(y);
        std::copy_if(samples, samples + perRow, std::back_inserter(numbers), IsNumber<Sample>);
    }
    if (numbers.empty())
        return NotEmpty(1, 0);
    const auto last = double(numbers.size() - 1);
    const auto left = numbers.begin() + std::ptrdiff_t(std::floor(last * tail));
    std::nth_element(numbers.begin(), left, numbers.end());
    const double leftValue = double(*left);
    const auto right = numbers.begin() + std::ptrdiff_t(std::ceil(last * (1 - tail)));
    std::nth_element(numbers.begin(), right, numbers.end());
    // One value nearly everywhere: the few others are what there is to see.
    return leftValue < double(*right) ? SampleRange{ leftValue, double(*right) } : FindFull<Sample>(picture);
}

using GreyTable = std::array<uchar, gammaSteps + 1>;

GreyTable GreysOf(double gamma)
{
    GreyTable greys;
    for (int i = 0; i <= gammaSteps; ++i)
        greys[size_t(i)] = uchar(std::lround(255 * std::pow(double(i) / gammaSteps, 1 / gamma)));
    return greys;
}

/// Where a sample lies in a range, 0 to `steps`. Worked out from halves, so that the width of no range is infinite.
class PlaceInRange
{
public:
    PlaceInRange(const SampleRange &range, double steps)
        : m_halfLeft(range.left / 2)
        , m_factor(steps / (range.right / 2 - m_halfLeft))
    {
    }

    double Of(double sample) const { return (sample / 2 - m_halfLeft) * m_factor; }

private:
    double m_halfLeft;
    double m_factor;
};

template <typename Sample>
void FillRow(const Sample *samples, int count, const PlaceInRange &places, const GreyTable &greys, uchar *target)
{
    for (int i = 0; i < count; ++i) {
        const double place = places.Of(double(samples[i])) + 0.5;
        // Turned around, so that what is no number is black.
        const double bounded = place > 0 ? std::min(place, double(gammaSteps)) : 0;
        target[i] = greys[size_t(bounded)];
    }
}

template <typename Sample>
void CountRow(const Sample *samples, int count, const PlaceInRange &places, QVector<qint64> *counts)
{
    for (int i = 0; i < count; ++i) {
        const double place = places.Of(double(samples[i]));
        if (place >= 0 && place <= counts->size()) // not so for what is no number
            ++(*counts)[std::min(int(place), counts->size() - 1)];
    }
}

} // namespace

SampleRange ScaledSamples::FullRange(const Picture &picture, int rowStep)
{
    return VisitSampleType(picture.Type(), [&](auto sample) { return FindFull<decltype(sample)>(picture, rowStep); });
}

SampleRange ScaledSamples::TypicalRange(const Picture &picture)
{
    return VisitSampleType(picture.Type(),
                           [&](auto sample) { return FindTypical<decltype(sample)>(picture); });
}

QImage ScaledSamples::Image(const Picture &picture, const SampleRange &range, double gamma, const Palette &palette)
{
    const bool isColour = picture.Channels() == 3;
    const bool isPainted = !isColour && !palette.IsGrey();
    QImage image(picture.Size(), isColour || isPainted ? QImage::Format_RGB888 : QImage::Format_Grayscale8);
    if (image.isNull())
        return image;
    const GreyTable greys = GreysOf(gamma);
    const PlaceInRange places(range, gammaSteps);
    std::vector<uchar> greyRow(isPainted ? size_t(picture.Width()) : 0);
    VisitSampleType(picture.Type(), [&](auto sample) {
        for (int y = 0; y < picture.Height(); ++y) {
            FillRow(picture.Samples<decltype(sample)>(y), picture.Width() * picture.Channels(), places, greys,
                    isPainted ? greyRow.data() : image.scanLine(y));
            if (isPainted)
                palette.Paint(greyRow.data(), picture.Width(), image.scanLine(y));
        }
    });
    return image;
}

QImage ScaledSamples::WithSaturationMarks(const Picture &samples, const QImage &image)
{
    return VisitSampleType(samples.Type(), [&](auto sample) {
        using Sample = decltype(sample);
        if constexpr (std::is_floating_point_v<Sample> || (std::is_unsigned_v<Sample> && sizeof(Sample) < 4)) {
            return image;
        } else {
            QImage marked = image.convertToFormat(QImage::Format_RGB888);
            for (int y = 0; y < marked.height(); ++y)
                SaturationMark::MarkLargest(samples.Samples<Sample>(y), samples.Width(), samples.Channels(),
                                            marked.scanLine(y));
            return marked;
        }
    });
}

QVector<qint64> ScaledSamples::Histogram(const Picture &picture, const SampleRange &range, int columns, int rowStep)
{
    QVector<qint64> counts(columns, 0);
    const PlaceInRange places(range, columns);
    VisitSampleType(picture.Type(), [&](auto sample) {
        for (int y = 0; y < picture.Height(); y += rowStep)
            CountRow(picture.Samples<decltype(sample)>(y), picture.Width() * picture.Channels(), places, &counts);
    });
    return counts;
}
