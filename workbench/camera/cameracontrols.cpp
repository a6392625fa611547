// SPDX-License-Identifier: GPL-3.0-or-later
#include "araviserror.h"

#include "cameracontrols.h"

#include "simulatedsensor.h"

#include <algorithm>
#include <utility>

namespace {
double Bounded(double value, const ValueRange &range)
{
    return std::clamp(value, range.minimum, range.maximum);
}

bool Report(const QString &setting, const AravisError &failure, QString *error)
{
    if (!failure.IsSet())
        return true;
    if (error)
        *error =
            CameraControls::tr("%1 could not be set: %2. Choose another value, or open the camera again.")
                .arg(setting, failure.Text());
    return false;
}

/// What can't be read stays as it was known.
void Read(double (*read)(ArvCamera *, GError **), ArvCamera *camera, double *value, AravisError *failure)
{
    const double told = read(camera, failure->Receive());
    if (!failure->IsSet())
        *value = told;
}

void ReadBounds(void (*readBounds)(ArvCamera *, double *, double *, GError **), ArvCamera *camera,
                ValueRange *range)
{
    AravisError failure;
    ValueRange told;
    readBounds(camera, &told.minimum, &told.maximum, failure.Receive());
    if (!failure.IsSet() && told.minimum <= told.maximum)
        *range = told;
}

void ReadControl(void (*readBounds)(ArvCamera *, double *, double *, GError **),
                 double (*readValue)(ArvCamera *, GError **), ArvCamera *camera, ValueRange *range,
                 double *value)
{
    ReadBounds(readBounds, camera, range);
    AravisError failure;
    Read(readValue, camera, value, &failure);
}

void ReadAutomatic(gboolean (*isAvailable)(ArvCamera *, GError **), ArvAuto (*read)(ArvCamera *, GError **),
                   ArvCamera *camera, bool *isThere, bool *isOn)
{
    AravisError failure;
    const bool isThereNow = isAvailable(camera, failure.Receive());
    if (failure.IsSet())
        return;
    *isThere = isThereNow;
    const bool isOnNow = isThereNow && read(camera, failure.Receive()) != ARV_AUTO_OFF;
    if (!failure.IsSet())
        *isOn = isOnNow;
}
} // namespace

CameraControls::CameraControls(ArvCamera *camera, SimulatedSensor *sensor, std::function<bool()> canReach)
    : m_camera(camera)
    , m_sensor(sensor)
    , m_canReach(std::move(canReach))
{
    ReadFrameRate();
    ReadAll();
    if (m_values.frameRateRange.IsAdjustable())
        ApplyFrameRate(
            nullptr); // the camera may have been left with an exposure longer than its frame period
}

/// But for the frame rate.
void CameraControls::ReadAll()
{
    ControlValues &values = m_values;
    if (arv_camera_is_exposure_time_available(m_camera, nullptr))
        ReadControl(arv_camera_get_exposure_time_bounds, arv_camera_get_exposure_time, m_camera,
                    &values.exposureRangeUs, &values.exposureUs);
    if (arv_camera_is_gain_available(m_camera, nullptr))
        ReadControl(arv_camera_get_gain_bounds, arv_camera_get_gain, m_camera, &values.gainRange,
                    &values.gain);
    if (m_sensor)
        return; // nothing goes by itself
    ReadAutomatic(arv_camera_is_exposure_auto_available, arv_camera_get_exposure_time_auto, m_camera,
                  &values.hasAutoExposure, &values.isAutoExposure);
    ReadAutomatic(arv_camera_is_gain_auto_available, arv_camera_get_gain_auto, m_camera, &values.hasAutoGain,
                  &values.isAutoGain);
}

/// Another one than was known is what somebody has wished.
void CameraControls::ReadFrameRate()
{
    if (!arv_camera_is_frame_rate_available(m_camera, nullptr))
        return;
    double told = m_values.frameRate;
    ReadControl(arv_camera_get_frame_rate_bounds, arv_camera_get_frame_rate, m_camera,
                &m_values.frameRateRange, &told);
    if (told != m_values.frameRate)
        m_values.frameRate = m_wishedRate = told;
}

/// Many a camera allows as many frames as its exposure leaves time for.
void CameraControls::ReadFrameRateBounds()
{
    if (!m_sensor && arv_camera_is_frame_rate_available(m_camera, nullptr))
        ReadBounds(arv_camera_get_frame_rate_bounds, m_camera, &m_values.frameRateRange);
}

