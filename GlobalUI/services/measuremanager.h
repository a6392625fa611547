// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QObject>

class QMouseEvent;
class QWidget;

/// Measuring in one view; each ReportManager hands out its own. The static operations speak to all
/// that live, so a host creates them all before it creates the module.
class GLOBALUI_SERVICES_EXPORT MeasureManager : public QObject
{
    Q_OBJECT

public:
    ~MeasureManager() override;

    /// Prepares measuring, once, before the first measurement.
    static void Init();
    /// The widget above which measuring opens its dialogs.
    static void SetParentWidget(QWidget *parent);
    /// A measurement is being drawn in one of the views.
    static bool IsMeasuring();

    virtual void mouseMoveEvent(QMouseEvent *event) = 0;
    virtual void mouseDoubleClickEvent(QMouseEvent *event) = 0;
    /// The size or calibration of the picture changed: take the scale anew.
    virtual void SetScaleFactor() = 0;

protected:
    virtual void InitMeasuring() = 0;
    virtual void SetDialogParent(QWidget *parent) = 0;
    virtual bool IsMeasurementInProgress() const = 0;

    explicit MeasureManager(QObject *parent = nullptr);
};
