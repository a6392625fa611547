// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frameanalysis.h"
#include "intensitymanager.h"
#include "pickedprofiles.h"
#include "spectrumcurvepayload.h"

#include <QMutex>
#include <QPoint>

#include <atomic>
#include <mutex>
#include <vector>

class QSettings;

/// Row and column profile of the live picture, from the raw samples of every frame, through the point that was picked.
/// Analyse() fills the buffers that are not shown and announces them; the rest belongs to the GUI thread.
class LiveProfiles : public IntensityManager, public FrameAnalysis
{
    Q_OBJECT

public:
    /// `settings` is borrowed and outlives this object: keeps the number of lines.
    explicit LiveProfiles(QSettings *settings, QObject *parent = nullptr);

    void SetAnchorPoint(int x, int y, QRectF normalisedRect) override;
    /// Profiles are worked out only while they are wanted.
    void SetWanted(bool wanted);
    bool IsWanted() const { return m_isWanted; }
    /// Neighbouring lines that a profile is the mean of; 1 to PickedProfiles::MostLines.
    int Lines() const { return m_lines; }
    void SetLines(int lines);

    void Analyse(const AnalysedFrame &frame) override;

signals:
    /// The profiles of a standing picture are to be worked out anew.
    void signalFrameWanted();
    void signalLinesChanged(int lines);

private:
    /// What is to be seen of a picture, as the user sees it.
    struct Pick
    {
        QPoint point;
        QRectF region = QRectF(0, 0, 1, 1);
    };

    Pick CurrentPick() const;
    void Hand(const AnalysedFrame &frame, const QRectF &region);
    void Announce();

    QSettings *m_settings;
    std::atomic<bool> m_isWanted{false};
    std::atomic<int> m_lines{1};
    mutable std::mutex m_pickMutex;
    Pick m_pick;

    PickedProfiles m_profiles; ///< Analyse()'s own
    /// As long as the longest side that a frame can have, so that none is ever exchanged for a longer one while it is read.
    std::vector<int> m_buffers[4];
    QMutex m_lock;
    SpectrumCurvePayload m_payload{};
};
