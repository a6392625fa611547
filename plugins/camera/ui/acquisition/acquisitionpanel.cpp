// SPDX-License-Identifier: GPL-3.0-or-later
#include "acquisitionpanel.h"

#include "fieldform.h"
#include "fieldsource.h"

QWidget *AcquisitionPanel::GetWidget()
{
    if (!m_form) {
        m_form = new FieldForm(FieldSource::Find(FieldSource::AcquisitionName), tr("This program does not let panels set up its recordings."));
        m_form->setObjectName("AcquisitionPanel");
    }
    return m_form;
}

void AcquisitionPanel::UpdateUI()
{
    if (m_form)
        m_form->slotUpdate();
}
