// SPDX-License-Identifier: GPL-3.0-or-later
#include "levelshistogram.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace {
constexpr QSize UsualSize(360, 120);
constexpr int CurveSteps = 48;
}

LevelsHistogram::LevelsHistogram(QWidget *parent)
    : QWidget(parent)
{
    setObjectName("levelsHistogram");
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumHeight(UsualSize.height() / 2);
}

void LevelsHistogram::SetReport(const LevelsReport &report)
{
    m_report = report;
    update();
}

QSize LevelsHistogram::sizeHint() const
{
    return UsualSize;
}

double LevelsHistogram::ColumnHeight(qint64 count, qint64 mostCount)
{
    return count > 0 ? std::log1p(double(count)) / std::log1p(double(mostCount)) : 0.0;
}

double LevelsHistogram::PositionOf(double value) const
{
    const SampleRange span = Span();
    return (value / 2 - span.left / 2) / (span.right / 2 - span.left / 2) * width(); // of halves: no infinite width
}

SampleRange LevelsHistogram::Span() const
{
    return { std::min(m_report.axis.left, m_report.levels.left), std::max(m_report.axis.right, m_report.levels.right) };
}

void LevelsHistogram::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    if (m_report.histogram.isEmpty())
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    PaintColumns(painter);
    PaintLevels(painter);
}

void LevelsHistogram::PaintColumns(QPainter &painter)
{
    const qint64 most = *std::max_element(m_report.histogram.cbegin(), m_report.histogram.cend());
    const double first = PositionOf(m_report.axis.left);
    const double columnWidth = (PositionOf(m_report.axis.right) - first) / m_report.histogram.size();
    QPainterPath outline;
    outline.moveTo(first, height());
    for (int column = 0; column < m_report.histogram.size(); ++column) {
        const double top = height() * (1.0 - ColumnHeight(m_report.histogram.at(column), most));
        outline.lineTo(first + column * columnWidth, top);
        outline.lineTo(first + (column + 1) * columnWidth, top);
    }
    outline.lineTo(first + m_report.histogram.size() * columnWidth, height());
    painter.fillPath(outline, palette().mid());
}

void LevelsHistogram::PaintLevels(QPainter &painter)
{
    const double left = PositionOf(m_report.levels.left);
    const double right = PositionOf(m_report.levels.right);
    painter.setPen(QPen(palette().highlight(), 1.0, Qt::DashLine));
    painter.drawLine(QPointF(left, 0), QPointF(left, height()));
    painter.drawLine(QPointF(right, 0), QPointF(right, height()));

    QPainterPath grey(QPointF(0, height() - 1));
    for (int step = 0; step <= CurveSteps; ++step) {
        const double part = double(step) / CurveSteps;
        grey.lineTo(left + (right - left) * part, (height() - 1) * (1.0 - std::pow(part, 1.0 / m_report.gamma)));
    }
    grey.lineTo(width(), 0);
    painter.setPen(QPen(palette().highlight(), 1.5));
    painter.drawPath(grey);
}
