// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QThread>

/// Saves captured frames to RAM or disk on its own thread, which runs while a save run does.
class GLOBALUI_SERVICES_EXPORT FrameSaveManager : public QThread
{
    Q_OBJECT

public:
    static FrameSaveManager *GetInstance();
    ~FrameSaveManager() override;

    /// The run ends by itself after a set amount of frames or time.
    virtual bool IsAutoStop() const = 0;
    /// That amount counts frames; otherwise it counts seconds.
    virtual bool IsTotalFrameChecked() const = 0;
    /// That amount: frames or seconds.
    virtual int GetProgressBarMaxValue() const = 0;
    /// The run is a recording.
    virtual bool IsRecordMode() const = 0;

signals:
    void signalUpdateRAMSaveFrames(int value);
    void signalUpdateSenExtractNumber(int value);
    /// Elapsed seconds; a negative value ends the phase.
    void signalUpdateTotalTime(int time);
    void signalUpdateDelayTime(int time);
    void signalUpdateSaveNumber(int value);
    void signalSetTotalSaveNumber(int value);
    /// May be emitted from the save thread.
    void signalSaveThreadRunningChanged(bool saveRunning);

protected:
    explicit FrameSaveManager(QObject *parent = nullptr);
};
