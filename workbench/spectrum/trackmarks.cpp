// SPDX-License-Identifier: GPL-3.0-or-later
#include "trackmarks.h"

#include <QCursor>
#include <QGraphicsScene>
#include <QGraphicsSceneContextMenuEvent>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>
#include <QPainter>

namespace {

constexpr double edgeReachPixels = 5; ///< on the screen, to each side of an edge
constexpr int stillestDrag = 3;       ///< pixels on the screen; less is a click of an unsteady hand
constexpr double aboveTheMarks = 1;   ///< z of this item; those of FocusInfo lie at 0

Qt::CursorShape CursorOf(TrackDrag::Grip grip)
{
    switch (grip) {
    case TrackDrag::Grip::Top:
    case TrackDrag::Grip::Bottom: return Qt::SizeVerCursor;
    case TrackDrag::Grip::Body: return Qt::OpenHandCursor;
    case TrackDrag::Grip::None: break;
    }
    return Qt::CrossCursor;
}

} // namespace

TrackMarks::TrackMarks()
{
    setZValue(aboveTheMarks);
    setAcceptHoverEvents(true);
    setAcceptedMouseButtons(Qt::LeftButton);
}

void TrackMarks::SetPicture(QSize size)
{
    prepareGeometryChange();
    m_picture = size;
    EndDrag();
}

void TrackMarks::SetTracks(const std::vector<RowBand> &tracks, int chosen)
{
    if (!HaveSameRows(tracks, m_tracks))
        EndDrag();
    m_tracks = tracks;
    m_chosen = chosen;
    update();
}

void TrackMarks::EndDrag()
{
    m_drag.End();
    update();
}

QRectF TrackMarks::boundingRect() const { return QRectF(QPointF(0, 0), m_picture); }

void TrackMarks::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    const std::vector<RowBand> &tracks = m_drag.IsActive() ? m_drag.Tracks() : m_tracks;
    const int marked = m_drag.IsActive() ? m_drag.Track() : m_chosen;
    if (marked < 0 || marked >= int(tracks.size()))
        return;
    const RowBand &track = tracks[size_t(marked)];
    QPen pen(Qt::yellow, 2); // as the band by hand
    pen.setCosmetic(true);
    painter->setPen(pen);
    painter->setBrush(m_drag.IsActive() ? QColor(255, 255, 0, 40) : QColor(Qt::transparent));
    painter->drawRect(QRectF(0, track.top, m_picture.width(), track.bottom - track.top));
}

TrackDrag::Hold TrackMarks::HoldAt(const QPointF &scenePos) const
{
    const QList<QGraphicsView *> views = scene() ? scene()->views() : QList<QGraphicsView *>();
    const double scale = views.isEmpty() ? 1.0 : views.first()->transform().m22();
    return TrackDrag::HoldAt(m_tracks, scenePos.y(), edgeReachPixels / (scale > 0 ? scale : 1.0));
}

/// Hidden marks, as when drawing is switched off, and those that a menu covers lose the mouse in mid-drag.
bool TrackMarks::sceneEvent(QEvent *event)
{
    if (event->type() == QEvent::UngrabMouse)
        EndDrag();
    return QGraphicsObject::sceneEvent(event);
}

void TrackMarks::hoverMoveEvent(QGraphicsSceneHoverEvent *event) { setCursor(CursorOf(HoldAt(event->scenePos()).grip)); }

void TrackMarks::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    m_drag.Begin(m_tracks, HoldAt(event->scenePos()), event->scenePos().y(), m_picture.height());
    m_pressScreenPos = event->screenPos();
    m_hasMoved = false;
    update();
}

void TrackMarks::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    m_hasMoved = m_hasMoved || (event->screenPos() - m_pressScreenPos).manhattanLength() >= stillestDrag;
    if (m_hasMoved)
        m_drag.MoveTo(event->scenePos().y());
    update();
}

/// A click chooses; only a drag changes.
void TrackMarks::mouseReleaseEvent(QGraphicsSceneMouseEvent *)
{
    if (!m_drag.IsActive())
        return;
    EndDrag();
    const int track = m_drag.Track();
    if (m_hasMoved)
        emit signalDragged(m_drag.Tracks(), track);
    else if (track < int(m_tracks.size()))
        emit signalChosen(track);
}

void TrackMarks::contextMenuEvent(QGraphicsSceneContextMenuEvent *event)
{
    const int track = HoldAt(event->scenePos()).track;
    if (track < 0)
        event->ignore();
    else
        emit signalMenuWanted(track, event->screenPos());
}
