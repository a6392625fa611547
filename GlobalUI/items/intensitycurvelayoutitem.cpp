// SPDX-License-Identifier: GPL-3.0-or-later
#include "intensitycurvelayoutitem.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cstring>

IntensityCurveLayoutItem::IntensityCurveLayoutItem(QWidget *parent)
    : ComponentWithBordersItem(parent)
{
    SetItemSize(400, 50);
}

void IntensityCurveLayoutItem::SetCurvePenWidth(int width)
{
    curvePenWidth = width;
    update();
}

void IntensityCurveLayoutItem::SetCurvePenStyle(int style)
{
    curvePenStyle = style;
    update();
}

void IntensityCurveLayoutItem::SetCurveColor(QColor color)
{
    curveColor = color;
    update();
}

void IntensityCurveLayoutItem::updateCurve(ushort *data, int size)
{
    if (!data || size < 1)
        return;
    EnsureCapacity(size);
    // Raw: two of the 16-bit samples fill one of ours.
    std::memcpy(samples.data(), data, size_t(size) * sizeof(ushort));
    ShowSamples();
}

void IntensityCurveLayoutItem::updateCurve(int *data, int size, int offset, int counts)
{
    if (!data || size < 1 || offset < 0 || offset > size || counts < 0 || counts > size - offset)
        return;
    EnsureCapacity(counts);
    std::copy_n(data + offset, counts, samples.begin());
    ShowSamples();
}

void IntensityCurveLayoutItem::setLeftAndRightLevel(int left, int right)
{
    leftLevel = left;
    rightLevel = right;
}

void IntensityCurveLayoutItem::setShift(int bits)
{
    shift = bits;
}

void IntensityCurveLayoutItem::DrawAnchor(QPainter *) {}

void IntensityCurveLayoutItem::MapToAxis(QPointF, QPointF &) {}

void IntensityCurveLayoutItem::EnsureCapacity(int count)
{
    if (count > 0 && size_t(count) != samples.size())
        samples.assign(size_t(count), 0);
}

void IntensityCurveLayoutItem::DrawContent(QPainter *painter)
{
    painter->setPen(QPen(QBrush(curveColor), curvePenWidth, Qt::PenStyle(curvePenStyle)));
    if (curvePenStyle == Qt::SolidLine)
        painter->drawLines(curveLines);
    else
        painter->drawPolyline(CurvePoints()); // dashes begin anew with each line, and these are a pixel long
    DrawAnchor(painter);
}

QPolygonF IntensityCurveLayoutItem::CurvePoints() const
{
    QPolygonF points;
    points.reserve(curveLines.size() + 1);
    for (const QLineF &line : curveLines)
        points.append(line.p1());
    if (!curveLines.isEmpty())
        points.append(curveLines.last().p2());
    return points;
}

void IntensityCurveLayoutItem::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        pressPosition = QCursor::pos();
    QWidget::mousePressEvent(event);
}

CurveWindow IntensityCurveLayoutItem::Window() const
{
    return {itemSize, borderWidth, leftLevel, rightLevel};
}

QPen IntensityCurveLayoutItem::AnchorPen() const
{
    return QPen(QBrush(borderColor), borderWidth);
}

void IntensityCurveLayoutItem::ResizeToItem(QSize size)
{
    resize(size + QSize(borderWidth, borderWidth));
}

void IntensityCurveLayoutItem::ShowSamples()
{
    if (reversed)
        std::reverse(samples.begin(), samples.end());
    BuildCurve();
    update();
}
