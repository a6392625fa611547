// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QString>

class QLabel;
class QTimer;
class RecordingDesk;

/// What the status bar says of a recording: the frames saved, how many wait and how long the queue would last; after it,
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
    };
    static QString Text(const Facts &facts);

private slots:
    void slotStateChanged();
    void slotUpdate();

private:
    const RecordingDesk *m_desk;
    QLabel *m_label;
    QTimer *m_timer;
    QElapsedTimer m_sinceLast;
    qint64 m_lastBytes = 0;
};
