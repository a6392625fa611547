// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QObject>
#include <QImage>

/// Delivers the processed frame of the open image.
class GLOBALUI_SERVICES_EXPORT FrameProcessManager : public QObject
{
    Q_OBJECT

public:
    static FrameProcessManager *GetInstance();
    ~FrameProcessManager() override;

public slots:
    virtual void slotScaleFactorChanged(double scaleFactor) = 0;

signals:
    void signalDraw(QImage image);

protected:
    explicit FrameProcessManager(QObject *parent = nullptr);
};