void CameraControls::ReadAgain()
{
    if (!m_canReach())
        return;
    ReadAll();
    if (!m_sensor)
        ReadFrameRate(); // the simulated camera's own rate is that of its ticks
}

void CameraControls::Refresh()
{
    if (!m_canReach())
        return;
    AravisError ignored;
    if (m_values.isAutoExposure)
        Read(arv_camera_get_exposure_time, m_camera, &m_values.exposureUs, &ignored);
    if (m_values.isAutoGain)
        Read(arv_camera_get_gain, m_camera, &m_values.gain, &ignored);
}

bool CameraControls::SetAutoExposure(bool isAuto, QString *error)
{
    const QString setting = tr("Automatic exposure");
    if (!m_values.hasAutoExposure || !CanReach(setting, error))
        return false;
    AravisError failure;
    arv_camera_set_exposure_time_auto(m_camera, isAuto ? ARV_AUTO_CONTINUOUS : ARV_AUTO_OFF, failure.Receive());
    if (!Report(setting, failure, error))
        return false;
    m_values.isAutoExposure = isAuto;
    Read(arv_camera_get_exposure_time, m_camera, &m_values.exposureUs, &failure);
    return Report(setting, failure, error);
}

bool CameraControls::SetAutoGain(bool isAuto, QString *error)
{
    const QString setting = tr("Automatic gain");
    if (!m_values.hasAutoGain || !CanReach(setting, error))
        return false;
    AravisError failure;
    arv_camera_set_gain_auto(m_camera, isAuto ? ARV_AUTO_CONTINUOUS : ARV_AUTO_OFF, failure.Receive());
    if (!Report(setting, failure, error))
        return false;
    m_values.isAutoGain = isAuto;
    Read(arv_camera_get_gain, m_camera, &m_values.gain, &failure);
    return Report(setting, failure, error);
}

bool CameraControls::CanReach(const QString &setting, QString *error) const
{
    if (m_canReach())
        return true;
    if (error)
        *error =
            tr("%1 could not be set: the camera does not answer. Check its cable and power.").arg(setting);
    return false;
}

bool CameraControls::SetExposureUs(double exposureUs, QString *error)
{
    const QString setting = tr("The exposure");
    if (!CanReach(setting, error))
        return false;
    AravisError failure;
    arv_camera_set_exposure_time(m_camera, Bounded(exposureUs, m_values.exposureRangeUs), failure.Receive());
    if (!Report(setting, failure, error))
        return false;
    Read(arv_camera_get_exposure_time, m_camera, &m_values.exposureUs, &failure);
    if (!Report(setting, failure, error))
        return false;
    // The longest exposure may leave one rate only, which is to be set like any other.
    const bool wasAdjustable = m_values.frameRateRange.IsAdjustable();
    ReadFrameRateBounds();
    return (!wasAdjustable && !m_values.frameRateRange.IsAdjustable()) || ApplyFrameRate(error);
}

bool CameraControls::SetGain(double gain, QString *error)
{
    const QString setting = tr("The gain");
    if (!CanReach(setting, error))
        return false;
    AravisError failure;
    arv_camera_set_gain(m_camera, Bounded(gain, m_values.gainRange), failure.Receive());
    if (!Report(setting, failure, error))
        return false;
    Read(arv_camera_get_gain, m_camera, &m_values.gain, &failure);
    return Report(setting, failure, error);
}

bool CameraControls::SetFrameRate(double framesPerSecond, QString *error)
{
    if (!CanReach(tr("The frame rate"), error))
        return false;
    m_wishedRate = framesPerSecond; // the exposure may allow it later
    ReadFrameRateBounds();
    return ApplyFrameRate(error);
}

bool CameraControls::ApplyFrameRate(QString *error)
{
    const double fastest = m_values.exposureUs > 0 ? 1e6 / m_values.exposureUs : m_values.frameRateRange.maximum;
    const double rate = Bounded(std::min(m_wishedRate, fastest), m_values.frameRateRange);
    AravisError failure;
    arv_camera_set_frame_rate(m_camera, m_sensor ? m_sensor->SetFrameRate(rate) : rate, failure.Receive());
    if (!Report(tr("The frame rate"), failure, error))
        return false;
    // The simulated camera's own rate is that of its ticks.
    if (m_sensor)
        m_values.frameRate = rate;
    else
        Read(arv_camera_get_frame_rate, m_camera, &m_values.frameRate, &failure);
    return Report(tr("The frame rate"), failure, error);
}
