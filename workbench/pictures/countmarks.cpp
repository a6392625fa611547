// SPDX-License-Identifier: GPL-3.0-or-later
#include "countmarks.h"

#include "picture.h"

#include <algorithm>

namespace {

constexpr uchar OutlineColour[3] = { 255, 60, 60 };

bool IsOutline(const Picture &labels, int x, int y)
{
    const quint32 *row = labels.Samples<quint32>(y);
    const quint32 label = row[x];
    if (label == 0)
        return false;
    return x == 0 || y == 0 || x == labels.Width() - 1 || y == labels.Height() - 1 || row[x - 1] != label
           || row[x + 1] != label || labels.Samples<quint32>(y - 1)[x] != label
           || labels.Samples<quint32>(y + 1)[x] != label;
}

} // namespace

QImage WithOutlines(const QImage &image, const Picture &labels)
{
    QImage marked = image.convertToFormat(QImage::Format_RGB888);
    for (int y = 0; y < marked.height(); ++y) {
        uchar *row = marked.scanLine(y);
        for (int x = 0; x < marked.width(); ++x) {
            if (IsOutline(labels, x, y))
                std::copy(OutlineColour, OutlineColour + 3, row + 3 * x);
        }
    }
    return marked;
}
