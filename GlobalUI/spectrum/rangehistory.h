// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qcustomplot.h>

#include <vector>

/// The x ranges that a plot was zoomed to, for stepping back. The first one always stays.
class RangeHistory
{
public:
    void Restart(const QCPRange &first) { m_ranges = { first }; }
    void Push(const QCPRange &range) { m_ranges.push_back(range); }
    /// Forgets the newest range, but not the first one.
    void StepBack();
    void BackToFirst() { m_ranges.resize(1); }

    bool IsAtFirst() const { return m_ranges.size() == 1; }
    const QCPRange &Newest() const { return m_ranges.back(); }

private:
    std::vector<QCPRange> m_ranges{ QCPRange() };
};
