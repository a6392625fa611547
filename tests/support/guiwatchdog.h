// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QFile>
#include <QObject>
#include <QTimer>

/// Notes for how long the GUI thread did not come to its events, whether it computed, waited for a disk or for
/// another thread. Time in which it only waited for a processor that others had is left out: that is the
/// machine's, not the program's. Measures from its making or Begin() on, while the event loop runs.
class GuiWatchdog : public QObject
{
public:
    GuiWatchdog()
        : m_schedule("/proc/thread-self/schedstat")
    {
        if (!m_schedule.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
            qFatal("The kernel does not say how long a thread waits.");
        m_beat.setTimerType(Qt::PreciseTimer);
        connect(&m_beat, &QTimer::timeout, this, &GuiWatchdog::Beat);
        Begin();
        m_beat.start(BeatMs);
    }

    void Begin()
    {
        m_longestMs = 0;
        m_waitedNs = WaitedNs();
        m_sinceBeat.start();
    }
    /// Beyond the usual time between two beats.
    qint64 LongestMs()
    {
        Beat();
        return m_longestMs;
    }
    const char *Text(const char *work)
    {
        m_text = QByteArray(work) + " held up the GUI for " + QByteArray::number(m_longestMs) + " ms";
        return m_text.constData();
    }

private:
    static constexpr int BeatMs = 5;

    void Beat()
    {
        const qint64 elapsedMs = m_sinceBeat.restart();
        const qint64 waitedNs = WaitedNs();
        const qint64 waitedMs = (waitedNs - m_waitedNs) / 1000000;
        m_waitedNs = waitedNs;
        m_longestMs = qMax(m_longestMs, elapsedMs - waitedMs - BeatMs);
    }

    /// For a processor, since the thread began.
    qint64 WaitedNs()
    {
        m_schedule.seek(0);
        return m_schedule.readAll().split(' ').value(1).toLongLong();
    }

    QFile m_schedule;
    qint64 m_waitedNs = 0;
    QTimer m_beat;
    QElapsedTimer m_sinceBeat;
    qint64 m_longestMs = 0;
    QByteArray m_text;
};
