// SPDX-License-Identifier: GPL-3.0-or-later
#include "colorbarcells.h"

namespace {

constexpr int EqualCells = 32;

} // namespace

QVector<QRectF> ComputeColorBarCells(QSize itemSize, int borderWidth)
{
    QVector<QRectF> cells;
    if (itemSize.width() < 0)
        return cells;
    const double cellWidth = itemSize.width() / EqualCells;
    const int remainder = itemSize.width() % EqualCells;
    for (int i = 0; i < EqualCells; ++i)
        cells.append(QRectF(i * cellWidth + borderWidth, borderWidth, cellWidth, itemSize.height()));
    if (remainder >= 1)
        cells.append(QRectF(EqualCells * cellWidth + borderWidth, borderWidth, remainder, itemSize.height()));
    return cells;
}

int ComputeColorBarStep(int colorCount, int cellCount)
{
    return cellCount > 0 ? colorCount / cellCount : 0;
}
