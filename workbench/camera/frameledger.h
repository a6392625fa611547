// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>
#include <array>
#include <atomic>

/// Where a frame was lost.
enum class LossStage
{
    Camera,    ///< never arrived: its frame id is missing
    Transfer,  ///< arrived incomplete
    SaveQueue, ///< the queue to the saver was full
    Memory,    ///< the memory for frames that are kept in it was full
    Disk,      ///< could not be written
    Count
};

/// What became of the frames since the last Reset().
struct FrameCounts
{
    quint64 captured = 0;
    quint64 shown = 0;
    quint64 saved = 0;
    std::array<quint64, int(LossStage::Count)> lostAt = {};

    quint64 LostAt(LossStage stage) const { return lostAt[size_t(stage)]; }
    quint64 Lost() const;
};

/// Counts frames on their way, from any thread without a lock. A loss stays visible until Reset(), at the next start.
/// A frame that the display skips is not lost.
class FrameLedger
{
public:
    void Reset();
    void AddCaptured() { ++m_captured; }
    void AddShown() { ++m_shown; }
    void AddSaved(quint64 frames = 1) { m_saved += frames; }
    void AddLost(LossStage stage, quint64 frames = 1) { m_lostAt[size_t(stage)] += frames; }

    FrameCounts Counts() const;

private:
    std::atomic<quint64> m_captured{ 0 };
    std::atomic<quint64> m_shown{ 0 };
    std::atomic<quint64> m_saved{ 0 };
    std::array<std::atomic<quint64>, size_t(LossStage::Count)> m_lostAt{};
};
