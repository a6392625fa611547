// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

class QLabel;
class QStatusBar;
class WorkbenchServices;

/// What the status bar says of the intensity curves while they are seen: of how many lines they are the mean. GUI thread.
class CurveStatus : public QObject
{
    Q_OBJECT

public:
    /// `services` and `bar` are borrowed and outlive this object.
    CurveStatus(const WorkbenchServices *services, QStatusBar *bar, QObject *parent);

    static QString Text(int lines);

private:
    void slotUpdate();

    const WorkbenchServices *m_services;
    QLabel *m_label;
};
