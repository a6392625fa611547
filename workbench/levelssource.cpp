// SPDX-License-Identifier: GPL-3.0-or-later
#include "levelssource.h"

#include "levelsmodel.h"
#include "livelevels.h"
#include "openedpicture.h"
#include "picturedesk.h"
#include "picturedisplay.h"
#include "workbenchservices.h"
#include "workspace.h"
#include "workspaceconfig.h"

LevelsSource::LevelsSource(WorkbenchServices *services, QObject *parent)
    : QObject(parent)
    , m_live(services->Levels())
    , m_picture(services->Desk()->MainPicture())
    , m_workspace(services->GetWorkspace())
{
    connect(services->Config(), SIGNAL(signalSwitchView()), this, SLOT(slotViewSwitched()));
    connect(m_live, SIGNAL(signalReport(LevelsReport)), this, SLOT(slotLiveReport(LevelsReport)));
    connect(m_picture, SIGNAL(signalShowPicture(QImage)), this, SLOT(slotPictureShown()));
}

LevelsModel *LevelsSource::Model() const { return m_live->Model(); }

void LevelsSource::slotSetWatched(bool watched)
{
    m_isWatched = watched;
    slotViewSwitched();
}

void LevelsSource::slotViewSwitched()
{
    const bool isLive = m_workspace->IsCameraView();
    if (m_isWatched && isLive)
        emit signalNoReport(tr("There is no live picture."));
    m_live->SetWatched(this, m_isWatched && isLive);
    if (m_isWatched && !isLive)
        ReportOpenedPicture();
}

void LevelsSource::slotLiveReport(LevelsReport report)
{
    // One may still be on its way when the view was switched.
    if (m_isWatched && m_workspace->IsCameraView())
        emit signalReport(report);
}

void LevelsSource::slotPictureShown()
{
    if (m_isWatched && !m_workspace->IsCameraView())
        ReportOpenedPicture();
}

void LevelsSource::ReportOpenedPicture()
{
    const LoadedPicture &shown = m_picture->Shown();
    if (shown.samples.IsNull()) {
        emit signalNoReport(tr("No picture is open."));
        return;
    }
    const double gamma = Model()->Setting(PictureDisplay::KindOf(shown.samples.Type())).gamma;
    emit signalReport(PictureDisplay::Report(shown.samples, shown.range, gamma));
}
