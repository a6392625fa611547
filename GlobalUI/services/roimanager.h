// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QObject>

/// The region of interest that is read out of the camera.
class GLOBALUI_SERVICES_EXPORT ROIManager : public QObject
{
    Q_OBJECT

public:
    static ROIManager *GetInstance();
    ~ROIManager() override;

    virtual bool IsROIChecked() const = 0;
    virtual void SetManualROIChecked(bool checked) = 0;

public slots:
    virtual void slotStopManualROI() = 0;
    virtual void slotScaleFactorChanged(double scaleFactor) = 0;

signals:
    void signalSetROIFrameVisible(bool visible, bool reset);

protected:
    explicit ROIManager(QObject *parent = nullptr);
};
