// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRectF>
#include <QSize>
#include <QVector>

/// 32 equal cells of whole pixels from left to right, and a narrower one for the pixels left over.
QVector<QRectF> ComputeColorBarCells(QSize itemSize, int borderWidth);

/// From cell to cell the palette is read so many entries on; 0 shows the first entry everywhere.
int ComputeColorBarStep(int colorCount, int cellCount);
