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
} // namespace

CameraControls::CameraControls(ArvCamera *camera, SimulatedSensor *sensor, std::function<bool()> canReach)
    : m_camera(camera)
    , m_sensor(sensor)
    , m_canReach(std::move(canReach))
{
    ReadRanges();
    if (!m_sensor)
        ReadAutomatics();
    if (m_rateRange.IsAdjustable())
        ApplyFrameRate(
            nullptr); // the camera may have been left with an exposure longer than its frame period
}

void CameraControls::ReadRanges()
{
    if (arv_camera_is_exposure_time_available(m_camera, nullptr)) {
        arv_camera_get_exposure_time_bounds(m_camera, &m_exposureRange.minimum, &m_exposureRange.maximum,
                                            nullptr);
        m_exposureUs = arv_camera_get_exposure_time(m_camera, nullptr);
    }
    if (arv_camera_is_gain_available(m_camera, nullptr)) {
        arv_camera_get_gain_bounds(m_camera, &m_gainRange.minimum, &m_gainRange.maximum, nullptr);
        m_gain = arv_camera_get_gain(m_camera, nullptr);
    }
    if (arv_camera_is_frame_rate_available(m_camera, nullptr)) {
        arv_camera_get_frame_rate_bounds(m_camera, &m_rateRange.minimum, &m_rateRange.maximum, nullptr);
        m_rate = m_wishedRate = arv_camera_get_frame_rate(m_camera, nullptr);
    }
}

void CameraControls::ReadAutomatics()
{
    m_hasAutoExposure = arv_camera_is_exposure_auto_available(m_camera, nullptr);
    m_isAutoExposure = m_hasAutoExposure && arv_camera_get_exposure_time_auto(m_camera, nullptr) != ARV_AUTO_OFF;
    m_hasAutoGain = arv_camera_is_gain_auto_available(m_camera, nullptr);
    m_isAutoGain = m_hasAutoGain && arv_camera_get_gain_auto(m_camera, nullptr) != ARV_AUTO_OFF;
}

void CameraControls::Refresh()
{
    if (!m_canReach())
        return;
    if (m_isAutoExposure)
        m_exposureUs = arv_camera_get_exposure_time(m_camera, nullptr);
    if (m_isAutoGain)
        m_gain = arv_camera_get_gain(m_camera, nullptr);
}

bool CameraControls::SetAutoExposure(bool isAuto, QString *error)
{
    const QString setting = tr("Automatic exposure");
    if (!m_hasAutoExposure || !CanReach(setting, error))
        return false;
    AravisError failure;
    arv_camera_set_exposure_time_auto(m_camera, isAuto ? ARV_AUTO_CONTINUOUS : ARV_AUTO_OFF, failure.Receive());
    if (!Report(setting, failure, error))
        return false;
    m_isAutoExposure = isAuto;
    m_exposureUs = arv_camera_get_exposure_time(m_camera, failure.Receive());
    return Report(setting, failure, error);
}

bool CameraControls::SetAutoGain(bool isAuto, QString *error)
{
    const QString setting = tr("Automatic gain");
    if (!m_hasAutoGain || !CanReach(setting, error))
        return false;
    AravisError failure;
    arv_camera_set_gain_auto(m_camera, isAuto ? ARV_AUTO_CONTINUOUS : ARV_AUTO_OFF, failure.Receive());
    if (!Report(setting, failure, error))
        return false;
    m_isAutoGain = isAuto;
    m_gain = arv_camera_get_gain(m_camera, failure.Receive());
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
    arv_camera_set_exposure_time(m_camera, Bounded(exposureUs, m_exposureRange), failure.Receive());
    if (!Report(setting, failure, error))
        return false;
    m_exposureUs = arv_camera_get_exposure_time(m_camera, failure.Receive());
    if (!Report(setting, failure, error))
        return false;
    return !m_rateRange.IsAdjustable() || ApplyFrameRate(error);
}

bool CameraControls::SetGain(double gain, QString *error)
{
    const QString setting = tr("The gain");
    if (!CanReach(setting, error))
        return false;
    AravisError failure;
    arv_camera_set_gain(m_camera, Bounded(gain, m_gainRange), failure.Receive());
    if (!Report(setting, failure, error))
        return false;
    m_gain = arv_camera_get_gain(m_camera, failure.Receive());
    return Report(setting, failure, error);
}

bool CameraControls::SetFrameRate(double framesPerSecond, QString *error)
{
    if (!CanReach(tr("The frame rate"), error))
        return false;
    m_wishedRate = Bounded(framesPerSecond, m_rateRange);
    return ApplyFrameRate(error);
}

bool CameraControls::ApplyFrameRate(QString *error)
{
    const double fastest = m_exposureUs > 0 ? 1e6 / m_exposureUs : m_rateRange.maximum;
    const double rate = Bounded(std::min(m_wishedRate, fastest), m_rateRange);
    AravisError failure;
    arv_camera_set_frame_rate(m_camera, m_sensor ? m_sensor->SetFrameRate(rate) : rate, failure.Receive());
    if (!Report(tr("The frame rate"), failure, error))
        return false;
    // The simulated camera's own rate is that of its ticks.
    m_rate = m_sensor ? rate : arv_camera_get_frame_rate(m_camera, failure.Receive());
    return Report(tr("The frame rate"), failure, error);
}
