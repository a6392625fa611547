// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGraphicsSimpleTextItem>

/// One of the texts of a group of marks over a picture, of the same size on the screen at any zoom. Where it would lie on
/// a text of the group that was added before it, it is painted below that.
class MarkText : public QGraphicsSimpleTextItem
{
public:
    /// `before` texts of the group come before it.
    MarkText(const QString &text, int before, QGraphicsItem *group);

    /// With all places that it may move to.
    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    /// Screen pixels, downwards.
    double ShiftIn(const QTransform &toScreen) const;

    const int m_before;
};
