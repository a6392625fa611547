// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "scene.h"

#include <QSize>
#include <memory>
#include <mutex>
#include <vector>

typedef struct _ArvBuffer ArvBuffer;
typedef struct _ArvFakeCamera ArvFakeCamera;

/// What Aravis' simulated camera lacks: a scene to look at, a start and a stop, and frames no faster than the exposure.
///
/// The simulated camera ticks all the time and sleeps through a whole frame period, so it is kept ticking at least ten
/// times a second and a slower rate exposes on every n-th tick only: stopping never waits for a long exposure.
/// A tick without an exposure is marked by the frame id NotExposed. Frame ids have 16 bits, as on GigE cameras.
/// Expose() runs in the stream thread; the rest may be called from any thread.
class SimulatedSensor
{
public:
    static constexpr quint64 NotExposed = ~quint64(0);

    SimulatedSensor(std::unique_ptr<Scene> scene, QSize sensorSize);

    /// Becomes the camera's picture source; must live as long as the camera.
    void Attach(ArvFakeCamera *camera);
    void SetScene(std::unique_ptr<Scene> scene);
    QString SceneName() const;
    /// 12 makes a camera with 16-bit samples behave as a 12-bit one; 16 is the default. Does nothing to 8-bit formats.
    void SetBitDepthOf16BitSamples(int bits);
    /// Each pixel of a frame is the rounded mean of so many by so many of the sensor's.
    void SetBinning(int binning);
    /// Exposes that often from now on; gives back the tick rate that the camera needs for it.
    double SetFrameRate(double framesPerSecond);
    void Start();
    void Stop();

    void Expose(ArvBuffer *buffer, double exposureUs, double gainDb);

private:
    bool IsTickDue();
    quint64 NextFrameId(quint64 cameraId);
    SceneFrame FrameFor(ArvBuffer *buffer) const;
    void FillBinned(const SceneFrame &frame);

    mutable std::mutex m_mutex;
    std::unique_ptr<Scene> m_scene;
    const QSize m_sensorSize;
    int m_bitDepth16 = 16;
    int m_binning = 1;
    std::vector<uchar> m_unbinned;
    int m_ticksPerFrame = 1;
    int m_ticksToFrame = 1;
    bool m_isRunning = false;
    quint64 m_frameNumber = 0;
    quint64 m_lastFrameId = 0; ///< 0: none yet
};
