// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturerateplugin.h"

#include "picturerate.h"

QWidget *PictureRatePlugin::GetWidget()
{
    if (!m_panel)
        m_panel = new PictureRate;
    return m_panel;
}

void PictureRatePlugin::UpdateUI()
{
    if (m_panel)
        m_panel->slotUpdate();
}
