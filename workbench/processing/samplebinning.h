// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "picture.h"
#include "processsettings.h"

/// Type that holds the sum of many samples of a type.
SampleType SumType(SampleType type);

QSize BinnedSize(const QSize &size, const BinningSettings &settings);
/// What is no number is left out; where there is none in a square, none is in the result. Null, with the reason in
/// `error`, when the picture is smaller than one square.
Picture Binned(const Picture &picture, const BinningSettings &settings, QString &error);
