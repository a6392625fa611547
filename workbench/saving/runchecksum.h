// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "runfacts.h"

#include <functional>

class Picture;

/// Checksums of recorded samples: XXH3 with 64 bits of each frame's packed rows, top row first, 16-bit samples in
/// little-endian order; and of a run, XXH3 of its frames' checksums in their order, as little-endian numbers.
namespace RunChecksum {

/// Of a frame without padding.
quint64 OfFrame(const void *samples, qint64 bytes);
quint64 OfRun(const QVector<FrameStamp> &stamps);
/// Reads the recording back and works it out anew; `files` are those of RunWriter::Files(). False and `error` in words
/// when a file can't be read. Takes as long as reading does; `isCancelled` is asked before each frame and ends it
/// without an error.
bool OfFiles(const QStringList &files, quint64 *checksum, QString *error,
             const std::function<bool()> &isCancelled = {});
QString ToText(quint64 checksum);

} // namespace RunChecksum
