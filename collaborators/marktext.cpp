// SPDX-License-Identifier: GPL-3.0-or-later
#include "marktext.h"

#include <QGraphicsView>
#include <QPainter>
#include <QVector>

#include <algorithm>

namespace {

/// Moved down until it meets none of those that were placed.
QRectF Placed(QRectF rect, const QVector<QRectF> &placed)
{
    const auto meets = [&rect](const QRectF &other) { return rect.intersects(other); };
    auto other = std::find_if(placed.begin(), placed.end(), meets);
    while (other != placed.end()) {
        rect.moveTop(other->bottom());
        other = std::find_if(placed.begin(), placed.end(), meets);
    }
    return rect;
}

} // namespace

MarkText::MarkText(const QString &text, int before, QGraphicsItem *group)
    : QGraphicsSimpleTextItem(text, group)
    , m_before(before)
{
    setFlag(ItemIgnoresTransformations);
    setAcceptedMouseButtons(Qt::NoButton);
}

/// Each of those before it stops it at most for its own height and for what is too low for it above that.
QRectF MarkText::boundingRect() const
{
    const QRectF own = QGraphicsSimpleTextItem::boundingRect();
    return own.adjusted(0, 0, 0, 2 * m_before * own.height());
}

double MarkText::ShiftIn(const QTransform &toScreen) const
{
    QVector<QRectF> placed;
    for (const QGraphicsItem *item : parentItem()->childItems()) { // in the order that they were added
        const auto *text = dynamic_cast<const MarkText *>(item);
        if (!text)
            continue;
        const QRectF own = text->QGraphicsSimpleTextItem::boundingRect().translated(toScreen.map(text->scenePos()));
        placed << Placed(own, placed);
        if (text == this)
            return placed.last().top() - own.top();
    }
    return 0;
}

void MarkText::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    const auto *view = widget ? qobject_cast<const QGraphicsView *>(widget->parentWidget()) : nullptr;
    painter->save();
    painter->translate(0, ShiftIn(view ? view->viewportTransform() : QTransform()));
    QGraphicsSimpleTextItem::paint(painter, option, widget);
    painter->restore();
}
