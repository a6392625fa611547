// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QObject>

/// Settings of the open camera.
class GLOBALUI_SERVICES_EXPORT CameraConfigManager : public QObject
{
    Q_OBJECT

public:
    static CameraConfigManager *GetInstance();
    ~CameraConfigManager() override;

    /// Shows the region of interest again where the picture is drawn.
    virtual void UpdateGraphicsRegionItem() = 0;

signals:
    /// Preview was started or stopped; the capture and preview buttons emit it too.
    void signalPreviewStateChanged();

protected:
    explicit CameraConfigManager(QObject *parent = nullptr);
};
