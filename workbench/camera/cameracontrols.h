// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "controlvalues.h"

#include <QCoreApplication>
#include <QString>
#include <functional>

class SimulatedSensor;
typedef struct _ArvCamera ArvCamera;

/// Exposure, gain and frame rate of an open camera. Values are read once and after each change: asking costs nothing.
/// A value outside the range is moved to its end. Setting talks to the camera and may block while it does not answer;
/// once the camera is known to be gone it fails at once. Owned by CameraDevice, used in the control thread.
class CameraControls
{
    Q_DECLARE_TR_FUNCTIONS(CameraControls)

public:
    /// `sensor` is null for a real camera; both outlive this object. `canReach` tells whether the camera may be called.
    CameraControls(ArvCamera *camera, SimulatedSensor *sensor, std::function<bool()> canReach);

    const ControlValues &Values() const { return m_values; }

    /// A longer exposure than the frame period lowers the frame rate.
    bool SetExposureUs(double exposureUs, QString *error = nullptr);
    /// Switched off, the exposure that the camera has found stays.
    bool SetAutoExposure(bool isAuto, QString *error = nullptr);
    bool SetGain(double gain, QString *error = nullptr);
    bool SetAutoGain(bool isAuto, QString *error = nullptr);
    bool SetFrameRate(double framesPerSecond, QString *error = nullptr);
    /// Asks the camera anew for what it may have changed by itself. Fails silently: the values stay.
    void Refresh();
    /// Asks the camera anew for all of it, limits too: something else may have set it.
    void ReadAgain();

private:
    void ReadAll();
    void ReadFrameRate();
    void ReadFrameRateBounds();
    bool ApplyFrameRate(QString *error);
    bool CanReach(const QString &setting, QString *error) const;

    ArvCamera *m_camera;
    SimulatedSensor *m_sensor;
    std::function<bool()> m_canReach;
    ControlValues m_values;
    double m_wishedRate = 0; ///< whatever the exposure allows now
};
