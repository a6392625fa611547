// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "runfacts.h"

/// Recordings of known samples.
namespace RunSample {

RunFacts Facts(const QSize &size, PixelLayout layout);

/// Sample i of the packed samples of frame f is (7 * i + 31 * f) modulo (full scale + 1). Every row is followed by
/// `paddingBytes` of something else. Frame ids count from 100, camera times by 1 ms, host times by 2 ms.
CameraFrame Frame(const QSize &size, PixelLayout layout, int frame, int paddingBytes = 0);

/// The samples of that frame, packed.
QByteArray Samples(const QSize &size, PixelLayout layout, int frame);

} // namespace RunSample
