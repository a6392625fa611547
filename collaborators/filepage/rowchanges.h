// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fileentry.h"

/// How one list of files becomes another: first the removals, then the insertions, each in its order.
struct RowChanges
{
    struct Range
    {
        int first = 0;
        int count = 0;
    };

    QVector<Range> removed;  ///< rows of the old list, the last range first
    QVector<Range> inserted; ///< rows of the new list, the first range first
    QVector<int> altered;    ///< rows of the new list whose file was written
    /// There are so many that beginning anew is cheaper; the lists above are empty then.
    bool isReset = false;

    bool IsEmpty() const { return !isReset && removed.isEmpty() && inserted.isEmpty() && altered.isEmpty(); }
};

/// Any thread.
RowChanges FindRowChanges(const FileEntries &before, const FileEntries &after);
