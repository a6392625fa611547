// SPDX-License-Identifier: GPL-3.0-or-later
#include "reconnectpolicy.h"

#include <algorithm>
#include <iterator>

namespace {
constexpr int kDelaysMs[] = { 1000, 2000, 4000, 8000, 15000, 30000 };
}

ReconnectPolicy::ReconnectPolicy(int tries)
    : m_tries(tries)
{
}

std::optional<int> ReconnectPolicy::NextDelayMs()
{
    if (m_made >= m_tries)
        return std::nullopt;
    const int step = std::min(m_made, int(std::size(kDelaysMs)) - 1);
    ++m_made;
    return kDelaysMs[step];
}

void ReconnectPolicy::Reset() { m_made = 0; }
