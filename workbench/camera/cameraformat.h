// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cameraframe.h"

#include <QCoreApplication>
#include <QRect>
#include <QSize>
#include <QVector>

class AravisError;
class SimulatedSensor;
typedef struct _ArvCamera ArvCamera;

/// The steps and limits of a region on a sensor, in pixels.
struct RegionLimits
{
    QSize sensorSize;
    QSize minimumSize = QSize(1, 1);
    QSize sizeStep = QSize(1, 1);
    QSize offsetStep = QSize(1, 1);
};

/// The allowed region nearest to the wished one: no larger than the sensor, moved inside it, on the steps.
QRect FittedRegion(const QRect &wished, const RegionLimits &limits);

/// Pixel layout and region of an open camera. Both fix the size of a frame, so they change only without a stream;
/// CameraSession sees to that and owns this object. Values are read once and after each change.
class CameraFormat
{
    Q_DECLARE_TR_FUNCTIONS(CameraFormat)

public:
    /// `sensor` is null for a real camera. Both outlive this object.
    CameraFormat(ArvCamera *camera, SimulatedSensor *sensor);

    /// What both the camera and this program know; empty for a camera that we cannot show.
    const QVector<PixelLayout> &Layouts() const { return m_layouts; }
    PixelLayout Layout() const { return m_layout; }
    bool SetLayout(PixelLayout layout, QString *error = nullptr);

    /// In sensor pixels, whatever the binning, as is the region.
    RegionLimits Limits() const;
    QRect Region() const { return m_region; }
    /// Takes the nearest allowed region.
    bool SetRegion(const QRect &region, QString *error = nullptr);

    /// Sensor pixels along each side of a frame's pixel that the camera allows: 1 is none. The simulated camera gives
    /// the rounded mean of the pixels; others do as they are made.
    const QVector<int> &Binnings() const { return m_binnings; }
    int Binning() const { return m_binning; }
    bool SetBinning(int binning, QString *error = nullptr);
    QSize FrameSize() const { return m_region.size() / m_binning; }

    /// Size of one frame with these settings; 0 when the camera does not answer.
    size_t FrameBytes() const;

private:
    void ReadLayouts();
    void ReadLimits();
    void ReadRegion();
    void ReadBinnings();
    bool Report(const QString &setting, const AravisError &failure, QString *error) const;

    ArvCamera *m_camera;
    SimulatedSensor *m_sensor;
    QVector<PixelLayout> m_layouts;
    PixelLayout m_layout = PixelLayout::Mono8;
    RegionLimits m_limits; ///< in frame pixels but for the sensor
    QVector<int> m_binnings{ 1 };
    int m_binning = 1;
    QRect m_region;
};
