// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVector>

/// Where the pages of a TIFF file are: the chain of its directories, followed without decoding them.
struct TiffChain
{
    bool isBigTiff = false;
    bool isBigEndian = false;
    /// Byte offsets of the directories of full pages; thumbnails and masks are left out.
    QVector<quint64> pages;
    /// Why the chain ended before its end, as a clause; empty when it was followed whole.
    QString fault;
};

/// `fd` is an open file; its position is not moved.
TiffChain ReadTiffChain(int fd, qint64 fileSize);
