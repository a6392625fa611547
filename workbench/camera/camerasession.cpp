// SPDX-License-Identifier: GPL-3.0-or-later
#include "camerasession.h"

#include "cameracontrols.h"
#include "cameradevice.h"
#include "cameraformat.h"
#include "controlqueue.h"
#include "scenecatalogue.h"
#include "simulatedsensor.h"

#include <QPointer>

#include <mutex>
#include <utility>

namespace {
void Call(const QPointer<QObject> &receiver, const std::function<void()> &done)
{
    if (receiver && done)
        done();
}
} // namespace

/// Carries what happens in other threads to the session, if that still has this camera.
struct CameraSession::Mailbox : std::enable_shared_from_this<CameraSession::Mailbox>
{
    std::mutex mutex;
    CameraSession *session =
        nullptr; ///< null once the session has closed the camera, in the session's thread

    void Post(const News &news)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        if (!session)
            return;
        QMetaObject::invokeMethod(
            session,
            [self = shared_from_this(), news] {
                for (auto next = news.begin(); self->session && next != news.end(); ++next)
                    (*next)(*self->session);
            },
            Qt::QueuedConnection);
    }
};

CameraSession::CameraSession(QObject *parent)
    : QObject(parent)
    , m_ledger(std::make_shared<FrameLedger>())
    , m_sceneName(SceneCatalogue::DefaultName())
{
}

CameraSession::~CameraSession() { Close(); }

bool CameraSession::Open(const QString &id, QString *error)
{
    Close();
    const auto mailbox = std::make_shared<Mailbox>();
    mailbox->session = this;
    CameraDevice::Setup setup;
    setup.scene = SceneCatalogue::Create(m_sceneName);
    setup.ledger = m_ledger;
    setup.onControlLost = [mailbox] {
        mailbox->Post({ [](CameraSession &session) { emit session.signalControlLost(); } });
    };
    m_device = CameraDevice::Open(id, std::move(setup), error);
    if (!m_device)
        return false;
    m_queue = std::make_shared<ControlQueue>();
    m_mailbox = mailbox;
    m_info = m_device->Info();
    m_controls = m_device->Controls().Values();
    m_format = m_device->Format().Values();
    return true;
}

void CameraSession::Close()
{
    if (!m_device)
        return;
    m_queue->Clear();
    m_device->SetSink(nullptr);
    {
        const std::lock_guard<std::mutex> lock(m_mailbox->mutex);
        m_mailbox->session = nullptr;
    }
    m_mailbox.reset();
    m_sink = nullptr;
    m_info = CameraInfo();
    m_controls = ControlValues();
    m_format = FormatValues();
    m_answered = m_asked;
    // A lost camera keeps the thread that lets go of it waiting.
    m_queue->Add([device = std::exchange(m_device, nullptr)]() mutable { device.reset(); });
    m_queue.reset();
}

bool CameraSession::WaitForTeardown(int timeoutMs) { return ControlQueue::WaitForDone(timeoutMs); }

bool CameraSession::IsSimulated() const { return m_device && m_device->Sensor(); }

bool CameraSession::IsControlLost() const { return m_device && m_device->IsLost(); }

bool CameraSession::SetScene(const QString &name)
{
    std::unique_ptr<Scene> scene = SceneCatalogue::Create(name);
    if (!scene)
        return false;
    m_sceneName = name;
    if (IsSimulated())
        m_device->Sensor()->SetScene(std::move(scene));
    return true;
}

/// What the camera then is like comes with the news.
bool CameraSession::Ask(const std::function<News(CameraDevice &)> &work, const QString &key)
{
    if (!m_device)
        return false;
    m_queue->Add(
        [device = m_device, mailbox = m_mailbox, work] {
            News news = work(*device);
            news.insert(news.begin(),
                        [controls = device->Controls().Values(), format = device->Format().Values()](
                            CameraSession &session) { session.TakeValues(controls, format); });
            mailbox->Post(news);
        },
        key);
    return true;
}

bool CameraSession::TakeTurn(const std::function<void(ArvCamera *)> &task, QObject *receiver,
                             const std::function<void()> &done, const QString &key)
{
    if (IsControlLost())
        return false;
    return Ask(
        [task, to = QPointer<QObject>(receiver), done](CameraDevice &device) -> News {
            if (task)
                task(device.Camera());
            return { [to, done](CameraSession &) { Call(to, done); } };
        },
        key);
}

bool CameraSession::TakeChangingTurn(const std::function<void(ArvCamera *)> &task, QObject *receiver,
                                     const std::function<void()> &done, const QString &key)
{
    if (IsControlLost())
        return false;
    return Ask(
        [task, to = QPointer<QObject>(receiver), done](CameraDevice &device) -> News {
            const FormatValues before = device.Format().Values();
            if (task)
                task(device.Camera());
            const CameraDevice::FormatChange result = device.ReadAgain();
            News news;
            if (!result.error.isEmpty() || !(device.Format().Values() == before))
                news.push_back(
                    [error = result.error](CameraSession &session) { emit session.signalFormatSet(error); });
            news.push_back([run = result.run, fault = result.startFault](CameraSession &session) {
                session.TakeStartFault(run, fault.text, fault.isSilent);
            });
            news.push_back([to, done](CameraSession &) { Call(to, done); });
            return news;
        },
        key);
}

void CameraSession::TakeValues(const ControlValues &controls, const FormatValues &format)
{
    const bool isChanged = !(controls == m_controls);
    m_controls = controls;
    m_format = format;
    if (isChanged)
        emit signalControlsChanged();
}

