// SPDX-License-Identifier: GPL-3.0-or-later
#include "curvestatus.h"

#include "centredisplay.h"
#include "liveprofiles.h"
#include "spectrumsettings.h"
#include "usearea.h"
#include "workbenchservices.h"

#include <QLabel>
#include <QStatusBar>

CurveStatus::CurveStatus(const WorkbenchServices *services, QStatusBar *bar, QObject *parent)
    : QObject(parent)
    , m_services(services)
    , m_label(new QLabel) // reparented by the status bar
{
    m_label->setObjectName("labelStatusCurves");
    bar->addPermanentWidget(m_label);
    connect(services->Centre(), &CentreDisplay::signalModeChanged, this, &CurveStatus::slotUpdate);
    connect(services->Spectrum(), &SpectrumSettings::signalRecipeChanged, this, &CurveStatus::slotUpdate);
    connect(services->GetUseArea(), &UseArea::signalSpectrumUIUpdate, this, &CurveStatus::slotUpdate);
    connect(services->Profiles(), &LiveProfiles::signalLinesChanged, this, &CurveStatus::slotUpdate);
    slotUpdate();
}

QString CurveStatus::Text(int lines)
{
    return lines == 1 ? tr("curves of one line") : tr("curves: mean of %1 lines").arg(lines);
}

/// The plot has the same curve, if not always, and without the use area's switch.
void CurveStatus::slotUpdate()
{
    const bool isPlot = m_services->Centre()->Mode() != DisplayMode::Physics;
    m_label->setVisible(m_services->Profiles()->IsWanted()
                        && (isPlot || m_services->GetUseArea()->IsCurveVisible()));
    m_label->setText(Text(m_services->Profiles()->Lines()));
}
