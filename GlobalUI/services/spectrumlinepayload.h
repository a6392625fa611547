// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <cstddef>

class QMutex;

/// One binned line (FVB), as many values as the frame is wide, or high when the spectrum runs along the
/// columns; or the lines of all tracks one after another (multi-track), each as many values as the frame is wide. The spectrum pipeline writes the fill buffer and the two extremes;
/// the GUI thread exchanges fill and show under `lock` and draws the show buffer.
struct SpectrumLinePayload
{
    quint8 reserved0[8];
    unsigned int *fill;
    unsigned int *show;
    QMutex *lock;
    qint32 minimum; ///< smallest value of all tracks
    qint32 maximum; ///< largest value of all tracks
};

static_assert(offsetof(SpectrumLinePayload, fill) == 8, "layout is fixed");
static_assert(offsetof(SpectrumLinePayload, show) == 16, "layout is fixed");
static_assert(offsetof(SpectrumLinePayload, lock) == 24, "layout is fixed");
static_assert(offsetof(SpectrumLinePayload, minimum) == 32, "layout is fixed");
static_assert(offsetof(SpectrumLinePayload, maximum) == 36, "layout is fixed");
