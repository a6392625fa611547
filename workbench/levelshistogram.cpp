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
    return value * width() / (1 << m_report.bitDepth);
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
    const double columnWidth = double(width()) / m_report.histogram.size();
    QPainterPath outline;
    outline.moveTo(0, height());
    for (int column = 0; column < m_report.histogram.size(); ++column) {
        const double top = height() * (1.0 - ColumnHeight(m_report.histogram.at(column), most));
        outline.lineTo(column * columnWidth, top);
        outline.lineTo((column + 1) * columnWidth, top);
    }
    outline.lineTo(width(), height());
    painter.fillPath(outline, palette().mid());
}

void LevelsHistogram::PaintLevels(QPainter &painter)
{
    const DisplayLevels &levels = m_report.levels;
    const double left = PositionOf(levels.left + 0.5);
    const double right = PositionOf(levels.right + 0.5);
    painter.setPen(QPen(palette().highlight(), 1.0, Qt::DashLine));
    painter.drawLine(QPointF(left, 0), QPointF(left, height()));
    painter.drawLine(QPointF(right, 0), QPointF(right, height()));

    QPainterPath grey(QPointF(0, height() - 1));
    for (int step = 0; step <= CurveSteps; ++step) {
        const double part = double(step) / CurveSteps;
        grey.lineTo(left + (right - left) * part, (height() - 1) * (1.0 - std::pow(part, 1.0 / levels.gamma)));
    }
    grey.lineTo(width(), 0);
    painter.setPen(QPen(palette().highlight(), 1.5));
    painter.drawPath(grey);
}
