// SPDX-License-Identifier: GPL-3.0-or-later
#include "lxgpudrawitem.h"

#include "cameramainmanager.h"
#include "lxcamgpurender.h"
#include "previewmanager.h"
#include "rawcameraframe.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QPaintEngine>
#include <QPainter>

#include <limits>

namespace {

constexpr int smallestViewport = 2; // screen pixels
constexpr QRectF unsizedBounds(0, 0, 200, 200);

} // namespace

LxGPUDrawItem::LxGPUDrawItem(bool comparing, QGraphicsItem *parent)
    : QGraphicsItem(parent)
    , m_render(std::make_unique<LxCamGPURender>())
    , m_comparing(comparing)
{
    setAcceptDrops(false);
    // It clears the whole viewport, so it comes before every mark.
    setZValue(std::numeric_limits<qreal>::lowest());
    m_render->SetComparing(comparing);
}

LxGPUDrawItem::~LxGPUDrawItem() = default;

void LxGPUDrawItem::SetViewRect(int viewportWidth, int viewportHeight, const QRectF &viewRect)
{
    if (HasViewport() != (viewportWidth != 0 && viewportHeight != 0))
        prepareGeometryChange();
    m_viewportWidth = viewportWidth;
    m_viewportHeight = viewportHeight;
    m_viewRect = viewRect;
}

void LxGPUDrawItem::UpdateView()
{
    if (QGraphicsView *view = OwningView())
        view->viewport()->update();
}

QRectF LxGPUDrawItem::boundingRect() const
{
    if (!HasViewport())
        return unsizedBounds;
    const QGraphicsView *view = OwningView();
    return view ? view->sceneRect() : QRectF();
}

void LxGPUDrawItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    if (!CameraMainManager::GetInstance() || m_viewportWidth < smallestViewport
        || m_viewportHeight < smallestViewport)
        return;
    if (painter->paintEngine()->type() != QPaintEngine::OpenGL2)
        return; // the scene is being drawn into a picture: there is no OpenGL to draw with

    painter->beginNativePainting();
    PrepareRender();
    if (const RawCameraFrame *frame = PreviewManager::GetInstance()->GetCurrentRawFrame()) {
        m_render->ResizeGL(m_viewportWidth, m_viewportHeight, m_viewRect);
        m_render->PaintGL(frame->buffer ? frame->buffer + frame->headerLength : nullptr, frame->width,
                          frame->height, frame->channels);
    }
    // The marks are painted at the same depth as the frame.
    QOpenGLContext::currentContext()->functions()->glDisable(GL_DEPTH_TEST);
    painter->endNativePainting();
}

void LxGPUDrawItem::PrepareRender()
{
    if (m_glInitialized && !m_render->IsContextCurrent()) {
        // The viewport moved to another window and took a new context.
        m_render = std::make_unique<LxCamGPURender>();
        m_render->SetComparing(m_comparing);
        m_glInitialized = false;
    }
    if (!m_glInitialized) {
        m_render->InitializeGL();
        m_glInitialized = true;
    }
}

QGraphicsView *LxGPUDrawItem::OwningView() const
{
    return scene() ? qobject_cast<QGraphicsView *>(scene()->parent()) : nullptr;
}

bool LxGPUDrawItem::HasViewport() const { return m_viewportWidth != 0 && m_viewportHeight != 0; }
