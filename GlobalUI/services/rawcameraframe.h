// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <cstddef>

/// The current raw camera frame, a record of the camera layer with a fixed layout.
/// The preview service writes it in its own thread before it announces the frame and keeps record
/// and buffer valid and unchanged while the GUI thread paints; the GPU drawing path reads it
/// without a lock. Pixels begin at `buffer + headerLength`: 8 bits per channel, rows packed.
struct RawCameraFrame
{
    quint8 reserved0[8];
    quint16 headerLength; ///< bytes before the first pixel
    quint8 reserved1[2];
    quint16 width;  ///< pixels
    quint16 height; ///< pixels
    quint8 reserved2[6];
    quint8 channels; ///< 1 grey, 3 RGB
    quint8 reserved3[25];
    uchar *buffer;
};

static_assert(offsetof(RawCameraFrame, headerLength) == 8, "layout is fixed");
static_assert(offsetof(RawCameraFrame, width) == 12, "layout is fixed");
static_assert(offsetof(RawCameraFrame, height) == 14, "layout is fixed");
static_assert(offsetof(RawCameraFrame, channels) == 22, "layout is fixed");
static_assert(offsetof(RawCameraFrame, buffer) == 48, "layout is fixed");
static_assert(sizeof(RawCameraFrame) == 56, "layout is fixed");
