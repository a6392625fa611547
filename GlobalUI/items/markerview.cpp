// SPDX-License-Identifier: GPL-3.0-or-later
#include "markerview.h"

#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QGraphicsView>

#include <cmath>

QGraphicsView *MarkerView(const QGraphicsItem *item)
{
    return item->scene() ? qobject_cast<QGraphicsView *>(item->scene()->parent()) : nullptr;
}

double MarkerViewScale(const QGraphicsItem *item)
{
    const QGraphicsView *view = MarkerView(item);
    // A mirrored view scales as much as the plain one; one turned by a right angle says 0.
    const double scale = view ? std::abs(view->transform().m11()) : 1.0;
    return scale > 0.0 ? scale : 1.0;
}
