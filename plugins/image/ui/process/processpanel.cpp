// SPDX-License-Identifier: GPL-3.0-or-later
#include "processpanel.h"

#include "fieldform.h"
#include "fieldsource.h"

QWidget *ProcessPanel::GetWidget()
{
    if (!m_form) {
        m_form = new FieldForm(FieldSource::Find(FieldSource::ProcessName), tr("This program does not let panels process its pictures."));
        m_form->setObjectName("ProcessPanel");
    }
    return m_form;
}

void ProcessPanel::UpdateUI()
{
    if (m_form)
        m_form->slotUpdate();
}
