// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "picture.h"

/// Divided by `reference`, a picture of an even field, and multiplied by its mean, channel by channel; a reference of one
/// channel is for all. Samples where the reference is no number above 0 stay. Null, with the reason in `error`, when the
/// two don't fit each other.
Picture FlatFielded(const Picture &picture, const Picture &reference, QString &error);
