// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cameracontrols.h"
#include "cameraformat.h"
#include "camerainfo.h"
#include "frameledger.h"

#include <QObject>
#include <functional>
#include <future>
#include <memory>

class FrameReceiver;
class FrameSink;
class SimulatedSensor;
typedef struct _ArvCamera ArvCamera;
typedef struct _ArvStream ArvStream;

/// One open camera, real or simulated, and its stream of frames.
///
/// Use: Open(), Start(sink), Stop(), Close(); settings may be changed at any time in between. All calls come from one
/// thread. Frames reach the sink in the stream thread, only between Start() and Stop().
/// A camera that is gone keeps each call waiting for 2.5 s, so Stop() and Close() return at once and a worker tells the
/// camera; after signalControlLost() every other call fails at once. Opening a real camera blocks for a second or more.
class CameraSession : public QObject
{
    Q_OBJECT

public:
    explicit CameraSession(QObject *parent = nullptr);
    ~CameraSession() override;

    /// On failure `error` says in words what to do, and no camera is open. A camera that is open before is closed.
    bool Open(const QString &id, QString *error = nullptr);
    void Close();
    bool IsOpen() const { return m_camera; }
    bool IsSimulated() const { return bool(m_sensor); }
    bool IsControlLost() const;
    const CameraInfo &Info() const { return m_info; }
    /// Whether the camera's feature tree has that GenICam name and offers it now.
    bool HasFeature(const QString &name) const;

    /// What the simulated camera looks at, now and when it is opened again; false for an unknown name.
    bool SetScene(const QString &name);
    QString SceneName() const { return m_sceneName; }

    /// Clears the ledger. The sink must live until Stop() or Close() has returned.
    bool Start(FrameSink *sink, QString *error = nullptr);
    /// No frame reaches the sink after this; waits for one that is on its way.
    void Stop();
    bool IsStreaming() const { return m_sink; }
    /// Since Start() or the last frame; 0 while not streaming.
    qint64 MillisecondsSinceLastFrame() const;
    FrameLedger &Ledger() { return m_ledger; }

    /// Only while a camera is open.
    CameraControls &Controls() { return *m_controls; }
    const CameraFormat &Format() const { return *m_format; }
    /// These interrupt a running stream and go on with the new frame size.
    bool SetPixelLayout(PixelLayout layout, QString *error = nullptr);
    bool SetRegion(const QRect &region, QString *error = nullptr);
    bool SetBinning(int binning, QString *error = nullptr);

    /// The task with its turn to talk to the camera, for a worker to run: it waits for calls before it, and calls
    /// after it wait for it, so it must be short. It must be run, or dropped. Null when the camera can't be reached.
    std::function<void()> TakeTurn(const std::function<void(ArvCamera *)> &task);

    /// Waits until the workers have let go of all closed cameras, at most that long.
    static bool WaitForTeardown(int timeoutMs);

signals:
    /// The camera does not answer any more; comes some seconds after the loss. Emitted in this object's thread.
    void signalControlLost();

private:
    struct ControlWatch;

    bool Attach(ArvCamera *camera, QString *error);
    void ReadInfo(const QString &id);
    void WatchControl();
    bool CreateStream(QString *error);
    void DropStream();
    bool Resume(FrameSink *sink, QString *error);
    bool ChangeFormat(const std::function<bool()> &change, QString *error);
    bool CanReach(QString *error) const;
    std::function<void()> TurnFor(const std::function<void(ArvCamera *)> &task);
    void WaitForTurn() const;

    ArvCamera *m_camera = nullptr;
    ArvStream *m_stream = nullptr;
    FrameSink *m_sink = nullptr;
    std::shared_future<void> m_busy; ///< ready when no worker talks to the camera any more
    std::shared_ptr<SimulatedSensor> m_sensor; ///< shared with the teardown worker
    std::shared_ptr<FrameReceiver> m_receiver; ///< likewise
    std::shared_ptr<ControlWatch> m_watch;
    std::unique_ptr<CameraControls> m_controls;
    std::unique_ptr<CameraFormat> m_format;
    CameraInfo m_info;
    QString m_sceneName;
    FrameLedger m_ledger;
};
