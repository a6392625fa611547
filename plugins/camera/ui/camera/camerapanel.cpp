// SPDX-License-Identifier: GPL-3.0-or-later
#include "camerapanel.h"

#include "fieldform.h"
#include "fieldsource.h"

QWidget *CameraPanel::GetWidget()
{
    if (!m_form) {
        m_form = new FieldForm(FieldSource::Find(FieldSource::CameraName), tr("This program does not let panels control its camera."));
        m_form->setObjectName("CameraPanel");
    }
    return m_form;
}

void CameraPanel::UpdateUI()
{
    if (m_form)
        m_form->slotUpdate();
}
