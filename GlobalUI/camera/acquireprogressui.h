// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>
#include <QTimer>

class QLabel;
class QProgressBar;

/// The small floating panel over the live picture while frames are recorded or saved: progress,
/// frame count and time. Driven by FrameSaveManager alone; shows itself when a save run starts and
/// goes half a second after the run ends. GUI thread; the manager may emit from its own.
class AcquireProgressUI : public QFrame
{
    Q_OBJECT

public:
    explicit AcquireProgressUI(QWidget *parent);

private slots:
    void slotSetHide();
    void slotUpdateRAMSaveFrames(int value);
    void slotUpdateSenExtractNumber(int value);
    /// Seconds; negative when the phase has ended.
    void slotUpdateTotalTime(int time);
    void slotUpdateDelayTime(int time);
    void slotUpdateSaveNumber(int value);
    void slotSetTotalSaveNumber(int value);
    void onFrameSaveThreadRunningChanged(bool saveRunning);

private:
    enum class FrameMode { Convert, RAM, Disk };
    enum class TimeMode { Total, Delay };

    void BuildForm();
    void ConnectFrameSaveManager();
    void ShowFrames(FrameMode mode, int value);
    /// The run's end is a frame count or a time: the other of the two is passed as -1.
    void ShowProgress(int frames, int seconds);
    void ShowTime(int seconds, TimeMode mode);
    void EndTimedPhase();
    void AdjustHeight();

    QProgressBar *m_progressBar = nullptr;
    QLabel *m_frames = nullptr;
    QLabel *m_time = nullptr;
    QTimer m_hideTimer;
    /// A save run or a timed phase has ended and the panel should go.
    bool m_hideRequested = false;
    bool m_saveRunning = false;
};
