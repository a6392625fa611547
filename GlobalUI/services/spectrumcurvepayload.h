// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRectF>

#include <cstddef>

class QMutex;

/// Row and column profile of the live picture, handed over as `void*` by
/// IntensityManager::SignalUpdateCurve(). The preview pipeline writes sizes, levels and the two fill
/// buffers; the GUI thread exchanges fill and show under `lock` and then draws the show buffers,
/// which the producer never writes.
struct SpectrumCurvePayload
{
    quint8 reserved0[8];
    /// Selected part of the image, fractions 0 to 1: left, top, right and bottom, the last two in
    /// the width and height slots.
    QRectF region;
    qint32 horizontalSize; ///< samples in each horizontal buffer
    qint32 verticalSize;   ///< samples in each vertical buffer
    quint8 reserved1[16];
    int *horizontalFill;
    int *verticalFill;
    int *horizontalShow;
    int *verticalShow;
    QMutex *lock; ///< guards the four pointers and the region
    quint8 reserved2[8];
    qint32 leftLevel;  ///< lower display level
    qint32 rightLevel; ///< upper display level
};

static_assert(offsetof(SpectrumCurvePayload, region) == 8, "layout is fixed");
static_assert(sizeof(QRectF) == 32, "layout is fixed");
static_assert(offsetof(SpectrumCurvePayload, horizontalSize) == 40, "layout is fixed");
static_assert(offsetof(SpectrumCurvePayload, verticalSize) == 44, "layout is fixed");
static_assert(offsetof(SpectrumCurvePayload, horizontalFill) == 64, "layout is fixed");
static_assert(offsetof(SpectrumCurvePayload, verticalFill) == 72, "layout is fixed");
static_assert(offsetof(SpectrumCurvePayload, horizontalShow) == 80, "layout is fixed");
static_assert(offsetof(SpectrumCurvePayload, verticalShow) == 88, "layout is fixed");
static_assert(offsetof(SpectrumCurvePayload, lock) == 96, "layout is fixed");
static_assert(offsetof(SpectrumCurvePayload, leftLevel) == 112, "layout is fixed");
static_assert(offsetof(SpectrumCurvePayload, rightLevel) == 116, "layout is fixed");
