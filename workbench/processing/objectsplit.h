// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <opencv2/core.hpp>

/// Gives the objects of a mask, CV_8U, different numbers above 0, in no special order: CV_32S, 0 for what is outside. Objects
/// are flooded from their innermost points, the pixels farthest from the outside, outwards; where two such lakes meet they
/// are one object unless both are more than `depthPx` deeper than the place where they meet.
cv::Mat SplitObjects(const cv::Mat &mask, double depthPx);
