// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "camerainfo.h"

#include <QCoreApplication>

#include <functional>
#include <memory>
#include <mutex>

class CameraControls;
class CameraFormat;
class FrameLedger;
class FrameReceiver;
class FrameSink;
class Scene;
class SimulatedSensor;
typedef struct _ArvCamera ArvCamera;
typedef struct _ArvStream ArvStream;

/// An open camera and its stream, as the control thread has them: every call to the camera is made here or in the two
/// parts of it, and may keep that thread waiting for seconds while the camera does not answer. Made, used and destroyed
/// in that thread, but for what says "any thread". CameraSession is what everybody else works with.
class CameraDevice
{
    Q_DECLARE_TR_FUNCTIONS(CameraDevice)

public:
    struct Setup
    {
        std::unique_ptr<Scene> scene; ///< what the simulated camera looks at
        std::shared_ptr<FrameLedger> ledger;
        std::function<void()> onControlLost; ///< called in the camera's heartbeat thread
    };

    /// Null and an error in words, with what to do, when that fails.
    static std::shared_ptr<CameraDevice> Open(const QString &id, Setup setup, QString *error);
    /// Lets go of the stream and the camera.
    ~CameraDevice();

    /// Any thread.
    const CameraInfo &Info() const { return m_info; }
    /// Null for a real camera. Any thread.
    SimulatedSensor *Sensor() const { return m_sensor.get(); }
    /// The camera does not answer any more and is not asked any more. Any thread.
    bool IsLost() const;

    ArvCamera *Camera() const { return m_camera; }
    CameraControls &Controls() { return *m_controls; }
    CameraFormat &Format() { return *m_format; }

    /// Who gets the frames of the next start, null for nobody; until then none comes. Waits for a frame that is on its
    /// way. Gives the number of the run that Start() begins. Any thread.
    int SetSink(FrameSink *sink);
    /// Since the start or the last frame; 0 while none may come. Any thread.
    qint64 MillisecondsSinceLastFrame() const;

    /// Why no frames come.
    struct StartFault
    {
        QString text;          ///< empty when they come
        bool isSilent = false; ///< the camera does not answer; otherwise it refuses
    };
    /// Begins that run, unless another sink was set meanwhile.
    StartFault Start(int run);
    void StopAcquisition();

    struct FormatChange
    {
        QString error;         ///< of the change itself; empty when it was taken
        StartFault startFault; ///< the frames did not go on with the new size
        int run = 0;           ///< whose frames those are
    };
    /// Interrupts the frames and goes on with their new size, unless another sink was set meanwhile.
    FormatChange ChangeFormat(const std::function<bool(CameraFormat &format, QString *error)> &change);
    /// Reads all settings and limits, which something else may have changed; frames of another size or kind go on as such.
    FormatChange ReadAgain();

private:
    struct LossWatch;

    CameraDevice(ArvCamera *camera, Setup *setup);
    bool Prepare(std::unique_ptr<Scene> scene, QString *error);
    void ReadInfo(const QString &id);
    void WatchControl();
    bool CanReach(QString *error) const;
    StartFault CreateStream();
    void DropStream();
    StartFault Resume(int run);
    bool OpenGate(int run);
    void CloseGate();

    ArvCamera *const m_camera;
    const std::shared_ptr<FrameLedger> m_ledger;
    const std::shared_ptr<LossWatch> m_watch;
    CameraInfo m_info;
    std::unique_ptr<SimulatedSensor> m_sensor;
    std::unique_ptr<CameraControls> m_controls;
    std::unique_ptr<CameraFormat> m_format;
    ArvStream *m_stream = nullptr;
    size_t m_streamBytes = 0; ///< of a frame that it takes
    bool m_isAcquiring = false;
    int m_startedRun = 0; ///< the one that Start() has begun; a newer one waits for its own

    mutable std::mutex m_mutex; ///< of what follows
    std::unique_ptr<FrameReceiver> m_receiver;
    FrameSink *m_sink = nullptr;
    int m_run = 0;
    bool m_isGateOpen = false;
};
