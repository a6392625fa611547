// SPDX-License-Identifier: GPL-3.0-or-later
#include "cameralink.h"

#include "camerasession.h"
#include "scenecatalogue.h"

#include <QThread>

#include <cmath>
#include <utility>

namespace {
/// Settings come back in the camera's own steps.
bool IsNear(double value, double wished) { return std::abs(value - wished) <= 1e-3 * std::abs(wished) + 1e-9; }

constexpr int WatchPeriodMs = 500;
/// A camera that owes this many frames, and is silent for at least SilenceMs, is lost.
constexpr double OwedFrames = 3.0;
constexpr int SilenceMs = 3000;
constexpr int MsPerSecond = 1000;
}

std::shared_ptr<CameraSession> CameraLink::OpenSession(const QString &id, const QString &scene, QString *error)
{
    auto session = std::make_shared<CameraSession>();
    session->SetScene(scene);
    if (!session->Open(id, error))
        return nullptr;
    return session;
}

CameraLink::CameraLink(Opener opener, QObject *parent)
    : QObject(parent)
    , m_opener(std::move(opener))
    , m_scene(SceneCatalogue::DefaultName())
{
    m_worker.setMaxThreadCount(1);
    m_tryTimer.setSingleShot(true);
    m_tryTimer.setTimerType(Qt::PreciseTimer); // the seconds that are left are shown
    m_watchTimer.setInterval(WatchPeriodMs);
    connect(&m_tryTimer, SIGNAL(timeout()), this, SLOT(slotTryAgain()));
    connect(&m_watchTimer, SIGNAL(timeout()), this, SLOT(slotWatchFrames()));
}

CameraLink::~CameraLink()
{
    m_worker.clear();
    m_worker.waitForDone();
}

void CameraLink::Open(const QString &id)
{
    Close();
    m_info = CameraInfo();
    m_info.id = id;
    SetState(State::Opening);
    OpenInWorker(id);
}

void CameraLink::Close()
{
    m_tryTimer.stop();
    m_watchTimer.stop();
    m_isTrying = false;
    m_isRestoring = false;
    m_session.reset();
    m_sink = nullptr;
    m_info = CameraInfo();
    SetState(State::NoCamera);
}

void CameraLink::Reconnect()
{
    if (m_state != State::Lost || m_isTrying)
        return;
    m_policy.Reset();
    m_tryTimer.stop();
    slotTryAgain();
}

QString CameraLink::Name() const
{
    return CameraName(m_info);
}

int CameraLink::SecondsToNextTry() const
{
    return m_tryTimer.isActive() ? (m_tryTimer.remainingTime() + MsPerSecond - 1) / MsPerSecond : 0;
}

void CameraLink::OpenInWorker(const QString &id)
{
    m_worker.start([this, id, scene = m_scene, guiThread = thread()] {
        QString error;
        std::shared_ptr<CameraSession> session = m_opener(id, scene, &error);
        if (session)
            session->moveToThread(guiThread);
        // Nobody but the link keeps it: when that lets go of it, it is gone.
        QMetaObject::invokeMethod(
            this,
            [this, id, session = std::move(session), error]() mutable {
                TakeResult(id, std::move(session), error);
            },
            Qt::QueuedConnection);
    });
}

void CameraLink::TakeResult(const QString &id, std::shared_ptr<CameraSession> session, const QString &error)
{
    if (m_info.id != id || m_state == State::Open)
        return; // another camera was chosen in the meantime
    m_isTrying = false;
    if (session) {
        Adopt(std::move(session));
    } else if (m_state == State::Lost) {
        ScheduleTry();
    } else {
        Close();
        emit signalMessage(error);
    }
}

void CameraLink::Adopt(std::shared_ptr<CameraSession> session)
{
    m_isRestoring = m_state == State::Lost;
    m_session = std::move(session);
    m_info = m_session->Info();
    m_policy.Reset();
    ConnectSession();
    if (m_isRestoring)
        m_session->Restore(m_keptControls, m_keptFormat);
    const bool isBack = m_isRestoring;
    SetState(State::Open);
    if (isBack && m_sink)
        StartFrames(m_sink);
}

void CameraLink::ConnectSession()
{
    const CameraSession *session = m_session.get();
    connect(session, SIGNAL(signalControlLost()), this, SLOT(slotControlLost()));
    connect(session, SIGNAL(signalControlsChanged()), this, SIGNAL(signalControlsChanged()));
    connect(session, SIGNAL(signalControlSet(QString, QString)), this,
            SIGNAL(signalControlSet(QString, QString)));
    connect(session, SIGNAL(signalFormatSet(QString)), this, SLOT(slotFormatSet(QString)));
    connect(session, SIGNAL(signalRestored()), this, SLOT(slotRestored()));
    connect(session, SIGNAL(signalFramesFailed(QString, bool)), this, SLOT(slotFramesFailed(QString, bool)));
}

void CameraLink::slotFormatSet(QString error)
{
    if (!error.isEmpty())
        emit signalMessage(error);
    emit signalFormatChanged();
}

void CameraLink::slotRestored()
{
    m_isRestoring = false;
    const QString text = BackText(); // who hears of the first may close the camera
    emit signalFormatChanged();
    emit signalMessage(text);
}

