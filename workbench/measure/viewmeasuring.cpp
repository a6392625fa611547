// SPDX-License-Identifier: GPL-3.0-or-later
#include "viewmeasuring.h"

ViewMeasuring::ViewMeasuring(QObject *parent)
    : MeasureManager(parent)
{
}

void ViewMeasuring::mouseMoveEvent(QMouseEvent *) {}

void ViewMeasuring::mouseDoubleClickEvent(QMouseEvent *) {}

void ViewMeasuring::SetScaleFactor() {}

void ViewMeasuring::InitMeasuring() {}

void ViewMeasuring::SetDialogParent(QWidget *) {}

bool ViewMeasuring::IsMeasurementInProgress() const
{
    return false;
}
