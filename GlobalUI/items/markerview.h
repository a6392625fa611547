// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QGraphicsItem;
class QGraphicsView;

/// The view that shows the item's scene: the scene's parent. Null outside a scene or without such a parent.
QGraphicsView *MarkerView(const QGraphicsItem *item);

/// Screen pixels per scene unit in that view; 1 where there is none. Never 0 or below.
double MarkerViewScale(const QGraphicsItem *item);
