// SPDX-License-Identifier: GPL-3.0-or-later
#include "countingpanel.h"

#include "fieldform.h"
#include "fieldsource.h"

QWidget *CountingPanel::GetWidget()
{
    if (!m_form) {
        m_form = new FieldForm(FieldSource::Find(FieldSource::CountName), tr("This program does not let panels count in its pictures."));
        m_form->setObjectName("CountingPanel");
    }
    return m_form;
}

void CountingPanel::UpdateUI()
{
    if (m_form)
        m_form->slotUpdate();
}