bool CameraSession::Start(FrameSink *sink)
{
    Stop();
    if (!m_device)
        return false;
    m_ledger->Reset();
    m_sink = sink;
    m_run = m_device->SetSink(sink);
    return Ask([run = m_run](CameraDevice &device) -> News {
        const CameraDevice::StartFault fault = device.Start(run);
        return { [run, fault](CameraSession &session) {
            session.TakeStartFault(run, fault.text, fault.isSilent);
        } };
    });
}

void CameraSession::Stop()
{
    if (!m_sink)
        return;
    m_sink = nullptr;
    m_run = m_device->SetSink(nullptr);
    Ask([](CameraDevice &device) -> News {
        device.StopAcquisition();
        return {};
    });
}

/// The frames of an older run are not missed any more.
void CameraSession::TakeStartFault(int run, const QString &error, bool isSilent)
{
    if (error.isEmpty() || !m_sink || m_run != run)
        return;
    m_sink = nullptr;
    m_run = m_device->SetSink(nullptr);
    emit signalFramesFailed(error, isSilent);
}

qint64 CameraSession::MillisecondsSinceLastFrame() const
{
    return m_sink ? m_device->MillisecondsSinceLastFrame() : 0;
}

void CameraSession::SetControl(const QString &key,
                               const std::function<bool(CameraControls &, QString *error)> &change)
{
    const int number = ++m_asked;
    const bool isAsked = Ask(
        [change, number, key](CameraDevice &device) -> News {
            QString error;
            change(device.Controls(), &error);
            return { [error, number, key](CameraSession &session) {
                session.m_answered = number;
                emit session.signalControlSet(error, key);
            } };
        },
        key);
    if (!isAsked)
        m_answered = number;
}

void CameraSession::SetExposureUs(double exposureUs)
{
    SetControl("exposure", [exposureUs](CameraControls &controls, QString *error) {
        return controls.SetExposureUs(exposureUs, error);
    });
}

void CameraSession::SetAutoExposure(bool isAuto)
{
    SetControl("autoExposure", [isAuto](CameraControls &controls, QString *error) {
        return controls.SetAutoExposure(isAuto, error);
    });
}

void CameraSession::SetGain(double gain)
{
    SetControl("gain",
               [gain](CameraControls &controls, QString *error) { return controls.SetGain(gain, error); });
}

void CameraSession::SetAutoGain(bool isAuto)
{
    SetControl("autoGain", [isAuto](CameraControls &controls, QString *error) {
        return controls.SetAutoGain(isAuto, error);
    });
}

void CameraSession::SetFrameRate(double framesPerSecond)
{
    SetControl("frameRate", [framesPerSecond](CameraControls &controls, QString *error) {
        return controls.SetFrameRate(framesPerSecond, error);
    });
}

void CameraSession::Refresh()
{
    Ask(
        [](CameraDevice &device) -> News {
            device.Controls().Refresh();
            return {};
        },
        "refresh");
}

void CameraSession::SetFormat(const QString &key,
                              const std::function<bool(CameraFormat &, QString *error)> &change)
{
    const int number = ++m_asked;
    const bool isAsked = Ask(
        [change, number](CameraDevice &device) -> News {
            const CameraDevice::FormatChange result = device.ChangeFormat(change);
            return { [error = result.error, number](CameraSession &session) {
                        session.m_answered = number;
                        emit session.signalFormatSet(error);
                    },
                     [run = result.run, fault = result.startFault](CameraSession &session) {
                         session.TakeStartFault(run, fault.text, fault.isSilent);
                     } };
        },
        key);
    if (!isAsked)
        m_answered = number;
}

void CameraSession::SetPixelLayout(PixelLayout layout)
{
    SetFormat("pixelLayout",
              [layout](CameraFormat &format, QString *error) { return format.SetLayout(layout, error); });
}

void CameraSession::SetRegion(const QRect &region)
{
    ChangeRegion("region", [region](const QRect &) { return region; });
}

void CameraSession::ChangeRegion(const QString &key, const std::function<QRect(const QRect &region)> &change)
{
    SetFormat(key, [change](CameraFormat &format, QString *error) {
        return format.SetRegion(change(format.Values().region), error);
    });
}

void CameraSession::SetBinning(int binning)
{
    SetFormat("binning",
              [binning](CameraFormat &format, QString *error) { return format.SetBinning(binning, error); });
}

/// What the camera does not take is seen in what it tells then.
void CameraSession::Restore(const ControlValues &wishedControls, const FormatValues &wishedFormat)
{
    Ask([wishedControls, wishedFormat](CameraDevice &device) -> News {
        const CameraDevice::FormatChange result = device.ChangeFormat([&](CameraFormat &format, QString *error) {
            format.SetLayout(wishedFormat.layout, error);
            format.SetBinning(wishedFormat.binning, error);
            return format.SetRegion(wishedFormat.region, error);
        });
        CameraControls &controls = device.Controls();
        controls.SetExposureUs(wishedControls.exposureUs);
        controls.SetGain(wishedControls.gain);
        controls.SetFrameRate(wishedControls.frameRate);
        if (wishedControls.isAutoExposure)
            controls.SetAutoExposure(true);
        if (wishedControls.isAutoGain)
            controls.SetAutoGain(true);
        return { [](CameraSession &session) { emit session.signalRestored(); },
                 [run = result.run, fault = result.startFault](CameraSession &session) {
                     session.TakeStartFault(run, fault.text, fault.isSilent);
                 } };
    });
}
