// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "formatvalues.h"

#include <QCoreApplication>

class AravisError;
class SimulatedSensor;
typedef struct _ArvCamera ArvCamera;

/// The allowed region nearest to the wished one: no larger than the sensor, moved inside it, on the steps.
QRect FittedRegion(const QRect &wished, const RegionLimits &limits);

/// Pixel layout, region and binning of an open camera. They fix the size of a frame, so they change only without a
/// stream; CameraDevice sees to that and owns this object. Values are read once and after each change. Used in the
/// control thread.
class CameraFormat
{
    Q_DECLARE_TR_FUNCTIONS(CameraFormat)

public:
    /// `sensor` is null for a real camera. Both outlive this object.
    CameraFormat(ArvCamera *camera, SimulatedSensor *sensor);

    const FormatValues &Values() const { return m_values; }
    bool SetLayout(PixelLayout layout, QString *error = nullptr);
    /// Takes the nearest allowed region.
    bool SetRegion(const QRect &region, QString *error = nullptr);
    bool SetBinning(int binning, QString *error = nullptr);
    /// Asks the camera anew for all of it; what it leaves unanswered stays. False when it has a pixel format now that
    /// can't be shown: Values() still tell the one before then, which is to be set with TakeBack().
    bool ReadAgain();
    /// As SetLayout(); `error` tells that the camera had chosen another one.
    bool TakeBack(PixelLayout layout, QString *error);

    /// Size of one frame with these settings; 0 and a failure when the camera does not tell.
    size_t FrameBytes(AravisError *failure) const;

private:
    bool ReadLayouts();
    void ReadLimits();
    void ReadRegion();
    void ReadBinnings();
    void TakeBinning(int binning);
    bool Report(const QString &setting, const AravisError &failure, QString *error) const;

    ArvCamera *m_camera;
    SimulatedSensor *m_sensor;
    RegionLimits m_frameLimits; ///< in frame pixels but for the sensor
    FormatValues m_values;
};
