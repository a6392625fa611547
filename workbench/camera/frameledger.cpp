// SPDX-License-Identifier: GPL-3.0-or-later
#include "frameledger.h"

#include <numeric>

quint64 FrameCounts::Lost() const { return std::accumulate(lostAt.begin(), lostAt.end(), quint64(0)); }

void FrameLedger::Reset()
{
    m_captured = 0;
    m_shown = 0;
    m_saved = 0;
    for (std::atomic<quint64> &lost : m_lostAt)
        lost = 0;
}

FrameCounts FrameLedger::Counts() const
{
    FrameCounts counts;
    counts.captured = m_captured;
    counts.shown = m_shown;
    counts.saved = m_saved;
    for (size_t stage = 0; stage < counts.lostAt.size(); ++stage)
        counts.lostAt[stage] = m_lostAt[stage];
    return counts;
}
