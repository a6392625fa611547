// SPDX-License-Identifier: GPL-3.0-or-later
#include "cropframe.h"

#include "globalclass.h"

#include <QCoreApplication>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScrollBar>
#include <QWheelEvent>

namespace {

constexpr int HandleSize = 8; // design pixels, side of a handle
constexpr int SurroundingsAlpha = 128; // of the darkness around a selection

Qt::CursorShape CursorOf(SelectionRect::Grip grip)
{
    switch (grip) {
    case SelectionRect::Grip::None:
        return Qt::CrossCursor;
    case SelectionRect::Grip::Body:
        return Qt::SizeAllCursor;
    case SelectionRect::Grip::TopLeft:
    case SelectionRect::Grip::BottomRight:
        return Qt::SizeFDiagCursor;
    case SelectionRect::Grip::TopRight:
    case SelectionRect::Grip::BottomLeft:
        return Qt::SizeBDiagCursor;
    case SelectionRect::Grip::Left:
    case SelectionRect::Grip::Right:
        return Qt::SizeHorCursor;
    case SelectionRect::Grip::Top:
    case SelectionRect::Grip::Bottom:
        return Qt::SizeVerCursor;
    }
    return Qt::ArrowCursor;
}

bool IsApplyKey(int key) { return key == Qt::Key_Return || key == Qt::Key_Enter; }

/// Applies or leaves.
bool TakesKey(int key) { return IsApplyKey(key) || key == Qt::Key_Escape; }

} // namespace

CropFrame::CropFrame(QGraphicsScene *scene, QWidget *parent)
    : QWidget(parent)
    , m_scene(scene)
    , m_view(qobject_cast<QGraphicsView *>(parent))
{
    hide();
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    slotSceneRectChanged(scene->sceneRect());
    connect(scene, SIGNAL(sceneRectChanged(QRectF)), this, SLOT(slotSceneRectChanged(QRectF)));
    if (m_view) {
        resize(m_view->size());
        connect(m_view->horizontalScrollBar(), SIGNAL(valueChanged(int)), this, SLOT(update()));
        connect(m_view->verticalScrollBar(), SIGNAL(valueChanged(int)), this, SLOT(update()));
    }
}

void CropFrame::slotSetCoverFrameVisible(bool visible) { ShowFor(Cover, visible); }

void CropFrame::slotFinishFillCover(QRect rect)
{
    m_selections[Cover].SetRect(rect);
    update();
}

void CropFrame::slotSetOpacity(float opacity)
{
    m_opacity = qBound<qreal>(0.0, opacity, 1.0);
    update();
}

void CropFrame::slotSetROIFrameVisible(bool visible, bool reset)
{
    if (reset)
        m_selections[Region].Clear();
    ShowFor(Region, visible);
}

void CropFrame::slotSetCropState(int state, bool visible)
{
    if (state == 0)
        m_selections[Crop].Clear();
    ShowFor(Crop, visible);
}

void CropFrame::ShowFor(Mode mode, bool visible)
{
    if (!visible) {
        // The modes share the frame: one that is not shown has nothing to hide.
        if (mode == m_mode)
            hide();
        return;
    }
    m_mode = mode;
    show();
    if (m_view)
        resize(m_view->size());
    raise();
    setFocus();
    update();
}

void CropFrame::slotSceneRectChanged(QRectF sceneRect)
{
    for (SelectionRect &selection : m_selections)
        selection.SetBounds(sceneRect.toAlignedRect());
    update();
}

QTransform CropFrame::SceneToFrame() const
{
    if (!m_view)
        return QTransform();
    const QPoint viewport = m_view->viewport()->mapTo(m_view, QPoint(0, 0)) - pos();
    return m_view->viewportTransform() * QTransform::fromTranslate(viewport.x(), viewport.y());
}

QPointF CropFrame::ToScene(const QPointF &viewPos) const
{
    return SceneToFrame().inverted().map(viewPos);
}

qreal CropFrame::HandleReach() const
{
    const qreal scale = qAbs(SceneToFrame().m11());
    return GlobalClass::GetActualSize(HandleSize) / 2.0 / (scale > 0.0 ? scale : 1.0);
}

bool CropFrame::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride && TakesKey(static_cast<QKeyEvent *>(event)->key())) {
        event->accept(); // the frame takes it before a shortcut of the window does
        return true;
    }
    return QWidget::event(event);
}

void CropFrame::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    Selection().Press(ToScene(event->localPos()), HandleReach());
}

