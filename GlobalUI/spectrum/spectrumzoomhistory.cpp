// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrumzoomhistory.h"

#include <algorithm>

namespace {

constexpr float LargestScale = 32.0F;

} // namespace

QPointF SpectrumZoomHistory::RememberedCentre() const
{
    return m_levels.size() > 1 ? m_levels.back().centre : QPointF();
}

void SpectrumZoomHistory::Restart(const ZoomState &fitted)
{
    m_levels = { fitted };
    m_current = fitted;
}

float SpectrumZoomHistory::Push(const QRectF &rect, bool zoomIn, const QSize &freeSpace)
{
    float scale = 1.0F;
    if (zoomIn) {
        const auto scaleX = static_cast<float>(freeSpace.width() / rect.width());
        const auto scaleY = static_cast<float>(freeSpace.height() / rect.height());
        scale = std::min(std::max(scaleX, scaleY), LargestScale);
        if (!(scale > 0.0F))
            return 1.0F; // no space or no number: the picture stays
        m_current = { scale, rect.center(), rect };
        m_levels.push_back(m_current);
    } else if (!m_levels.empty()) {
        // After going in, the newest level is the one on the screen: the step leads to the one before.
        if (m_lastWasZoomIn && m_levels.size() > 1)
            m_levels.pop_back();
        m_current = m_levels.back();
        if (m_levels.size() > 1)
            m_levels.pop_back();
    }
    m_lastWasZoomIn = zoomIn;
    return scale;
}

void SpectrumZoomHistory::BackToNewest()
{
    if (!m_levels.empty())
        m_current = m_levels.back();
}
