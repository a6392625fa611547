// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

/// Bytes that the machine can still give without taking them from other programs; -1 when it doesn't say.
qint64 AvailableMemory();
