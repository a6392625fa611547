// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QString>

class QLabel;
class QTimer;
class RecordingDesk;

/// What the status bar says of a recording: the frames saved, how many wait, how long the queue would last and when
/// memory or disk would be full; after it,
/// what was lost, until the next one begins. GUI thread.
class RecordingStatus : public QObject
{
    Q_OBJECT

public:
    /// Both are borrowed and outlive this object.
    RecordingStatus(const RecordingDesk *desk, QLabel *label, QObject *parent);

    struct Facts
    {
        quint64 saved = 0;
        quint64 lost = 0;
        int waiting = 0;
        qint64 waitingBytes = 0;
        qint64 budgetBytes = 0;
        double growthBytesPerSecond = 0; ///< of what waits
        bool isToRam = false;
        int inRam = 0;           ///< frames in memory
        qint64 roomBytes = -1;   ///< left on the disk, or in the memory for frames; -1 when not known
        double keptBytesPerSecond = 0; ///< what takes that room
    };
    static QString Text(const Facts &facts);
    bool IsLossSeen() const { return m_isLossSeen; }

signals:
    /// Something was lost, or that is history: a new run begins.
    void signalLossSeen(bool seen);

private slots:
    void slotStateChanged();
    void slotUpdate();

private:
    void SetLossSeen(bool seen);
    Facts CurrentFacts();

    bool m_isLossSeen = false;
    const RecordingDesk *m_desk;
    QLabel *m_label;
    QTimer *m_timer;
    QElapsedTimer m_sinceLast;
    QElapsedTimer m_sinceStart;
    qint64 m_lastBytes = 0;
};
