// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "runfacts.h"

#include <QStringList>

/// Gaps in the frame ids: runs of ids that are missing.
struct IdGap
{
    quint64 first = 0;
    quint64 count = 0;
};
QVector<IdGap> FindGaps(const QVector<FrameStamp> &stamps);

/// Frames a second between the first and the last frame, by the host's clock; 0 for fewer than two frames.
double AverageRate(const QVector<FrameStamp> &stamps);

/// For people: how the run ended, its counts with the place of each loss, the gaps, the rate and the checksum.
QVector<std::pair<QString, QString>> OutcomeLines(const RunOutcome &outcome,
                                                  const QVector<FrameStamp> &stamps);

/// Beside the recording: "name.tif" has "name.txt".
QString RunSummaryPath(const QString &recording);
/// Everything about a recording to be read by people. An existing file is kept; false when it could not be written.
bool WriteRunSummary(const QString &path, const RunFacts &facts, const RunOutcome &outcome,
                     const QVector<FrameStamp> &stamps, const QStringList &files);
