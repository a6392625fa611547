// SPDX-License-Identifier: GPL-3.0-or-later
#include "regionofinterest.h"

RegionOfInterest::RegionOfInterest(QObject *parent)
    : ROIManager(parent)
{
}

bool RegionOfInterest::IsROIChecked() const
{
    return m_checked;
}

void RegionOfInterest::SetManualROIChecked(bool checked)
{
    if (m_checked == checked)
        return;
    m_checked = checked;
    emit signalSetROIFrameVisible(checked, true);
    emit signalCheckedChanged(checked);
}

void RegionOfInterest::slotStopManualROI()
{
    SetManualROIChecked(false);
}

void RegionOfInterest::slotScaleFactorChanged(double) {}
