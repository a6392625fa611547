// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "picture.h"
#include "processsettings.h"

/// Type that holds the sum of many samples of a type.
SampleType SumType(SampleType type);

/// The size of the settings, within its limits.
int BinningSide(const BinningSettings &settings);
QSize BinnedSize(const QSize &size, const BinningSettings &settings);
/// A square with a sample that is no number becomes one that is none. Null, with the reason in
/// `error`, when the picture is smaller than one square.
Picture BinnedBy(const Picture &picture, const BinningSettings &settings, QString &error);
