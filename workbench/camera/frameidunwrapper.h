// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

/// Turns a camera's frame ids into a count that never wraps, and tells how many frames are missing in between.
/// GigE Vision ids have 16 bits and go from 65535 to 1 (0 is never used); a camera with longer ids passes unchanged.
class FrameIdUnwrapper
{
public:
    struct Step
    {
        quint64 id;
        quint64 missing; ///< frames between this one and the one before
    };

    Step Next(quint64 cameraId);
    /// The next id is the first of a new run: nothing is missing before it.
    void Reset();

private:
    bool m_hasLast = false;
    quint64 m_lastCameraId = 0;
    quint64 m_lastId = 0;
};
