// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "rowbinning.h"

#include <QPoint>

#include <vector>

/// The row and the column profile of a picture through a picked point. Each is the mean of a band of lines around the
/// point: rows for the row profile, columns for the column profile. A band that would leave the picture is cut off
/// there and is the mean of what is left. A pixel of a colour picture counts as the mean of its three channels.
/// Means are rounded to the nearest whole number, halves up. Keeps its memory from one picture to the next.
class PickedProfiles
{
public:
    /// Lines of the widest band that is offered.
    static constexpr int MostLines = 101;

    /// A point beyond the picture is moved to its edge, a band of less than one line is one line. False for a picture
    /// without samples; then the profiles are empty.
    bool Extract(const SampleView &picture, const QPoint &point, int lines);
    /// One value for each column, and for each row, of the picture.
    const std::vector<int> &Row() const { return m_row; }
    const std::vector<int> &Column() const { return m_column; }

private:
    BinnedLine m_binned;
    std::vector<int> m_row;
    std::vector<int> m_column;
};

/// Lines from `first` to before `end`.
struct ProfileBand
{
    int first;
    int end;

    int Count() const { return end - first; }
};

/// So many lines around `centre`, as far as a side of `size` lines has them; of an even number one more before the
/// centre than behind.
ProfileBand BandAround(int centre, int lines, int size);
