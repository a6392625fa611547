// SPDX-License-Identifier: GPL-3.0-or-later
#include "joinedimages.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr int gap = 8; // picture pixels

void CopyInto(QImage &target, int x, const QImage &source)
{
    const QImage part = source.convertToFormat(target.format());
    const int bytesPerPixel = target.depth() / 8;
    for (int y = 0; y < part.height(); ++y)
        std::memcpy(target.scanLine(y) + x * bytesPerPixel, part.constScanLine(y),
                    size_t(part.width()) * bytesPerPixel);
}

} // namespace

QImage JoinedImages(const QImage &left, const QImage &right)
{
    const bool areGrey =
        left.format() == QImage::Format_Grayscale8 && right.format() == QImage::Format_Grayscale8;
    QImage joined(left.width() + gap + right.width(), std::max(left.height(), right.height()),
                  areGrey ? QImage::Format_Grayscale8 : QImage::Format_RGB888);
    if (joined.isNull())
        return joined;
    joined.fill(Qt::black);
    CopyInto(joined, 0, left);
    CopyInto(joined, left.width() + gap, right);
    return joined;
}
