// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

/// How long to wait before each try to open a lost camera again: 1, 2, 4, 8, 15, then 30 s, until it gives up.
class ReconnectPolicy
{
public:
    static constexpr int DefaultTries = 10;

    explicit ReconnectPolicy(int tries = DefaultTries);

    /// Milliseconds until the next try; empty when all tries are used up.
    std::optional<int> NextDelayMs();
    int TriesMade() const { return m_made; }
    /// The camera is back: the next loss starts with the short delays again.
    void Reset();

private:
    int m_tries;
    int m_made = 0;
};
