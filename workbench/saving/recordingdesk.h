// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "controlvalues.h"
#include "framesaving.h"
#include "runestimate.h"

#include <QObject>
#include <QThreadPool>
#include <QTimer>
#include <functional>

class CameraLink;
class FrameTee;
class LiveOrientation;
class SaveSettings;

/// What the user does with recordings: begins one with the settings that stand, after a look at the room that there is,
/// and ends or discards it. Sees to it that camera and file stay in step. GUI thread.
class RecordingDesk : public QObject
{
    Q_OBJECT

public:
    /// All are borrowed and outlive this object.
    struct Parts
    {
        CameraLink *link = nullptr;
        FrameTee *tee = nullptr;
        FrameSaving *saving = nullptr;
        SaveSettings *settings = nullptr;
        const LiveOrientation *orientation = nullptr;
        /// Gives the spectral calibration of the columns, or rows, as they are seen; may give none.
        std::function<QVector<MetadataEntry>()> calibration = nullptr;
    };

    explicit RecordingDesk(const Parts &parts, QObject *parent = nullptr);
    ~RecordingDesk() override;

    /// A run is being prepared or going on.
    bool IsBusy() const;
    const FrameSaving *Saving() const { return m_parts.saving; }
    SaveSettings *Settings() const { return m_parts.settings; }
    /// Of the last run; without files and facts before the first.
    const RunReceipt &LastReceipt() const { return m_receipt; }
    bool HasReceipt() const { return m_hasReceipt; }
    /// What there was when the run began.
    const RunResources &Resources() const { return m_resources; }

    /// Prepares a run of its own settings into a file of that name, as slotCapture() does. False and an error when it
    /// can't; one that is given up later is neither busy then nor has it a receipt.
    bool Start(const RecordingSettings &settings, const QString &path, QString *error);
    /// After signalRoomIsShort().
    void GoOn();
    void GoOnShortened();
    void CancelPreparedRun();

public slots:
    /// Begins a run, or ends the one that is going on.
    void slotCapture(bool record, bool single);
    void slotStop();
    void slotDiscard();

signals:
    /// The run would not fit; one of the three answers is waited for.
    void signalRoomIsShort(QString warning, bool canBeShortened);
    void signalStateChanged();
    void signalRunEnded(RunReceipt receipt);
    /// A sentence for the status bar.
    void signalMessage(QString text);

private slots:
    void slotCameraStateChanged();
    void slotRunEnded(RunReceipt receipt);
    void slotControlsChanged();
    void slotRefresh();
    void slotFramesFailed();

private:
    bool IsCameraThere(QString *error) const;
    void TakeTurn(const RecordingSettings &settings, const QString &path, bool record);
    void Prepare(const RecordingSettings &settings, const QString &path, bool record);
    void MakeOrder(const RecordingSettings &settings, const QString &path);
    void TakeResources(const RunResources &resources);
    void Begin();
    void LoseCamera();
    void UseResources(const RunResources &resources);
    SettingsChange CurrentSettings() const;
    void TakeSettings();
    void SetPreparing(bool preparing);
    static QString EndSentence(const RunReceipt &receipt);

    const Parts m_parts;
    QThreadPool m_worker;
    RunOrder m_order;
    ControlValues m_toldControls; ///< as the file of the run has them
    RunEstimate m_estimate;
    RunResources m_resources;
    QTimer m_refresh; ///< while a run goes on
    bool m_isPreparing = false;
    int m_preparation = 0; ///< counts them, so that what comes of one that was stopped is dropped
    RunReceipt m_receipt;
    bool m_hasReceipt = false;
};
