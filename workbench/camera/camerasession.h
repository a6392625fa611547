// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "camerainfo.h"
#include "controlvalues.h"
#include "formatvalues.h"
#include "frameledger.h"

#include <QObject>
#include <functional>
#include <memory>
#include <vector>

class CameraControls;
class CameraDevice;
class CameraFormat;
class ControlQueue;
class FrameSink;
typedef struct _ArvCamera ArvCamera;

/// One open camera, real or simulated, and its stream of frames.
///
/// Use: Open(), Start(sink), Stop(), Close(); settings may be changed at any time in between. All calls come from one
/// thread and, Open() aside, return at once: what is to be said to the camera waits in a queue, is carried out in the
/// order in which it was asked for, in the control thread, and signals tell what became of it. Of many changes of one
/// setting that wait only the newest is made. What is known of the camera is a copy that changes between two events.
/// Frames reach the sink in the stream thread, only between Start() and Stop().
class CameraSession : public QObject
{
    Q_OBJECT

public:
    explicit CameraSession(QObject *parent = nullptr);
    ~CameraSession() override;

    /// Blocks for a second or more with a real camera. On failure `error` says in words what to do, and no camera is
    /// open. A camera that is open before is closed.
    bool Open(const QString &id, QString *error = nullptr);
    /// What waits to be said to the camera is forgotten.
    void Close();
    bool IsOpen() const { return bool(m_device); }
    bool IsSimulated() const;
    bool IsControlLost() const;
    const CameraInfo &Info() const { return m_info; }

    /// What the simulated camera looks at, now and when it is opened again; false for an unknown name.
    bool SetScene(const QString &name);
    QString SceneName() const { return m_sceneName; }

    /// Clears the ledger; false when no camera is open. signalFramesFailed() tells when the camera does not start. The
    /// sink must live until Stop() or Close() has returned.
    bool Start(FrameSink *sink);
    /// No frame reaches the sink after this; waits for one that is on its way.
    void Stop();
    bool IsStreaming() const { return m_sink; }
    /// Since the camera was started or the last frame; 0 while not streaming.
    qint64 MillisecondsSinceLastFrame() const;
    FrameLedger &Ledger() { return *m_ledger; }

    /// As the camera last told them.
    const ControlValues &Controls() const { return m_controls; }
    const FormatValues &Format() const { return m_format; }
    /// Some change that was asked for is not answered yet.
    bool IsSetting() const { return m_answered != m_asked; }

    /// Answered by signalControlSet().
    void SetExposureUs(double exposureUs);
    void SetAutoExposure(bool isAuto);
    void SetGain(double gain);
    void SetAutoGain(bool isAuto);
    void SetFrameRate(double framesPerSecond);
    /// Asks the camera for what it may have changed by itself.
    void Refresh();

    /// Answered by signalFormatSet(). These interrupt a running stream and go on with the new frame size.
    void SetPixelLayout(PixelLayout layout);
    void SetRegion(const QRect &region);
    /// `change` makes the wished region of the one that the camera has when its turn comes. Called in the control
    /// thread; the key is that of TakeTurn().
    void ChangeRegion(const QString &key, const std::function<QRect(const QRect &region)> &change);
    void SetBinning(int binning);
    /// All of it as it was; answered by signalRestored() when it was tried.
    void Restore(const ControlValues &controls, const FormatValues &format);

    /// The task, which may be null, with its turn to talk to the camera in the control thread; calls after it wait for
    /// it, so it must be short. Then `done` is called in this thread, unless the camera was closed or `receiver` went
    /// meanwhile. A key tells a setting whose newest wish alone counts. False when the camera can't be reached.
    bool TakeTurn(const std::function<void(ArvCamera *)> &task, QObject *receiver, const std::function<void()> &done,
                  const QString &key = QString());

    /// As TakeTurn(), for a task that may change whatever it likes: all that is known of the camera is read again after
    /// it, and the frames go on as they are then. `done` may be null.
    bool TakeChangingTurn(const std::function<void(ArvCamera *)> &task, QObject *receiver,
                          const std::function<void()> &done, const QString &key = QString());

    /// Waits until all closed cameras have been let go of and nothing is being said to open ones, at most that long.
    static bool WaitForTeardown(int timeoutMs);

signals:
    /// The camera does not answer any more; comes some seconds after the loss. Emitted in this object's thread.
    void signalControlLost();
    /// Controls() tells something else than before, be it a limit.
    void signalControlsChanged();
    /// What was asked for was tried; the reason when it was not taken, or empty. Of the controls it is told which:
    /// "exposure", "autoExposure", "gain", "autoGain" or "frameRate".
    void signalControlSet(QString error, QString control);
    /// Of the format, or it changed without being asked for.
    void signalFormatSet(QString error);
    void signalRestored();
    /// The camera was to send frames and does not; nobody gets any until the next Start(). A silent one does not answer,
    /// and will be lost; others refuse.
    void signalFramesFailed(QString error, bool isSilent);

private:
    struct Mailbox;
    /// What the control thread brings back, one after the other: whoever hears of one may close the camera, and the rest
    /// is of no interest then, or delete the session.
    using News = std::vector<std::function<void(CameraSession &)>>;

    bool Ask(const std::function<News(CameraDevice &)> &work, const QString &key = QString());
    void SetControl(const QString &key, const std::function<bool(CameraControls &, QString *error)> &change);
    void SetFormat(const QString &key, const std::function<bool(CameraFormat &, QString *error)> &change);
    void TakeValues(const ControlValues &controls, const FormatValues &format);
    void TakeStartFault(int run, const QString &error, bool isSilent);

    std::shared_ptr<ControlQueue> m_queue; ///< of the open camera, as are the next two
    std::shared_ptr<CameraDevice> m_device;
    std::shared_ptr<Mailbox> m_mailbox;
    const std::shared_ptr<FrameLedger> m_ledger;
    FrameSink *m_sink = nullptr;
    int m_run = 0; ///< the device's number of the frames that are wanted
    int m_asked = 0;
    int m_answered = 0;
    CameraInfo m_info;
    ControlValues m_controls;
    FormatValues m_format;
    QString m_sceneName;
};
