// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framesaving.h"

#include <QMenu>

class WorkbenchServices;

/// The Recording menu: begins and ends a run, sets what it is to be, asks when it would not fit, and shows what the last
/// one has come to. GUI thread.
class RecordingMenu : public QMenu
{
    Q_OBJECT

public:
    /// `services` are borrowed and outlive this object.
    RecordingMenu(WorkbenchServices *services, QWidget *parent);

private slots:
    void slotUpdate();
    void slotShowSettings();
    void slotRoomIsShort(QString warning, bool canBeShortened);
    void slotRunEnded(RunReceipt receipt);
    void slotShowReceipt();

private:
    WorkbenchServices *m_services;
    QAction *m_capture;
    QAction *m_single;
    QAction *m_discard;
    QAction *m_settings;
    QAction *m_receipt;
};
