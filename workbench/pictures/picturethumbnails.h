// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "thumbnailmaker.h"

#include <QMutex>

/// Thumbnails of every format that can be opened: pictures of 8 bits as they are, all others between levels
/// found from their samples. Any thread, several at once.
class PictureThumbnails : public ThumbnailMaker
{
public:
    QStringList Suffixes() const override;
    QImage Make(const QString &path, int edge, QString &fault) override;

private:
    QMutex m_large; ///< one large frame at a time is in memory
};
