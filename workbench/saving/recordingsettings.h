// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "namepattern.h"
#include "runfacts.h"
#include "timeminsms.h"

#include <QString>

class QSettings;

/// What a run is to be. Numbers are kept within their ranges by Valid().
struct RecordingSettings
{
    enum class Mode
    {
        Single,   ///< one frame
        Count,    ///< a number of frames
        Duration, ///< a number of seconds
        UntilStopped
    };

    static constexpr int MostFrames = MostRunFrames;
    static constexpr int MostSeconds = 7 * 24 * 3600;
    static constexpr int MostDelayMinutes = 24 * 60;
    static constexpr int LongestIntervalMs = 24 * 3600 * 1000;
    static constexpr int LeastQueueMB = 16;
    static constexpr int MostQueueMB = 64 * 1024;

    Mode mode = Mode::Count;
    int frames = 100;
    int seconds = 10;
    TIME_MIN_S_MS delay;
    int intervalMs = 0; ///< between frames that are kept; 0 keeps all
    bool toRam = false;
    RunFormat format = RunFormat::Tiff;
    QString folder; ///< empty: the user's folder for pictures
    QString pattern = NamePattern::Default();
    int queueMB = 512; ///< memory for frames that wait for the disk

    bool EndsByItself() const { return mode != Mode::UntilStopped; }
    bool EndsByFrames() const { return mode == Mode::Single || mode == Mode::Count; }
    /// The frames that end it.
    int FrameLimit() const { return mode == Mode::Single ? 1 : frames; }
    qint64 DelayMs() const;
    QString Folder() const;

    RecordingSettings Valid() const;
    void Write(QSettings *settings) const;
    static RecordingSettings Read(QSettings *settings);
};
