// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "spelayout.h"

#include <QByteArray>

/// What the XML at the end of an SPE 3 file says of the data: fills frames, stride, sample type, regions, axes and
/// metadata as written there; nothing is checked against the file's size.
bool ReadSpeFooter(const QByteArray &xml, SpeLayout &layout, FileFault &fault);
