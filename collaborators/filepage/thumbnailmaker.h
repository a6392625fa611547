// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QString>
#include <QStringList>

/// Opens picture files for the file page, which itself knows no format. The host has one and gives it to
/// FileThumbnail.
class ThumbnailMaker
{
public:
    virtual ~ThumbnailMaker() = default;

    /// Endings of the files that can be opened: lower case, without a dot.
    virtual QStringList Suffixes() const = 0;
    /// The picture, at most `edge` pixels wide and high, never enlarged. Null when it cannot be made, and
    /// then `fault` says why. Called by several background threads at once.
    virtual QImage Make(const QString &path, int edge, QString &fault) = 0;
};
