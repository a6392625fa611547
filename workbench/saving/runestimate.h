// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "recordingsettings.h"

/// What there is for a run; -1 where it is not known.
struct RunResources
{
    qint64 freeDiskBytes = -1;
    qint64 freeMemoryBytes = -1;

    /// What frames kept in memory may take, with room left for the system and the program; -1 when not known.
    qint64 MemoryForFrames() const;

    /// Of the folder and of the machine. Looks at the disk: not for the GUI thread.
    static RunResources Read(const QString &folder);
};

/// What a run will take, against what there is.
struct RunEstimate
{
    qint64 frames = -1; ///< -1: until it is stopped
    qint64 bytes = -1;
    qint64 framesThatFit = -1;
    QString warning; ///< in words, empty when all fits

    static RunEstimate Make(const RecordingSettings &settings, qint64 frameBytes, double framesPerSecond,
                            const RunResources &resources);
};

/// "12.3 GB", in decimal units.
QString ByteText(qint64 bytes);