/// One that does not answer is lost, before it is known: who wants its frames gets them when it is back.
void CameraLink::slotFramesFailed(QString error, bool isSilent)
{
    if (isSilent)
        return Lose();
    m_sink = nullptr;
    m_watchTimer.stop();
    emit signalMessage(error);
    emit signalFramesFailed();
}

QString CameraLink::BackText() const
{
    const QStringList differing = SettingsThatDiffer();
    if (differing.isEmpty())
        return tr("Camera \"%1\" is back.").arg(Name());
    return tr("Camera \"%1\" is back, but not as it was: check its %2.").arg(Name(), differing.join(", "));
}

void CameraLink::slotControlLost()
{
    if (m_session)
        Lose();
}

void CameraLink::slotWatchFrames()
{
    if (!m_session || !m_session->IsStreaming())
        return;
    const double rate = m_session->Controls().frameRate;
    const double owedMs = rate > 0 ? OwedFrames * MsPerSecond / rate : 0;
    if (m_session->MillisecondsSinceLastFrame() > SilenceMs + owedMs)
        Lose();
}

void CameraLink::Lose()
{
    KeepSettings();
    m_countsBefore = Counts();
    m_session.reset();
    m_watchTimer.stop();
    m_policy.Reset();
    m_state = State::Lost;
    ScheduleTry();
}

void CameraLink::ScheduleTry()
{
    if (const std::optional<int> delayMs = m_policy.NextDelayMs())
        m_tryTimer.start(*delayMs);
    emit signalStateChanged();
}

void CameraLink::slotTryAgain()
{
    m_isTrying = true;
    emit signalStateChanged();
    OpenInWorker(m_info.id);
}

void CameraLink::SetState(State state)
{
    if (m_state == state)
        return;
    m_state = state;
    emit signalStateChanged();
}

void CameraLink::SetScene(const QString &name)
{
    m_scene = name;
    if (m_session)
        m_session->SetScene(name);
    emit signalFormatChanged();
}

void CameraLink::SetPixelLayout(PixelLayout layout)
{
    if (MayChangeFormat())
        m_session->SetPixelLayout(layout);
}

void CameraLink::SetRegion(const QRect &region)
{
    if (MayChangeFormat())
        m_session->SetRegion(region);
}

void CameraLink::ChangeRegion(const QString &key, const std::function<QRect(const QRect &region)> &change)
{
    if (MayChangeFormat())
        m_session->ChangeRegion(key, change);
}

void CameraLink::SetBinning(int binning)
{
    if (MayChangeFormat())
        m_session->SetBinning(binning);
}

bool CameraLink::StartFrames(FrameSink *sink)
{
    if (m_state != State::Open && m_state != State::Lost)
        return false;
    if (m_sink != sink)
        m_countsBefore = FrameCounts();
    m_sink = sink;
    if (!m_session)
        return true; // its frames come when the camera is back
    m_session->Start(sink);
    m_watchTimer.start();
    return true;
}

void CameraLink::StopFrames()
{
    m_sink = nullptr;
    m_watchTimer.stop();
    if (m_session)
        m_session->Stop();
}

FrameCounts CameraLink::Counts() const
{
    FrameCounts sum = m_countsBefore;
    if (!m_session)
        return sum;
    const FrameCounts now = m_session->Ledger().Counts();
    sum.captured += now.captured;
    for (size_t stage = 0; stage < sum.lostAt.size(); ++stage)
        sum.lostAt[stage] += now.lostAt[stage];
    return sum;
}

bool CameraLink::MayChangeFormat()
{
    if (m_session && m_isFormatHeld) {
        emit signalMessage(tr("The size and format of the frames stay as they are while a recording runs. Stop it first."));
        emit signalFormatChanged(); // who asked shows what holds
    }
    return m_session && !m_isFormatHeld;
}

/// One that is lost before it has its settings again gets them the next time.
void CameraLink::KeepSettings()
{
    if (m_isRestoring)
        return;
    m_keptControls = m_session->Controls();
    m_keptFormat = m_session->Format();
}

QStringList CameraLink::SettingsThatDiffer() const
{
    const ControlValues &controls = m_session->Controls();
    const FormatValues &format = m_session->Format();
    QStringList differing;
    if (format.layout != m_keptFormat.layout)
        differing << tr("pixel format");
    if (format.region != m_keptFormat.region)
        differing << tr("region");
    if (format.binning != m_keptFormat.binning)
        differing << tr("binning");
    if (controls.isAutoExposure != m_keptControls.isAutoExposure)
        differing << tr("automatic exposure");
    if (controls.isAutoGain != m_keptControls.isAutoGain)
        differing << tr("automatic gain");
    if (!m_keptControls.isAutoExposure && !IsNear(controls.exposureUs, m_keptControls.exposureUs))
        differing << tr("exposure");
    if (!m_keptControls.isAutoGain && !IsNear(controls.gain, m_keptControls.gain))
        differing << tr("gain");
    if (!IsNear(controls.frameRate, m_keptControls.frameRate))
        differing << tr("frame rate");
    return differing;
}
