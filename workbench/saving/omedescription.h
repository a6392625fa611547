// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "runfacts.h"

#include <QByteArray>

/// The OME-XML text (schema 2016-06) of a recording in one TIFF file: one channel, its frames as time points; the
/// camera, the time of each frame from the first one, and as key and value what the schema has no place for.
QByteArray OmeDescription(const RunFacts &facts, const RunOutcome &outcome, const QVector<FrameStamp> &stamps,
                          const QString &path);
