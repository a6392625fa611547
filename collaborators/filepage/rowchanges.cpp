// SPDX-License-Identifier: GPL-3.0-or-later
#include "rowchanges.h"

#include <QHash>

#include <algorithm>

namespace {

/// Each range costs a pass over what lies behind it.
constexpr int MostRanges = 64;

/// Neighbouring rows of `rows`, which ascend, as ranges.
QVector<RowChanges::Range> Ranges(const QVector<int> &rows)
{
    QVector<RowChanges::Range> ranges;
    for (const int row : rows) {
        if (!ranges.isEmpty() && ranges.last().first + ranges.last().count == row)
            ++ranges.last().count;
        else
            ranges.append({row, 1});
    }
    return ranges;
}

} // namespace

RowChanges FindRowChanges(const FileEntries &before, const FileEntries &after)
{
    QHash<QString, int> rowsAfter;
    rowsAfter.reserve(after.size());
    for (int row = 0; row < after.size(); ++row)
        rowsAfter.insert(after[row].name, row);

    // What changed its place among those that stay is removed and inserted again.
    QVector<int> removed;
    QVector<bool> stays(after.size(), false);
    RowChanges changes;
    int last = -1;
    for (int row = 0; row < before.size(); ++row) {
        const int rowAfter = rowsAfter.value(before[row].name, -1);
        if (rowAfter <= last) {
            removed.append(row);
            continue;
        }
        last = rowAfter;
        stays[rowAfter] = true;
        if (before[row] != after[rowAfter])
            changes.altered.append(rowAfter);
    }
    QVector<int> inserted;
    for (int row = 0; row < after.size(); ++row) {
        if (!stays[row])
            inserted.append(row);
    }
    changes.removed = Ranges(removed);
    std::reverse(changes.removed.begin(), changes.removed.end());
    changes.inserted = Ranges(inserted);
    if (changes.removed.size() + changes.inserted.size() + changes.altered.size() > MostRanges) {
        changes = RowChanges();
        changes.isReset = true;
    }
    return changes;
}
