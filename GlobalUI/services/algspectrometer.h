// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QObject>
#include <vector>

/// Spectrometer algorithms.
class GLOBALUI_SERVICES_EXPORT AlgSpectrometer : public QObject
{
    Q_OBJECT

public:
    static AlgSpectrometer *GetInstance();
    ~AlgSpectrometer() override;

    /// Fills `peaks` with the sample indices of the highest peaks among `count` samples. The last
    /// three arguments are the algorithm's own; the module passes 15, 10.0 and 0.
    virtual void Findcurvepeak(unsigned int *data, int count, int peakNumber, std::vector<int> &peaks,
                               int window, float threshold, int mode) = 0;

protected:
    explicit AlgSpectrometer(QObject *parent = nullptr);
};