void CropFrame::mouseMoveEvent(QMouseEvent *event)
{
    if (!event->buttons().testFlag(Qt::LeftButton))
        Selection().Release(); // the frame was hidden in the middle of a drag
    if (Selection().Drag(ToScene(event->localPos()))) {
        AnnounceRegion(false);
        update();
    }
    if (!Selection().IsDragging())
        UpdateCursor(event->localPos());
    emit signalUpdateMousePosition(event->pos());
}

void CropFrame::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    Selection().Release();
    update();
}

void CropFrame::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        Apply();
}

void CropFrame::wheelEvent(QWheelEvent *event)
{
    if (!m_view) {
        event->ignore();
        return;
    }
    // A scroll area takes wheel events from its viewport only, so the event goes there.
    QWidget *viewport = m_view->viewport();
    QWheelEvent forViewport(viewport->mapFromGlobal(event->globalPosition().toPoint()),
                            event->globalPosition(), event->pixelDelta(), event->angleDelta(),
                            event->buttons(), event->modifiers(), event->phase(), event->inverted(),
                            event->source());
    QCoreApplication::sendEvent(viewport, &forViewport);
    event->setAccepted(forViewport.isAccepted());
    update();
}

void CropFrame::keyPressEvent(QKeyEvent *event)
{
    if (IsApplyKey(event->key()))
        Apply();
    else if (event->key() == Qt::Key_Escape)
        Cancel();
    else
        QWidget::keyPressEvent(event);
}

void CropFrame::Apply()
{
    Selection().Release();
    if (Selection().IsEmpty())
        return; // nothing selected: the frame waits for a drag
    hide();
    if (m_mode == Cover)
        emit signalManualCoverFinished(Selection().Rect());
    else
        AnnounceRegion(true);
}

void CropFrame::Cancel()
{
    Selection().Clear();
    hide();
    if (m_mode == Cover)
        emit signalStopManualCover();
    else if (m_mode == Crop)
        AnnounceRegion(false);
    else
        emit signalStopRegionSelected();
}

void CropFrame::AnnounceRegion(bool apply)
{
    if (m_mode == Cover)
        return; // a cover is announced when it is finished
    const QRect rect = Selection().Rect();
    emit signalSetSelectRegion(rect.x(), rect.y(), rect.width(), rect.height(), apply);
}

void CropFrame::UpdateCursor(const QPointF &viewPos)
{
    setCursor(CursorOf(Selection().GripAt(ToScene(viewPos), HandleReach())));
}

void CropFrame::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRectF selection = SceneToFrame().mapRect(QRectF(Selection().Rect()));
    if (m_mode == Cover)
        painter.fillRect(selection, QColor(0, 0, 0, qRound(255 * m_opacity)));
    else
        DrawSurroundings(painter, selection);
    if (Selection().IsEmpty())
        return;
    painter.setPen(QPen(Qt::yellow, GlobalClass::GetActualSize(1)));
    painter.drawRect(selection);
    DrawHandles(painter, selection);
    DrawSizeText(painter, selection);
}

void CropFrame::DrawSurroundings(QPainter &painter, const QRectF &selection) const
{
    QPainterPath surroundings;
    surroundings.setFillRule(Qt::OddEvenFill);
    surroundings.addRect(rect());
    surroundings.addRect(selection);
    painter.fillPath(surroundings, QColor(0, 0, 0, SurroundingsAlpha));
}

void CropFrame::DrawHandles(QPainter &painter, const QRectF &selection) const
{
    const qreal side = GlobalClass::GetActualSize(HandleSize);
    for (int column = 0; column <= 2; ++column) {
        for (int row = 0; row <= 2; ++row) {
            if (column == 1 && row == 1)
                continue; // the middle moves the whole selection
            const QPointF centre(selection.left() + selection.width() * column / 2.0,
                                 selection.top() + selection.height() * row / 2.0);
            painter.fillRect(QRectF(centre - QPointF(side / 2, side / 2), QSizeF(side, side)), Qt::yellow);
        }
    }
}

void CropFrame::DrawSizeText(QPainter &painter, const QRectF &selection) const
{
    const QString text = QString("%1 x %2").arg(Selection().Rect().width()).arg(Selection().Rect().height());
    const QPointF above = selection.topLeft() - QPointF(0, GlobalClass::GetActualSize(HandleSize));
    const qreal top = qMax<qreal>(above.y(), painter.fontMetrics().height());
    painter.drawText(QPointF(qMax<qreal>(above.x(), 0), top), text);
}
