// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QWidget;
class WorkbenchServices;

/// Says on the 3D page of opened files why it shows no tracks, in place of how the live page has some made. GUI thread.
class OpenedTracksNotice : public QObject
{
    Q_OBJECT

public:
    /// `services` and `page`, that of opened files, are borrowed and outlive this object.
    OpenedTracksNotice(const WorkbenchServices *services, QWidget *page, QObject *parent);

private:
    /// The page is built when it is shown for the first time.
    void slotSet();

    QWidget *m_page;
};
