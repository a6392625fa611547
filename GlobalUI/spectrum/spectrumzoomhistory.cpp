// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrumzoomhistory.h"

#include "spectrumplacement.h"

#include <algorithm>

namespace {

constexpr float LargestScale = 32.0F;

bool IsFinite(const QRectF &rect)
{
    return qIsFinite(rect.x()) && qIsFinite(rect.y()) && qIsFinite(rect.width()) && qIsFinite(rect.height());
}

/// The scale at which rect fills the free space in both directions; 0 where there is none.
float FillingScale(const QRectF &rect, const QSize &freeSpace)
{
    if (freeSpace.isEmpty() || !IsFinite(rect) || rect.width() < 0.0 || rect.height() < 0.0)
        return 0.0F;
    const auto scaleX = static_cast<float>(freeSpace.width() / rect.width());
    const auto scaleY = static_cast<float>(freeSpace.height() / rect.height());
    return std::min(std::max(scaleX, scaleY), LargestScale);
}

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

bool SpectrumZoomHistory::Refit(const QSize &freeSpace)
{
    if (m_levels.empty() || freeSpace.isEmpty())
        return false;
    for (ZoomState &level : m_levels)
        level.scale = FillingScale(level.rect, freeSpace);
    m_levels.front().scale = FitPicture(m_levels.front().rect.size().toSize(), freeSpace).scale;
    m_current = m_levels.back();
    m_lastWasZoomIn = true;
    return true;
}

float SpectrumZoomHistory::Push(const QRectF &rect, bool zoomIn, const QSize &freeSpace)
{
    float scale = 1.0F;
    if (zoomIn) {
        scale = FillingScale(rect, freeSpace);
        if (scale <= 0.0F)
            return 0.0F; // no space or no number: the picture stays
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
