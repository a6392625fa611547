// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framesaving.h"

#include <QObject>

class CameraLink;
class RecordingDesk;

/// A recording without hands: waits for the camera, records, prints the receipt and ends the program, with an error when
/// a frame was lost or the recording failed. GUI thread.
class RecordRun : public QObject
{
    Q_OBJECT

public:
    /// What the program ends with when not everything was recorded.
    static constexpr int LossExitCode = 1;

    /// Both are borrowed and outlive this object.
    /// `longestSeconds` ends a run that has not got all of its frames by then; 0 sets no limit.
    RecordRun(const CameraLink *link, RecordingDesk *desk, const RecordingSettings &settings,
              const QString &path, int longestSeconds, QObject *parent = nullptr);

private slots:
    void slotCameraStateChanged();
    void slotMessage(QString text);
    void slotRoomIsShort(QString warning);
    void slotRecordingStateChanged();
    void slotRunEnded(RunReceipt receipt);

private:
    static void Fail(const QString &error);

    const CameraLink *m_link;
    RecordingDesk *m_desk;
    const RecordingSettings m_settings;
    const QString m_path;
    const int m_longestSeconds;
    bool m_hasBegun = false;
};
