// SPDX-License-Identifier: GPL-3.0-or-later
#include "standingcurve.h"

#include "livepreview.h"
#include "openedpicture.h"
#include "picturedesk.h"
#include "workbenchservices.h"

#include <QEvent>
#include <QScrollBar>
#include <QWidget>

#include <qcustomplot.h>

StandingCurve::StandingCurve(WorkbenchServices *services, QWidget *centre, QObject *parent)
    : QObject(parent)
    , m_services(services)
{
    for (const QCustomPlot *plot : centre->findChildren<QCustomPlot *>()) {
        QWidget *page = plot->parentWidget();
        page->installEventFilter(this);
        for (const QScrollBar *tracks : page->findChildren<QScrollBar *>(QString(), Qt::FindDirectChildrenOnly))
            connect(tracks, &QScrollBar::valueChanged, this, &StandingCurve::Draw);
    }
}

bool StandingCurve::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        Draw();
    return QObject::eventFilter(watched, event);
}

/// While frames come, the next one does it for the camera's page.
void StandingCurve::Draw()
{
    if (!m_services->Preview()->isRunning())
        m_services->slotShowCurvesAgain();
    m_services->Desk()->MainPicture()->slotShowCurvesAgain();
}
