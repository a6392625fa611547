// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QString>
#include <functional>

class SimulatedSensor;
typedef struct _ArvCamera ArvCamera;

/// What a camera allows; equal ends when it has no such setting.
struct ValueRange
{
    double minimum = 0;
    double maximum = 0;

    bool IsAdjustable() const { return maximum > minimum; }
};

/// Exposure, gain and frame rate of an open camera. Values are read once and after each change: asking costs nothing.
/// A value outside the range is moved to its end. Setting talks to the camera and may block while it does not answer;
/// once the camera is known to be gone it fails at once. Owned by CameraSession, used in its thread.
class CameraControls
{
    Q_DECLARE_TR_FUNCTIONS(CameraControls)

public:
    /// `sensor` is null for a real camera; both outlive this object. `canReach` tells whether the camera may be called.
    CameraControls(ArvCamera *camera, SimulatedSensor *sensor, std::function<bool()> canReach);

    ValueRange ExposureRangeUs() const { return m_exposureRange; }
    double ExposureUs() const { return m_exposureUs; }
    /// A longer exposure than the frame period lowers the frame rate.
    bool SetExposureUs(double exposureUs, QString *error = nullptr);

    /// In the camera's unit: decibels for the simulated camera and for most others.
    /// The camera can find its exposure by itself. The simulated camera can't.
    bool HasAutoExposure() const { return m_hasAutoExposure; }
    bool IsAutoExposure() const { return m_isAutoExposure; }
    /// Switched off, the exposure that the camera has found stays.
    bool SetAutoExposure(bool isAuto, QString *error = nullptr);
    /// Asks the camera anew for what it may have changed by itself. Fails silently: the values stay.
    void Refresh();

    bool HasAutoGain() const { return m_hasAutoGain; }
    bool IsAutoGain() const { return m_isAutoGain; }
    bool SetAutoGain(bool isAuto, QString *error = nullptr);

    ValueRange GainRange() const { return m_gainRange; }
    double Gain() const { return m_gain; }
    bool SetGain(double gain, QString *error = nullptr);

    ValueRange FrameRateRange() const { return m_rateRange; }
    /// Frames per second that the camera gives now: what was asked for, bounded by the exposure.
    double FrameRate() const { return m_rate; }
    bool SetFrameRate(double framesPerSecond, QString *error = nullptr);

private:
    void ReadRanges();
    void ReadAutomatics();
    bool ApplyFrameRate(QString *error);
    bool CanReach(const QString &setting, QString *error) const;

    ArvCamera *m_camera;
    SimulatedSensor *m_sensor;
    std::function<bool()> m_canReach;
    ValueRange m_exposureRange;
    ValueRange m_gainRange;
    ValueRange m_rateRange;
    bool m_hasAutoExposure = false;
    bool m_isAutoExposure = false;
    bool m_hasAutoGain = false;
    bool m_isAutoGain = false;
    double m_exposureUs = 0;
    double m_gain = 0;
    double m_wishedRate = 0;
    double m_rate = 0;
};
