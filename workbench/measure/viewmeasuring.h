// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "measuremanager.h"

/// Measuring in one view. No measuring tool exists yet: mouse events pass by and no measurement is
/// ever being drawn. Owned by the report manager that hands it out. GUI thread.
class ViewMeasuring : public MeasureManager
{
    Q_OBJECT

public:
    explicit ViewMeasuring(QObject *parent = nullptr);

    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void SetScaleFactor() override;

protected:
    void InitMeasuring() override;
    void SetDialogParent(QWidget *parent) override;
    bool IsMeasurementInProgress() const override;
};
