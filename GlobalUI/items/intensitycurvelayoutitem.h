// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "componentwithbordersitem.h"
#include "intensitypolyline.h"

#include <QCursor>
#include <QPolygonF>

/// A profile plot beside the spectrum image, with a line at the cross-section in the other direction.
/// It keeps its own copy of the samples; new levels show with the next samples.
class IntensityCurveLayoutItem : public ComponentWithBordersItem
{
    Q_OBJECT

public:
    explicit IntensityCurveLayoutItem(QWidget *parent);

    /// Pixels.
    void SetCurvePenWidth(int width);
    /// A Qt::PenStyle.
    void SetCurvePenStyle(int style);
    void SetCurveColor(QColor color);
    /// Bits that the samples have beyond 8; the drawing goes by the levels alone.
    int GetShift() const { return shift; }

public slots:
    void updateCurve(ushort *data, int size);
    /// The `counts` samples of `data` from `offset` on fill the whole curve; what lies outside the
    /// `size` samples is ignored, and none redraws the last ones. `data` is read during the call only.
    void updateCurve(int *data, int size, int offset, int counts);
    /// Intensities at the baseline and at the far edge.
    void setLeftAndRightLevel(int leftLevel, int rightLevel);
    void setShift(int shift);

signals:
    /// Widget pixels dragged along the curve.
    void scrollDistance(int distance);

protected:
    virtual void BuildCurve() = 0;
    virtual void DragTo(QPointF pos) = 0;
    virtual void DrawAnchor(QPainter *painter);
    virtual void MapToAxis(QPointF in, QPointF &out);
    virtual void EnsureCapacity(int count);

    void DrawContent(QPainter *painter) override;
    void mousePressEvent(QMouseEvent *event) override;

    CurveWindow Window() const;
    QPen AnchorPen() const;
    /// The item and its border, where the widget stands.
    void ResizeToItem(QSize size);

    int curvePenWidth = 1;
    QColor curveColor{40, 128, 140};
    int curvePenStyle = Qt::SolidLine;
    bool reversed = false;
    std::vector<int> samples;
    int leftLevel = 0;
    int rightLevel = 255;
    int shift = 0;
    QPointF pressPosition; ///< screen
    QCursor handCursor{Qt::OpenHandCursor};
    QVector<QLineF> curveLines;

private:
    void ShowSamples();
    QPolygonF CurvePoints() const;
};
