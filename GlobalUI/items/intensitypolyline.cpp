// SPDX-License-Identifier: GPL-3.0-or-later
#include "intensitypolyline.h"

#include <algorithm>

namespace {

/// Room for one line from `first` to each pixel up to `limit`; at least one.
QLineF *ResizeLines(int first, int limit, QVector<QLineF> *lines)
{
    lines->resize(std::max(limit - first, 1));
    return lines->data();
}

/// Widget pixels per unit of intensity.
double IntensityScale(int room, const CurveWindow &window)
{
    const double span = double(window.rightLevel) - double(window.leftLevel);
    return span == 0.0 ? 0.0 : room / span;
}

/// Lines through the points of all pixels from `first` to `limit`; `point` makes one of a pixel and a sample.
template<typename Point>
void FillLines(const std::vector<int> &samples, double ratio, int first, int limit, Point point,
               QVector<QLineF> *lines)
{
    QLineF *line = ResizeLines(first, limit, lines);
    QPointF previous = point(first, samples.front());
    QPointF next = point(first + 1, samples[size_t(ratio)]);
    *line++ = QLineF(previous, next);
    for (int pixel = first + 2; pixel <= limit; ++pixel) {
        previous = next;
        next = point(pixel, samples[size_t(pixel * ratio)]);
        *line++ = QLineF(previous, next);
    }
}

} // namespace

void BuildHorizontalCurve(const std::vector<int> &samples, const CurveWindow &window, QVector<QLineF> *lines)
{
    if (samples.empty())
        return;
    const int border = window.borderWidth;
    const int limit = window.itemSize.width() - border;
    if (limit <= 0) {
        lines->clear();
        return;
    }
    const double base = window.itemSize.height() - 2 * border;
    const double scale = IntensityScale(window.itemSize.height() - 4 * border, window);
    const double ratio = double(float(samples.size()) / float(window.itemSize.width()));
    const double left = window.leftLevel;
    FillLines(samples, ratio, border, limit,
              [=](int x, int sample) { return QPointF(x, std::min(base, base - (sample - left) * scale)); }, lines);
}

void BuildVerticalCurve(const std::vector<int> &samples, const CurveWindow &window, QVector<QLineF> *lines)
{
    if (samples.empty())
        return;
    const int border = window.borderWidth;
    const int limit = window.itemSize.height() - 2 * border;
    if (limit <= 0) {
        lines->clear();
        return;
    }
    const double right = window.itemSize.width() - 2 * border;
    const double scale = IntensityScale(window.itemSize.width() - 4 * border, window);
    const double ratio = double(float(samples.size()) / float(std::max(window.itemSize.height() - 1, 1)));
    const double left = window.leftLevel;
    FillLines(samples, ratio, border, limit,
              [=](int y, int sample) { return QPointF(std::min(right, (sample - left) * scale + border), y); }, lines);
}
