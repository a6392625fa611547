// SPDX-License-Identifier: GPL-3.0-or-later
#include "gpuviewrect.h"

#include <algorithm>

namespace {

struct VisibleSpan
{
    float first;
    float last;
};

/// One axis, in the single precision in which the picture is drawn.
VisibleSpan ComputeVisibleSpan(int scroll, int viewportLength, float scaledLength)
{
    const float first = scaledLength > viewportLength ? scroll / scaledLength : 0.0F;
    const float last = first + viewportLength / scaledLength;
    return { first, last == 0.0F ? 1.0F : std::min(last, 1.0F) };
}

} // namespace

QRectF ComputeGPUViewRect(const QPoint &scroll, const QSize &viewportSize, const QSizeF &sceneSize,
                          double scale)
{
    const VisibleSpan across =
        ComputeVisibleSpan(scroll.x(), viewportSize.width(), float(sceneSize.width()) * float(scale));
    const VisibleSpan down =
        ComputeVisibleSpan(scroll.y(), viewportSize.height(), float(sceneSize.height()) * float(scale));
    return QRectF(across.first, down.first, across.last, down.last);
}

bool IsGPUViewRectInside(const QRectF &viewRect)
{
    return viewRect.x() < 1.0 && viewRect.y() < 1.0 && viewRect.width() <= 1.0 && viewRect.height() <= 1.0;
}
