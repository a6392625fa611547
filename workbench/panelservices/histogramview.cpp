// SPDX-License-Identifier: GPL-3.0-or-later
#include "histogramview.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace {
constexpr QSize UsualSize(360, 120);
constexpr int CurveSteps = 48;
} // namespace

HistogramView::HistogramView(QWidget *parent)
    : QWidget(parent)
{
    setObjectName("histogramView");
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumHeight(UsualSize.height() / 2);
}

void HistogramView::SetCurve(const HistogramCurve &curve)
{
    m_curve = curve;
    update();
}

QSize HistogramView::sizeHint() const { return UsualSize; }

double HistogramView::ColumnHeight(qint64 count, qint64 mostCount)
{
    return count > 0 ? std::log1p(double(count)) / std::log1p(double(mostCount)) : 0.0;
}

double HistogramView::PositionOf(double value) const
{
    return (value / 2 - From() / 2) / (To() / 2 - From() / 2) * width(); // of halves: no infinite width
}

double HistogramView::From() const
{
    return m_curve.hasLevels ? std::min(m_curve.from, m_curve.left) : m_curve.from;
}

double HistogramView::To() const
{
    return m_curve.hasLevels ? std::max(m_curve.to, m_curve.right) : m_curve.to;
}

void HistogramView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    if (m_curve.counts.isEmpty())
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    PaintColumns(painter);
    if (m_curve.hasLevels)
        PaintLevels(painter);
}

void HistogramView::PaintColumns(QPainter &painter)
{
    const qint64 most = *std::max_element(m_curve.counts.cbegin(), m_curve.counts.cend());
    const double first = PositionOf(m_curve.from);
    const double columnWidth = (PositionOf(m_curve.to) - first) / m_curve.counts.size();
    QPainterPath outline;
    outline.moveTo(first, height());
    for (int column = 0; column < m_curve.counts.size(); ++column) {
        const double top = height() * (1.0 - ColumnHeight(m_curve.counts.at(column), most));
        outline.lineTo(first + column * columnWidth, top);
        outline.lineTo(first + (column + 1) * columnWidth, top);
    }
    outline.lineTo(first + m_curve.counts.size() * columnWidth, height());
    painter.fillPath(outline, palette().mid());
}

void HistogramView::PaintLevels(QPainter &painter)
{
    const double left = PositionOf(m_curve.left);
    const double right = PositionOf(m_curve.right);
    painter.setPen(QPen(palette().highlight(), 1.0, Qt::DashLine));
    painter.drawLine(QPointF(left, 0), QPointF(left, height()));
    painter.drawLine(QPointF(right, 0), QPointF(right, height()));

    QPainterPath grey(QPointF(0, height() - 1));
    for (int step = 0; step <= CurveSteps; ++step) {
        const double part = double(step) / CurveSteps;
        grey.lineTo(left + (right - left) * part,
                    (height() - 1) * (1.0 - std::pow(part, 1.0 / m_curve.gamma)));
    }
    grey.lineTo(width(), 0);
    painter.setPen(QPen(palette().highlight(), 1.5));
    painter.drawPath(grey);
}
