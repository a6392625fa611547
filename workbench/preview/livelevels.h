// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "levelsfollower.h"
#include "levelsreport.h"
#include "palette.h"

#include <QElapsedTimer>
#include <QObject>
#include <QSet>

#include <atomic>

class LevelsModel;

/// The levels of the live picture: what the user chose, applied to each frame, and reported to whoever watches.
/// Next() belongs to the thread that makes the pictures, all else to the GUI thread.
class LiveLevels : public QObject
{
    Q_OBJECT

public:
    /// `model` is borrowed and outlives this object.
    explicit LiveLevels(LevelsModel *model, QObject *parent = nullptr);

    LevelsModel *Model() const { return m_model; }
    /// Levels for the picture of these samples.
    DisplayLevels Next(const SampleView &samples);
    /// Pixels at full scale are to be marked.
    bool MarksSaturated() const;
    Palette GetPalette() const;

    /// There are reports while anybody watches. A standing picture is shown again, so that there is a report of it.
    void SetWatched(const QObject *watcher, bool watched);

signals:
    /// The picture is to be made anew, even if no new frame comes.
    void signalPictureWanted();
    /// Some ten times a second, and at each change of the setting. Comes from the thread that makes the pictures.
    void signalReport(LevelsReport report);

private:
    LevelsModel *m_model;
    QSet<const QObject *> m_watchers;
    std::atomic<bool> m_isWatched{false};
    std::atomic<bool> m_reportsNext{false};

    LevelsFollower m_follower;
    LevelsSetting m_setting;
    QElapsedTimer m_sinceReport;
};
