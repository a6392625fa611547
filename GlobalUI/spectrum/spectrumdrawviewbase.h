// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "spectrumzoomhistory.h"

#include <QGraphicsView>
#include <QImage>
#include <QPointF>
#include <QRectF>
#include <QSize>

/// The spectrum image: the newest picture, live or of a file, as background of the view's own scene, whose
/// coordinates are picture pixels. A drag to the right zooms in to the rectangle drawn, a drag to the left
/// steps back, a click picks a point. The picture is fitted to what the aids leave free of the parent
/// frame. What is reported as visible is always what is seen, so that the aids keep in step: after a step
/// back to a level between, too. When the space changes, the levels change with it and none is added.
/// Lives in a SpectrumDrawFrameBase; GUI thread.
class SpectrumDrawViewBase : public QGraphicsView
{
    Q_OBJECT

public:
    explicit SpectrumDrawViewBase(QWidget *parent);
    ~SpectrumDrawViewBase() override;

    /// The widget whose size bounds the view; borrowed.
    void SetParentFrame(QWidget *parentFrame) { m_parentFrame = parentFrame; }
    /// The view shows an opened picture instead of the live one.
    void SetStaticMode(bool staticMode) { m_staticMode = staticMode; }
    /// What the aids take of the parent frame's size.
    void ComputeMargins(int &width, int &height) const;
    /// Shows the same part of the picture after the surroundings changed size or visibility.
    void RestoreView(bool getSpectrumFlag);
    /// Of the picture shown, in pixels.
    QSize GetImageSize() const { return m_imageSize; }

signals:
    /// The size that the picture takes on the screen, clipped to the free space.
    void SignalImageChange(QSize size);
    /// A point (picture pixels) was picked or became the centre. `newRectf` is the visible part of the
    /// picture: left, top, right and bottom as fractions, the last two in the width and height slots.
    void SignalPressPosChange(QPointF screenPoint, QRectF newRectf);
    /// The same; the flag asks for the spectrum of the point.
    void SignalPressPosChangeStatic(QPointF screenPoint, QRectF newRectf, bool getSpectrumFlag);
    /// A drag in picture pixels: press (true, true), move (false, false), release (true, false).
    void SignalDrawArea(QPointF point, bool addFlag, bool start);
    /// The picked point in the coordinates of the view's parent widget.
    void SignalAnchorPosChange(QPointF point);
    void SignalSetSliderPosition(QPointF point);
    void SignalChangeHShowValueRange(double min, double max);
    void SignalChangeVShowValueRange(double min, double max);
    /// The visible part in picture pixels.
    void SignalNewRect(double xmin, double xmax, double ymin, double yMax);

public slots:
    void slotPaintPreview(QImage image);
    void slotPaintStaticPreview(QImage image);
    /// The newly chosen mode of an opened picture gets its spectrum.
    void SlotDisplayModeChange();
    void slotResetImageInfo();
    void slotSetUpdatesEnabled(bool value);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    /// What the aids leave of the parent frame, in screen pixels.
    QSize FreeSpace() const;
    void FitToParent(bool getSpectrumFlag);
    /// Zooms by the drag that has just ended.
    void SetViewGeometry();
    void ApplyZoom(const QRectF &target);
    void SetScale(float scale);
    /// The view is as large as the picture: the frame around it scrolls, never the view itself.
    void HoldOwnScrollBars();
    void ShowInBackground(const QImage &image);
    /// Sizes the scene; false when the picture is as large as the one before.
    bool TakeImageSize(const QSize &size);
    void ReportWholePicture();
    bool IsDrag() const;
    void EndDrag();
    void Pick(const QPointF &scenePos);
    void ReportAnchor(const QPointF &scenePos);

    QWidget *m_parentFrame = nullptr;
    QSize m_imageSize{ 800, 601 }; ///< one row more than the view, so that no picture is the first one
    bool m_pressed = false;
    bool m_moved = false;
    QPointF m_pressPoint;   ///< view
    QPointF m_releasePoint; ///< view; after a fit or a zoom where its centre lies
    SpectrumZoomHistory m_zoomHistory;
    QRectF m_normalisedRect; ///< as in SignalPressPosChange()
    bool m_staticMode = false;
    bool m_fittedOnce = false;
};
