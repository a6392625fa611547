// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// A time as a person sets it: minutes, seconds and milliseconds.
struct TIME_MIN_S_MS
{
    int minutes = 0;
    int seconds = 0;
    int milliseconds = 0;
};
