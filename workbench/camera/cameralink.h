// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "camerainfo.h"
#include "controlvalues.h"
#include "formatvalues.h"
#include "frameledger.h"
#include "framesource.h"
#include "reconnectpolicy.h"

#include <QObject>
#include <QStringList>
#include <QThreadPool>
#include <QTimer>

#include <functional>
#include <memory>

class CameraSession;

/// The camera the user works with: opens it, notices when it is lost, and tries to come back in
/// bounded steps. Opening one takes up to a few seconds and runs in a worker; everything else is the
/// GUI thread's, which asks the session and never waits for the camera. A lost one is let go at once.
class CameraLink : public QObject, public FrameSource
{
    Q_OBJECT

public:
    enum class State {
        NoCamera, ///< none was chosen, or it was closed
        Opening,
        Open,
        Lost ///< was open; tries to come back, or has given up
    };
    /// Opens the camera `id` with the scene; null and an error in words when that fails. Runs in the
    /// worker.
    using Opener = std::function<std::shared_ptr<CameraSession>(const QString &id, const QString &scene, QString *error)>;

    /// Tries to get a lost camera back.
    static constexpr int ReconnectTries = 6;

    static std::shared_ptr<CameraSession> OpenSession(const QString &id, const QString &scene, QString *error);

    explicit CameraLink(Opener opener = OpenSession, QObject *parent = nullptr);
    ~CameraLink() override;

    /// Begins to open a camera; signalStateChanged() tells how it ended.
    void Open(const QString &id);
    void Close();
    /// Tries to get the lost camera back now, and begins the steps anew.
    void Reconnect();

    State GetState() const { return m_state; }
    /// Null unless the state is Open.
    CameraSession *Session() const { return m_session.get(); }
    /// Who the open, lost or opening camera is.
    const CameraInfo &Info() const { return m_info; }
    /// Model and serial number, or the id of one that has not been open yet.
    QString Name() const;
    /// Tries made and allowed since the camera was lost.
    int TriesMade() const { return m_policy.TriesMade(); }
    bool HasGivenUp() const { return m_state == State::Lost && !m_tryTimer.isActive() && !m_isTrying; }
    /// Until the next try; 0 when none is due.
    int SecondsToNextTry() const;

    /// What the simulated camera looks at, now and whenever it is opened.
    void SetScene(const QString &name);
    QString SceneName() const { return m_scene; }
    /// What became of these is told by signalFormatChanged() and, when they fail, signalMessage().
    void SetPixelLayout(PixelLayout layout);
    /// In sensor pixels; the camera takes the nearest region it can.
    void SetRegion(const QRect &region);
    /// As CameraSession::ChangeRegion().
    void ChangeRegion(const QString &key, const std::function<QRect(const QRect &region)> &change);
    /// Sensor pixels along each side of a pixel of the frames.
    void SetBinning(int binning);
    /// While held, the size and layout of frames stay as they are, and who wants to change them is told so.
    void HoldFormat(bool held) { m_isFormatHeld = held; }

    bool StartFrames(FrameSink *sink) override;
    void StopFrames() override;
    bool IsStarted() const override { return m_sink; }
    /// Since the preview was started, across reconnections.
    FrameCounts Counts() const;

signals:
    void signalStateChanged();
    /// Pixel layout, region or scene of the open camera changed, or were not changed though somebody asked for it.
    void signalFormatChanged();
    /// Of the open camera, as CameraSession has them.
    void signalControlsChanged();
    void signalControlSet(QString error, QString control);
    /// The camera refuses to send the frames that StartFrames() asked for; signalMessage() says why.
    void signalFramesFailed();
    /// A sentence for the status bar.
    void signalMessage(QString text);

private slots:
    void slotControlLost();
    void slotWatchFrames();
    void slotTryAgain();
    void slotFormatSet(QString error);
    void slotRestored();
    void slotFramesFailed(QString error, bool isSilent);

private:
    void OpenInWorker(const QString &id);
    void TakeResult(const QString &id, std::shared_ptr<CameraSession> session, const QString &error);
    void Adopt(std::shared_ptr<CameraSession> session);
    void Lose();
    void ScheduleTry();
    void SetState(State state);
    bool MayChangeFormat();
    void ConnectSession();
    void KeepSettings();
    /// Read back from the camera: what it did not take.
    QStringList SettingsThatDiffer() const;
    QString BackText() const;

    Opener m_opener;
    QThreadPool m_worker;
    std::shared_ptr<CameraSession> m_session;
    CameraInfo m_info;
    State m_state = State::NoCamera;
    QString m_scene;
    FrameSink *m_sink = nullptr; ///< who wants frames, of a lost camera too
    FrameCounts m_countsBefore;
    ControlValues m_keptControls; ///< what a camera that comes back gets again
    FormatValues m_keptFormat;
    ReconnectPolicy m_policy{ReconnectTries};
    QTimer m_tryTimer;
    QTimer m_watchTimer;
    bool m_isTrying = false;
    bool m_isRestoring = false; ///< came back, and has not all of its settings yet
    bool m_isFormatHeld = false;
};
