// SPDX-License-Identifier: GPL-3.0-or-later
#include "rulertexts.h"

namespace {

constexpr double LabelBelowTick = 6.0;
constexpr double LabelLeftOfTick = 4.0;
constexpr double TitleRightOfEdge = 4.0;

} // namespace

std::optional<QPoint> HorizontalLabelOrigin(const QLineF &tick, double textWidth, double lineHeight, int widgetWidth)
{
    if (tick.x2() + textWidth / 2 > widgetWidth)
        return std::nullopt;
    return QPoint(int(tick.x2() - textWidth / 2), int(tick.y2() + lineHeight / 2 + LabelBelowTick));
}

std::optional<QPoint> VerticalLabelOrigin(const QLineF &tick, double textWidth, double lineHeight, int widgetHeight)
{
    const double halfHeight = lineHeight / 2 - 1.0;
    const double bottom = tick.y2() + halfHeight;
    const double top = tick.y2() - halfHeight;
    if (bottom > widgetHeight || top < 0.0)
        return std::nullopt;
    return QPoint(int(tick.x2() - textWidth - LabelLeftOfTick), int(bottom));
}

QPoint HorizontalTitleOrigin(QSize itemSize, double textWidth, double lineHeight)
{
    return QPoint(int((itemSize.width() - textWidth) / 2), int(itemSize.height() - lineHeight));
}

QPoint VerticalTitleOrigin(QSize itemSize, double textWidth, double lineHeight)
{
    return QPoint(int(-(itemSize.height() + textWidth) / 2), int(lineHeight + TitleRightOfEdge));
}
