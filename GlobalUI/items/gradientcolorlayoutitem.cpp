// SPDX-License-Identifier: GPL-3.0-or-later
#include "gradientcolorlayoutitem.h"

#include "colorbarcells.h"

#include <QPainter>

namespace {

constexpr int GreyLevels = 256;

} // namespace

GradientColorLayoutItem::GradientColorLayoutItem(QWidget *parent)
    : ComponentWithBordersItem(parent)
{
    colors.reserve(GreyLevels);
    for (int grey = 0; grey < GreyLevels; ++grey)
        colors.append(QColor(grey, grey, grey, 255));
}

void GradientColorLayoutItem::changedPalette(QVector<QColor> pal)
{
    if (!colors.isSharedWith(pal))
        colors = pal;
    emit changeColors(colors);
    update();
}

void GradientColorLayoutItem::OnItemSizeChanged(QSize size)
{
    cells = ComputeColorBarCells(size, borderWidth);
}

void GradientColorLayoutItem::DrawContent(QPainter *painter)
{
    if (cells.isEmpty() || colors.isEmpty())
        return;
    const int step = ComputeColorBarStep(colors.size(), cells.size());
    for (int cell = 0; cell < cells.size(); ++cell)
        painter->fillRect(cells.at(cell), QBrush(colors.at(cell * step), Qt::SolidPattern));
}
