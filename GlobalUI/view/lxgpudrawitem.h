// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGraphicsItem>
#include <QRectF>

#include <memory>

class LxCamGPURender;
class QGraphicsView;

/// Draws the preview's current raw frame by OpenGL, under all other items of the scene. Belongs to
/// the draw view whose scene it is in; that view's viewport is a QOpenGLWidget.
class LxGPUDrawItem : public QGraphicsItem
{
public:
    /// `comparing`: a frame that meets a GL error is given up instead of rebuilding everything.
    explicit LxGPUDrawItem(bool comparing, QGraphicsItem *parent = nullptr);
    ~LxGPUDrawItem() override;

    /// The viewport's size in screen pixels, and the visible part of the picture: left, top, right,
    /// bottom as fractions of it.
    void SetViewRect(int viewportWidth, int viewportHeight, const QRectF &viewRect);
    /// Asks the viewport of the scene's view for a repaint.
    void UpdateView();

    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    QGraphicsView *OwningView() const;
    bool HasViewport() const;
    void PrepareRender();

    std::unique_ptr<LxCamGPURender> m_render;
    qint32 m_viewportWidth = 0;
    qint32 m_viewportHeight = 0;
    QRectF m_viewRect{ 0, 0, 1, 1 };
    bool m_glInitialized = false;
    bool m_comparing;
};
