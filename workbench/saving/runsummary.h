// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "filefault.h"
#include "runfacts.h"

#include <QStringList>

/// Ids that are missing among the frames that were saved, and those lost before the first or after the last of them.
QVector<IdGap> MissingIds(const RunOutcome &outcome, const QVector<FrameStamp> &stamps);

/// Frames a second between the first and the last frame, by the host's clock; 0 for fewer than two frames.
double AverageRate(const QVector<FrameStamp> &stamps);

/// For people: how the run ended, its counts with the place of each loss, the ids that are missing (a time-lapse leaves
/// out ids on purpose and tells none), the rate and the checksum.
QVector<std::pair<QString, QString>> OutcomeLines(const RunFacts &facts, const RunOutcome &outcome,
                                                  const QVector<FrameStamp> &stamps);

/// Everything about a recording to be read by people, in a file beside it: "name.tif" has "name.txt" or, when that is
/// taken, "name.tif.txt", "name.tif.2.txt" and so on. Gives back its path; empty when it could not be written.
QString WriteRunSummary(const QString &recording, const RunFacts &facts, const RunOutcome &outcome,
                        const QVector<FrameStamp> &stamps, const QStringList &files, FileFault &fault);
