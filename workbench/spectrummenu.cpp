// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrummenu.h"

#include "centredisplay.h"
#include "liveprofiles.h"
#include "usearea.h"
#include "workbenchservices.h"

#include <QActionGroup>

#include <set>

SpectrumMenu::SpectrumMenu(WorkbenchServices *services, QWidget *parent)
    : QMenu(tr("S&pectrum"), parent)
    , m_services(services)
    , m_spectrum(AddCheckable(tr("&Spectrum Page")))
    , m_linesGroup(new QActionGroup(this))
{
    m_spectrum->setShortcut(QKeySequence("Ctrl+Shift+P"));
    addSeparator();
    m_axes = AddCheckable(tr("&Rulers"));
    m_curves = AddCheckable(tr("&Intensity Curves"));
    m_colorBar = AddCheckable(tr("&Colour Bar"));
    AddLines();

    const UseArea *useArea = services->GetUseArea();
    connect(m_spectrum, &QAction::triggered, this, &SpectrumMenu::slotShow);
    connect(m_axes, &QAction::triggered, useArea, &UseArea::slotSetAxisVisible);
    connect(m_curves, &QAction::triggered, useArea, &UseArea::slotSetCurveVisible);
    connect(m_colorBar, &QAction::triggered, useArea, &UseArea::slotSetColorCardVisible);
    connect(useArea, &UseArea::signalUpdateUseArea, this, &SpectrumMenu::slotUpdate);
    connect(services->Centre(), &CentreDisplay::signalModeChanged, this, &SpectrumMenu::slotUpdate);
    connect(useArea, &UseArea::signalSpectrumUIUpdate, this, &SpectrumMenu::slotUpdate);
    connect(services->Profiles(), &LiveProfiles::signalLinesChanged, this, &SpectrumMenu::slotUpdate);
    slotUpdate();
}

void SpectrumMenu::AddLines()
{
    QMenu *menu = addMenu(tr("Curves of &Lines"));
    std::set<int> widths{ 1, 3, 5, 11, 21, 51, PickedProfiles::MostLines };
    widths.insert(m_services->Profiles()->Lines()); // the settings may hold any
    for (const int lines : widths) {
        QAction *action = menu->addAction(lines == 1 ? tr("One row, one column") : tr("Mean of %1").arg(lines));
        action->setActionGroup(m_linesGroup);
        action->setCheckable(true);
        action->setData(lines);
        connect(action, &QAction::triggered, this, [this, lines] { m_services->Profiles()->SetLines(lines); });
    }
}

QAction *SpectrumMenu::AddCheckable(const QString &text)
{
    QAction *action = addAction(text);
    action->setCheckable(true);
    return action;
}

/// Within the use for spectra the picture may be shown all the same.
void SpectrumMenu::slotShow(bool spectrum)
{
    m_services->GetUseArea()->slotSetSpectrum(spectrum);
    if (spectrum)
        m_services->Centre()->ShowSpectrum(true);
}

void SpectrumMenu::slotUpdate()
{
    const UseArea *useArea = m_services->GetUseArea();
    const bool isShown =
        useArea->IsSpectrumPagePresent() && m_services->Centre()->Mode() != DisplayMode::General;
    m_spectrum->setChecked(isShown);
    m_axes->setChecked(useArea->IsAxisVisible());
    m_curves->setChecked(useArea->IsCurveVisible());
    m_colorBar->setChecked(useArea->IsColorCardVisible());
    for (QAction *action : m_linesGroup->actions())
        action->setChecked(action->data().toInt() == m_services->Profiles()->Lines());
    for (QAction *aid : {m_axes, m_curves, m_colorBar})
        aid->setEnabled(isShown);
}
