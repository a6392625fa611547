// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "picture.h"

#include <functional>

/// Pictures of random samples, the same at every run, and their samples whatever the type.
namespace RandomPicture {

/// Integers from all over their type, but of 32 bit only 24, which is what a test can add up exactly; floating point from
/// -1000 to 1000. `gaps` samples of floating point are no numbers.
Picture Make(const QSize &size, int channels, SampleType type, quint32 seed, int gaps = 0);
double At(const Picture &picture, int x, int y, int channel);
void Set(Picture &picture, int x, int y, int channel, double value);
/// What a sample of the type holds of a value: rounded, halves to the even number, and limited.
double Stored(double value, SampleType type);

/// The value expected at a place.
using Expected = std::function<double(int x, int y, int channel)>;
/// Where and how a picture differs by more than `tolerance` from what is expected; empty when it doesn't. What is no
/// number is expected as such.
QString Difference(const Picture &picture, const Expected &expected, double tolerance = 0);
/// Rows for tests: every type, one channel and three, sizes that are one pixel, one row, one column, odd.
void AddShapes();

} // namespace RandomPicture
