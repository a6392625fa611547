// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrummenu.h"

#include "usearea.h"
#include "workbenchservices.h"

SpectrumMenu::SpectrumMenu(WorkbenchServices *services, QWidget *parent)
    : QMenu(tr("S&pectrum"), parent)
    , m_services(services)
    , m_spectrum(AddCheckable(tr("&Spectrum Page")))
{
    m_spectrum->setShortcut(QKeySequence("Ctrl+Shift+P"));
    addSeparator();
    m_axes = AddCheckable(tr("&Rulers"));
    m_curves = AddCheckable(tr("&Intensity Curves"));
    m_colorBar = AddCheckable(tr("&Colour Bar"));

    const UseArea *useArea = services->GetUseArea();
    connect(m_spectrum, &QAction::triggered, useArea, &UseArea::slotSetSpectrum);
    connect(m_axes, &QAction::triggered, useArea, &UseArea::slotSetAxisVisible);
    connect(m_curves, &QAction::triggered, useArea, &UseArea::slotSetCurveVisible);
    connect(m_colorBar, &QAction::triggered, useArea, &UseArea::slotSetColorCardVisible);
    connect(useArea, &UseArea::signalUpdateUseArea, this, &SpectrumMenu::slotUpdate);
    connect(useArea, &UseArea::signalSpectrumUIUpdate, this, &SpectrumMenu::slotUpdate);
    slotUpdate();
}

QAction *SpectrumMenu::AddCheckable(const QString &text)
{
    QAction *action = addAction(text);
    action->setCheckable(true);
    return action;
}

void SpectrumMenu::slotUpdate()
{
    const UseArea *useArea = m_services->GetUseArea();
    m_spectrum->setChecked(useArea->IsSpectrumPagePresent());
    m_axes->setChecked(useArea->IsAxisVisible());
    m_curves->setChecked(useArea->IsCurveVisible());
    m_colorBar->setChecked(useArea->IsColorCardVisible());
    for (QAction *aid : {m_axes, m_curves, m_colorBar})
        aid->setEnabled(useArea->IsSpectrumPagePresent());
}
