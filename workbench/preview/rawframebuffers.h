// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "rawcameraframe.h"

#include <QtGlobal>

#include <array>
#include <vector>

class QImage;

/// The raw frame record and the one after it. The preview thread fills the back record while the GUI
/// thread reads the front one; Swap() runs in the GUI thread, between two pictures, when the back
/// record is complete. Pixels are those of the picture as it is shown, so both drawing paths agree.
class RawFrameBuffers
{
public:
    /// The samples of an 8-bit grey or RGB picture, rows packed.
    void FillBack(const QImage &picture);
    void Swap();
    /// Null before the first Swap().
    const RawCameraFrame *Front() const;

private:
    struct Record
    {
        RawCameraFrame frame = {};
        std::vector<uchar> bytes;
    };

    std::array<Record, 2> m_records;
    int m_front = 0;
    bool m_hasFront = false;
};
