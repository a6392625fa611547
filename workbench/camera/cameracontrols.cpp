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
