// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGraphicsObject>

/// The cross through the middle of the picture, an aid for focusing. Seen while focus assistance is
/// on and the cross line is enabled, as both are at first: it is made after they were switched on. The scene owns it.
class FocusCrossLine : public QGraphicsObject
{
    Q_OBJECT

public:
    FocusCrossLine();

    /// Hidden, whatever the slots say, until it is begun again.
    void Retire();
    void Begin();

    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

public slots:
    /// The picture has a new size: the cross moves to its middle.
    void SlotImageSizeChanged();
    void SlotCrossLineVisiable(bool visible);
    void SlotCrossLineEnable(bool enable);

protected:
    QVariant itemChange(GraphicsItemChange change, const QVariant &value) override;

private:
    void UpdateVisibility();

    bool m_retired = false;
    bool m_wanted = true;
    bool m_enabled = true;
    QRectF m_picture;
};
