// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QObject>

/// Live histogram statistics.
class GLOBALUI_SERVICES_EXPORT HistogramCalculateManager : public QObject
{
    Q_OBJECT

public:
    static HistogramCalculateManager *GetInstance();
    ~HistogramCalculateManager() override;

    /// On while the "Histogram(Live)" bottom page is shown.
    virtual void SetHistogramStatisticsState(bool enabled) = 0;

protected:
    explicit HistogramCalculateManager(QObject *parent = nullptr);
};
