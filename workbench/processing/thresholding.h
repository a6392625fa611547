// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "picture.h"
#include "processsettings.h"

#include <vector>

/// The first index of the upper of the two classes that a histogram separates into best: with the greatest variance
/// between their means (Otsu, 1979). Among equals the middle one, so that the level stands midway in a gap. 0 when all
/// counts are in one place.
int OtsuIndex(const std::vector<qint64> &counts);
/// Level of a channel: samples from it on are the upper class. Samples of up to 16 bit are counted value by value, all
/// others in 4096 equal ranges from the smallest to the largest number.
double OtsuLevel(const Picture &picture, int channel);

/// Channel by channel.
Picture Thresholded(const Picture &picture, const ThresholdSettings &settings);
