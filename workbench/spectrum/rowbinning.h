// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <vector>

struct SampleView;

/// A spectrum as the sensor gives it.
struct BinnedLine
{
    std::vector<quint32> sums;
    /// 1 where any sample of the sum was at the end of its range: its value says "at least".
    std::vector<quint8> saturated;
};

/// Full vertical binning: one sum for each column, of the rows from `top` to before `bottom`. Rows beyond the picture
/// count nothing. A colour picture gives the sum of its three channels. Both halves of the rows are summed at once.
void BinRows(const SampleView &picture, int top, int bottom, BinnedLine *line);

/// The other direction: one sum for each row, of the columns from `left` to before `right`.
void BinColumns(const SampleView &picture, int left, int right, BinnedLine *line);
