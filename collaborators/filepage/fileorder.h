// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fileentry.h"

/// Which files of a folder are listed, and in which order.
struct FileOrder
{
    enum Key
    {
        ByName, ///< as people count: run2 before run10
        ByDate,
        BySize,
        ByType
    };

    Key key = ByName;
    bool descending = false;
    /// Part of the names, or a pattern with * and ?; whether letters are capital makes no difference.
    QString filter;

    bool operator==(const FileOrder &other) const
    {
        return key == other.key && descending == other.descending && filter == other.filter;
    }
};

/// Files that are alike by the key stand by name. Any thread.
FileEntries Arranged(const FileEntries &entries, const FileOrder &order);
