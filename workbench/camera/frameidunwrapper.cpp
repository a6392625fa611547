// SPDX-License-Identifier: GPL-3.0-or-later
#include "frameidunwrapper.h"

namespace {
constexpr quint64 kShortIdMaximum = 65535;

/// How far the id went on; 0 when it went back, which is a camera that began to count anew.
quint64 Advance(quint64 from, quint64 to)
{
    if (to > from)
        return to - from;
    if (from > kShortIdMaximum)
        return 0;
    // 65535 is followed by 1. More than half a round is no gap but a step back.
    const quint64 advance = to + kShortIdMaximum - from;
    return advance <= kShortIdMaximum / 2 ? advance : 0;
}
} // namespace

FrameIdUnwrapper::Step FrameIdUnwrapper::Next(quint64 cameraId)
{
    Step step{ cameraId, 0 };
    if (m_hasLast) {
        const quint64 advance = Advance(m_lastCameraId, cameraId);
        step.id = m_lastId + (advance > 0 ? advance : 1);
        step.missing = advance > 0 ? advance - 1 : 0;
    }
    m_hasLast = true;
    m_lastCameraId = cameraId;
    m_lastId = step.id;
    return step;
}

void FrameIdUnwrapper::Reset() { m_hasLast = false; }
