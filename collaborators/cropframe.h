// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "collaboratorsexport.h"
#include "selectionrect.h"

#include <QPointer>
#include <QRect>
#include <QTransform>
#include <QWidget>

#include <array>

class QGraphicsScene;
class QGraphicsView;

/// The crop rectangle over a draw view: selects a region of interest, a cover or a crop by mouse.
/// A drag draws it, moves it or resizes it by its handles; a double click or Enter applies it, Esc
/// leaves. Each of the three has a selection of its own. Hidden until one of the slots shows it.
/// Owned by the view it lies on, whose size it takes.
class GLOBALUI_COLLABORATORS_EXPORT CropFrame : public QWidget
{
    Q_OBJECT

public:
    /// `scene` gives the picture's size and the mapping to picture pixels through `parent`, which
    /// is the graphics view that shows it.
    CropFrame(QGraphicsScene *scene, QWidget *parent);

public slots:
    void slotSetCoverFrameVisible(bool visible);
    /// The cover that was set; in picture pixels, empty for none.
    void slotFinishFillCover(QRect rect);
    /// Of the cover; 0 to 1.
    void slotSetOpacity(float opacity);
    /// With `reset` the selection starts anew.
    void slotSetROIFrameVisible(bool visible, bool reset);
    /// Shows or hides the frame for cropping. State 0 begins with nothing selected, any other keeps
    /// the selection.
    void slotSetCropState(int state, bool visible);

signals:
    /// In view coordinates, while the mouse is over the frame.
    void signalUpdateMousePosition(QPoint viewPos);
    void signalStopManualCover();
    void signalManualCoverFinished(QRect rect);
    /// The selected region in picture pixels; `apply` is false while it is still being drawn. It is
    /// empty when a crop is left without one.
    void signalSetSelectRegion(int x, int y, int width, int height, bool apply);
    void signalStopRegionSelected();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private slots:
    void slotSceneRectChanged(QRectF sceneRect);

private:
    enum Mode
    {
        Region,
        Cover,
        Crop,
        ModeCount
    };

    void ShowFor(Mode mode, bool visible);
    void Apply();
    void Cancel();
    void AnnounceRegion(bool apply);
    /// Of the mode at work.
    SelectionRect &Selection() { return m_selections[m_mode]; }
    const SelectionRect &Selection() const { return m_selections[m_mode]; }
    void UpdateCursor(const QPointF &viewPos);
    /// From picture pixels to this widget's pixels.
    QTransform SceneToFrame() const;
    QPointF ToScene(const QPointF &viewPos) const;
    /// Reach of a handle in picture pixels.
    qreal HandleReach() const;
    void DrawSurroundings(QPainter &painter, const QRectF &selection) const;
    void DrawHandles(QPainter &painter, const QRectF &selection) const;
    void DrawSizeText(QPainter &painter, const QRectF &selection) const;

    QPointer<QGraphicsScene> m_scene;
    QGraphicsView *m_view; ///< the parent; null when it is another kind of widget
    Mode m_mode = Region;
    std::array<SelectionRect, ModeCount> m_selections;
    qreal m_opacity = 0.5;
};
