// SPDX-License-Identifier: GPL-3.0-or-later
#include "trackdrag.h"

#include <QtMath>

#include <algorithm>

TrackDrag::Hold TrackDrag::HoldAt(const std::vector<RowBand> &tracks, double row, double reach)
{
    Hold hold;
    double nearest = reach;
    for (size_t i = 0; i < tracks.size(); ++i) {
        const double toTop = std::abs(row - tracks[i].top);
        const double toBottom = std::abs(row - tracks[i].bottom);
        if (std::min(toTop, toBottom) <= nearest) {
            nearest = std::min(toTop, toBottom);
            hold.track = int(i);
            hold.grip = toTop < toBottom ? Grip::Top : Grip::Bottom;
        } else if (hold.grip == Grip::None && row > tracks[i].top && row < tracks[i].bottom) {
            hold.track = int(i);
            hold.grip = Grip::Body;
        }
    }
    return hold;
}

void TrackDrag::Begin(const std::vector<RowBand> &tracks, const Hold &hold, double row, int height)
{
    m_tracks = tracks;
    m_hold = hold;
    m_height = height;
    m_pressRow = qBound(0.0, row, double(std::max(0, height)));
    m_isActive = height > 0;
    m_isNew = hold.grip == Grip::None;
    if (m_isNew) {
        m_hold.track = int(m_tracks.size());
        m_tracks.emplace_back();
        MoveTo(row);
    }
    m_before = m_tracks[size_t(m_hold.track)];
}

void TrackDrag::MoveTo(double row)
{
    if (!m_isActive)
        return;
    RowBand &track = m_tracks[size_t(m_hold.track)];
    row = qBound(0.0, row, double(m_height));
    if (m_isNew) { // every row that was touched
        track.top = std::min(qFloor(std::min(row, m_pressRow)), m_height - 1);
        track.bottom = std::max(track.top + 1, qCeil(std::max(row, m_pressRow)));
    } else if (m_hold.grip == Grip::Top) {
        track.top = std::min(qRound(row), track.bottom - 1);
    } else if (m_hold.grip == Grip::Bottom) {
        track.bottom = std::max(qRound(row), track.top + 1);
    } else {
        const int shift = qBound(-m_before.top, qRound(row - m_pressRow), m_height - m_before.bottom);
        track.top = m_before.top + shift;
        track.bottom = m_before.bottom + shift;
    }
}

RowBand FreeBand(const std::vector<RowBand> &tracks, int height)
{
    std::vector<RowBand> sorted = tracks;
    std::sort(sorted.begin(), sorted.end(), [](const RowBand &a, const RowBand &b) { return a.top < b.top; });
    RowBand end;
    end.top = height;
    sorted.push_back(end);
    RowBand gap;
    int from = 0;
    for (const RowBand &track : sorted) {
        if (track.top - from > gap.bottom - gap.top) {
            gap.top = from;
            gap.bottom = track.top;
        }
        from = std::max(from, track.bottom);
    }
    const int rows = std::min(gap.bottom - gap.top, std::max(1, height / 20));
    gap.top += (gap.bottom - gap.top - rows) / 2;
    gap.bottom = gap.top + rows;
    return gap;
}
