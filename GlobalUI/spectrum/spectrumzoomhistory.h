// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointF>
#include <QRectF>
#include <QSize>

#include <vector>

/// One zoom level of the spectrum image. Centre and rectangle are in picture pixels.
struct ZoomState
{
    float scale = 0.0F;
    QPointF centre;
    QRectF rect;
};

/// The zoom levels of the spectrum image, oldest first, and the one in force.
/// Knows no widget; used by the image view on the GUI thread.
class SpectrumZoomHistory
{
public:
    /// The centre of the newest of several levels, (0, 0) when there are fewer than two.
    QPointF RememberedCentre() const;
    /// Makes the fitted picture the only level.
    void Restart(const ZoomState &fitted);
    void Clear() { m_levels.clear(); }
    /// The free space is another: every level takes the scale that it has there, and the newest comes in force.
    /// False when there is no level or no space; then all stays.
    bool Refit(const QSize &freeSpace);
    /// Goes in to rect, or one step back. The answer is the scale that rect takes in the free
    /// space (view pixels), 1 when stepping back. A rectangle that yields no scale is left out: 0.
    float Push(const QRectF &rect, bool zoomIn, const QSize &freeSpace);

    int Count() const { return static_cast<int>(m_levels.size()); }
    const ZoomState &Current() const { return m_current; }

private:
    std::vector<ZoomState> m_levels;
    ZoomState m_current;
    bool m_lastWasZoomIn = false;
};
