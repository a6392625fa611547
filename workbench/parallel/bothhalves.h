// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "threadelsewhere.h"

#include <thread>

/// Calls work(from, to) for the two halves of 0 to `count` at the same time, one of them in a thread of its own, and
/// returns when both are done. Less than `worthwhile` is done in one call, as is everything with a single processor: a
/// thread costs some ten microseconds.
template <typename Count, typename Work>
void ForBothHalves(Count count, Count worthwhile, Work work)
{
    if (count < worthwhile || std::thread::hardware_concurrency() < 2) {
        work(Count(0), count);
        return;
    }
    const Count half = count / 2;
    const ThreadElsewhere other([&] { work(half, count); });
    work(Count(0), half);
}
