// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "trackfinder.h"

/// One drag of the mouse over the tracks of a picture: of an edge, of a whole track, or of a new one. Numbers only, in
/// rows of the picture.
class TrackDrag
{
public:
    enum class Grip { None, Top, Bottom, Body };
    struct Hold
    {
        int track = -1;
        Grip grip = Grip::None;
    };

    /// What a press takes hold of; edges reach `reach` to both sides.
    static Hold HoldAt(const std::vector<RowBand> &tracks, double row, double reach);

    /// Where nothing is held a new track begins. The picture has `height` rows, which no track leaves.
    void Begin(const std::vector<RowBand> &tracks, const Hold &hold, double row, int height);
    void MoveTo(double row);
    void End() { m_isActive = false; }
    bool IsActive() const { return m_isActive; }
    /// As they are now; the one that is dragged is `Track()`.
    const std::vector<RowBand> &Tracks() const { return m_tracks; }
    int Track() const { return m_hold.track; }

private:
    std::vector<RowBand> m_tracks;
    Hold m_hold;
    RowBand m_before; ///< the dragged one, as it was
    double m_pressRow = 0;
    int m_height = 0;
    bool m_isNew = false;
    bool m_isActive = false;
};

/// A band in the middle of the largest gap between the tracks, a twentieth of the picture high at most; empty when there
/// is no gap.
RowBand FreeBand(const std::vector<RowBand> &tracks, int height);
