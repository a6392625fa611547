// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "picture.h"
#include "processsettings.h"

#include <functional>

/// Gives frame `index`; false, with the reason in `error`, when it can't.
using FrameReader = std::function<bool(int index, Picture &frame, QString &error)>;
/// The result is not wanted any more.
using IsUnwanted = std::function<bool()>;

/// Type of the result for frames of `type`.
SampleType ProjectedType(SampleType type, const ProjectionSettings &settings);

/// Memory for the samples of a median.
constexpr qint64 MedianBytes = qint64(512) << 20;

/// One picture of `frames` frames of the same size and kind. They are read one after the other; for the median, which
/// needs all samples of a place at once, as often as it takes with about `medianBytes` of memory. Null, with the reason
/// in `error`, when that is not possible; null without a reason when `isUnwanted` said so between two frames.
Picture Projected(const ProjectionSettings &settings, int frames, const FrameReader &read,
                  const IsUnwanted &isUnwanted, QString &error, qint64 medianBytes = MedianBytes);
