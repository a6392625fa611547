// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

/// What the system knows of this process.
namespace ProcessFacts {

/// Milliseconds since the process was started; in steps of the system clock's tick (10 ms).
qint64 AgeMs();
/// The most memory that the process ever had in use, in MB; 0 where the system does not tell.
int PeakMemoryMB();

} // namespace ProcessFacts
