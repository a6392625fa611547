// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QObject>

/// Settings of measuring.
class GLOBALUI_SERVICES_EXPORT MeasureConfigManager : public QObject
{
    Q_OBJECT

public:
    static MeasureConfigManager *GetInstance();
    ~MeasureConfigManager() override;

signals:
    /// The scale of the picture changed; draw views emit it too.
    void signalUpdateScaleUI();
    void signalMeasureGraphicsListChanged();

protected:
    explicit MeasureConfigManager(QObject *parent = nullptr);
};
