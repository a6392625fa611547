// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QBrush>
#include <QGraphicsView>
#include <QOpenGLWidget>
#include <QPointF>
#include <QPointer>
#include <QRectF>
#include <QSize>

class CropFrame;
class LxGPUDrawItem;
class ReportManager;

/// The zoomable surface that shows a still picture or the live frames. The picture is the background
/// brush of the view's own scene, or (GPU drawing) drawn by an item of it, so that marks and the crop
/// frame lie on top; scene coordinates are picture pixels. Lives in a DrawFrameBase, which is a child
/// of a GPUDrawFrame, the host whose size the picture is fitted to. GUI thread.
class DrawViewBase : public QGraphicsView
{
    Q_OBJECT

public:
    explicit DrawViewBase(QWidget *parent);
    ~DrawViewBase() override;

    void SetGPUDrawView();
    /// False switches to GPU drawing.
    void SetCPUDraw(bool cpuFlag);
    bool IsGPUDraw() const;

    void ZoomIn();
    void ZoomOut();
    void ZoomFit();
    /// In above 0, otherwise out.
    void ZoomByDelta(int delta);

    /// The manager that mouse position and scale are reported to; borrowed, may be null.
    void SetViewManager(ReportManager *viewManager);
    ReportManager *GetViewManager() const;
    CropFrame *GetCropFrame() const;
    /// Size of the picture last shown, in pixels.
    QSize GetImageSize() const;
    /// The visible part of the picture with GPU drawing: left, top, right, bottom as fractions of it.
    QRectF GetGPUViewRect() const;

public slots:
    void slotPaintPreview(QImage image);
    /// `type` is a ZoomType.
    void slotScale(int type);
    void slotZoomIn();
    void slotZoomOut();
    void slotZoom1v1();
    void slotZoomFit();
    void slotSetUpdatesEnabled(bool value);
    void slotHorizontalScrollBarValueChanged(int value);
    void slotVerticalScrollBarValueChanged(int value);
    /// Puts the next frame into the scene's background with GPU drawing too; signalFinishSetBrush()
    /// says when it is there.
    void slotSetBrush();
    void slotSceneRectChanged(QRectF rect);
    /// `point` in view coordinates.
    void slotUpdateMousePosition(QPoint point);
    /// Obeyed only when `viewManager` is this view's.
    void slotScaleView(ReportManager *viewManager, int type);
    void slotSetScaleFactor(ReportManager *viewManager, double scaleFactor);
    /// 1.0 shows one picture pixel per screen pixel; not bounded above.
    void slotSetScaleFactor(double scaleFactor);

signals:
    /// The wheel zoomed: its delta, and the scroll position in screen pixels.
    void signalCompareScale(int delta, QPointF point);
    /// A drag moved the picture by as many screen pixels.
    void signalCompareMove(QPointF point);
    void signalMoveImage(QPointF point);
    void signalSetSliderPosition(QPointF point);
    /// In picture pixels.
    void signalUpdateMousePosition(QPointF pos);
    void signalUpdateImageGrayValueInfo();
    void signalScaleFactorChanged(double value);
    /// View coordinates.
    void signalEnableScaleFactor(QPoint point);
    /// Width, "x", height.
    void signalUpdateImageSize(QString text);
    void signalGraphicsViewPressed(QGraphicsScene *graphicsScene);
    void signalMouseMoveEvent(QMouseEvent *event);
    /// `point` in picture pixels.
    void signalMousePressEvent(QMouseEvent *event, QPointF point);
    void signalMouseReleaseEvent(QMouseEvent *event);
    void signalMouseDoubleClickEvent(QMouseEvent *event);
    void signalSetHorizontalScrollBarVisible(bool value);
    void signalSetVerticalScrollBarVisible(bool value);
    void signalUpdateHorizontalScrollBar(QScrollBar *scrollBar);
    void signalUpdateVerticalScrollBar(QScrollBar *scrollBar);
    void signalFinishSetBrush();
    void signalImageSizeChanged();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    /// The view's own bars moved, by whatever means: a key, touch, a change of their range.
    void slotOwnScrollBarMoved();

private:
    void ConnectHost(QWidget *host);
    /// The widget around the DrawFrameBase; null in a view that was taken out of it.
    QWidget *Host() const;
    QSize HostSize() const;
    double Scale() const;
    void SetScale(double scale);
    /// Takes the view, the crop frame and all who show the scale to the present scale.
    void UpdateViewGeometry();
    /// Nothing is scrolled by the view itself unless with GPU drawing.
    void PlaceOwnScrollBars();
    /// Scrolls with GPU drawing; `scroll` in screen pixels.
    void UpdateGPUViewRect(const QPoint &scroll);
    QPoint ScrollPosition() const;
    void HandViewRectToItem();
    void SetPictureRect();
    void ShowInBackground(const QBrush &brush);
    void UpdateViewportOpacity();
    void TakeNewSize();
    void ReportMousePosition(const QPointF &scenePos);
    void DragPicture(const QPoint &viewPos);
    void ZoomGPUByWheel(const QPoint &viewPos, int delta);
    void ZoomCPUByWheel(const QPoint &viewPos, int delta);
    void InstallGLViewport();
    void InstallViewport(QWidget *widget, ViewportUpdateMode mode);
    void RemoveGPUItem();

    ReportManager *m_viewManager = nullptr;
    bool m_isMousePressed = false;
    QPointF m_lastMousePos; ///< in the coordinates of the parent widget
    CropFrame *m_cropFrame = nullptr;
    QSize m_imageSize;
    QPointer<QOpenGLWidget> m_glViewport;
    LxGPUDrawItem *m_gpuDrawItem = nullptr; ///< owned; its presence is what GPU drawing means
    QRectF m_gpuViewRect;
    bool m_setBrushPending = false;
    QBrush m_pictureBrush;          ///< the picture last shown
    bool m_isPlacing = false;       ///< the view moves its own bars
    bool m_geometryPending = false; ///< the crop frame held the geometry while the scale changed
};
