// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "trackdrag.h"

#include <QGraphicsObject>
#include <QSize>

/// Takes the mouse on the live picture while tracks are drawn: a drag over rows makes a track, a drag of a track or of its
/// edges moves or resizes it, the right button asks to remove it. Paints the track that is chosen and the one that is being
/// dragged. In picture pixels; the scene owns it.
class TrackMarks : public QGraphicsObject
{
    Q_OBJECT

public:
    TrackMarks();

    void SetPicture(QSize size);
    /// `chosen` is one of them, or -1. A drag of others ends without a change.
    void SetTracks(const std::vector<RowBand> &tracks, int chosen);

    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

signals:
    /// The user has dragged; `track` is the one.
    void signalDragged(std::vector<RowBand> tracks, int track);
    void signalChosen(int track);
    void signalMenuWanted(int track, QPoint screenPos);

protected:
    bool sceneEvent(QEvent *event) override;
    void hoverMoveEvent(QGraphicsSceneHoverEvent *event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void contextMenuEvent(QGraphicsSceneContextMenuEvent *event) override;

private:
    void EndDrag();
    TrackDrag::Hold HoldAt(const QPointF &scenePos) const;

    QSize m_picture;
    std::vector<RowBand> m_tracks;
    int m_chosen = -1;
    TrackDrag m_drag;
    QPoint m_pressScreenPos;
    bool m_hasMoved = false;
};
