// SPDX-License-Identifier: GPL-3.0-or-later
#include "openedtracksnotice.h"

#include "centredisplay.h"
#include "workbenchservices.h"
#include "workspaceconfig.h"

#include <QLabel>

OpenedTracksNotice::OpenedTracksNotice(const WorkbenchServices *services, QWidget *page, QObject *parent)
    : QObject(parent)
    , m_page(page)
{
    connect(services->Centre(), &CentreDisplay::signalModeChanged, this, &OpenedTracksNotice::slotSet, Qt::QueuedConnection);
    connect(services->Config(), &WorkspaceConfig::signalSwitchView, this, &OpenedTracksNotice::slotSet, Qt::QueuedConnection);
    slotSet();
}

void OpenedTracksNotice::slotSet()
{
    for (QLabel *notice : m_page->findChildren<QLabel *>("labelNoTracks"))
        notice->setText(tr("An opened file has no tracks: go to the camera."));
}
