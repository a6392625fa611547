// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "orientation.h"
#include "picture.h"

/// What becomes of the samples of a bin: their mean keeps the range of the picture (integers are
/// rounded, halves away from zero), their sum is what a camera that bins on the chip would give
/// (integers stop at the ends of their type).
enum class Binning { Mean, Sum };

/// The samples laid anew; no sample changes its value.
Picture Oriented(const Picture &picture, Orientation orientation);

/// The part of the picture within `region`, picture pixels; null when they have no pixel in common.
Picture Cropped(const Picture &picture, const QRect &region);

/// One sample of each `columns` x `rows` pixels, counted from the top left; columns and rows at the
/// right and bottom that fill no bin are left out. Null when not even one bin is filled.
Picture Binned(const Picture &picture, int columns, int rows, Binning binning);
