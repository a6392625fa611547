// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <functional>

class QWidget;
class RecordingDesk;

/// Nothing ends a recording by accident: what would end it asks first, and is done when the recording was finished or
/// discarded on purpose. GUI thread.
class RecordingGuard : public QObject
{
    Q_OBJECT

public:
    /// Both are borrowed and outlive this object.
    RecordingGuard(RecordingDesk *desk, QWidget *window);

    /// Does it at once when nothing is being recorded. Otherwise asks "A recording is running. `question`", and does it
    /// when the recording has ended, or never.
    void Do(const QString &question, const std::function<void()> &action);

private slots:
    void slotStateChanged();

private:
    RecordingDesk *m_desk;
    QWidget *m_window;
    std::function<void()> m_action; ///< waits for the end of the run
    bool m_isAsking = false;
};
