// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "spectralcalibration.h"
#include "spectralframe.h"

class QSettings;

/// What a calibration was made of.
struct StoredCalibration
{
    QVector<CalibrationPoint> points;
    int degree = 0;
    int width = 0; ///< of the spectrum, pixels
    SpectralFrame frame; ///< of the spectrum; null when it was not known
    QString camera; ///< that it was made with; empty when that is not known
};

/// Empty when none is kept. What it holds comes from outside: whoever uses it fits it anew.
StoredCalibration LoadCalibration(QSettings &settings);
/// One without points takes away what was kept.
void StoreCalibration(const StoredCalibration &calibration, QSettings *settings);
