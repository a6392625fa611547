// SPDX-License-Identifier: GPL-3.0-or-later
#include "araviserror.h"

#include "camerasession.h"

#include "devicelist.h"
#include "framereceiver.h"
#include "scenecatalogue.h"
#include "simulatedsensor.h"
#include "streambufferpool.h"

#include <QThreadPool>
#include <mutex>
#include <utility>

namespace {
constexpr int kSocketBufferBytes = 4 << 20; // the system's default loses most frames of a large GigE camera

Q_GLOBAL_STATIC(QThreadPool, Workers)

void OnStreamEvent(void *receiver, ArvStreamCallbackType type, ArvBuffer *)
{
    if (type == ARV_STREAM_CALLBACK_TYPE_BUFFER_DONE)
        static_cast<FrameReceiver *>(receiver)->TakeBuffer();
}

void ReleaseStream(ArvStream *stream)
{
    if (!stream)
        return;
    arv_stream_set_emit_signals(stream, FALSE);
    g_object_unref(stream);
}

void SetError(QString *error, const QString &text)
{
    if (error)
        *error = text;
}

QString InterfaceNameOf(ArvCamera *camera)
{
    if (arv_camera_is_gv_device(camera))
        return QStringLiteral("GigE");
    if (arv_camera_is_uv_device(camera))
        return QStringLiteral("USB3");
    return QStringLiteral("Fake");
}
} // namespace

/// Carries the loss of control from the camera's heartbeat thread to the session, if that still has this camera.
struct CameraSession::ControlWatch
{
    std::atomic<bool> isLost{ false };
    std::mutex mutex;
    CameraSession *session = nullptr; ///< null once the session has closed the camera

    static void OnControlLost(ArvDevice *, void *data)
    {
        const std::shared_ptr<ControlWatch> watch = *static_cast<std::shared_ptr<ControlWatch> *>(data);
        watch->isLost = true;
        std::lock_guard<std::mutex> lock(watch->mutex);
        if (!watch->session)
            return;
        QMetaObject::invokeMethod(
            watch->session,
            [watch, session = watch->session] {
                if (session->m_watch == watch)
                    emit session->signalControlLost();
            },
            Qt::QueuedConnection);
    }

    static void Free(void *data, GClosure *) { delete static_cast<std::shared_ptr<ControlWatch> *>(data); }
};

CameraSession::CameraSession(QObject *parent)
    : QObject(parent)
    , m_sceneName(SceneCatalogue::DefaultName())
{
}

CameraSession::~CameraSession() { Close(); }

bool CameraSession::Open(const QString &id, QString *error)
{
    Close();
    if (IsSimulatedCamera(id))
        arv_enable_interface("Fake");
    else
        ReadDeviceList(); // without it a GigE camera may be reached through the wrong network interface

    AravisError failure;
    ArvCamera *camera = arv_camera_new(id.toUtf8().constData(), failure.Receive());
    if (!camera) {
        SetError(error,
                 tr("The camera %1 could not be opened: %2. Check that it is connected and powered, and that "
                    "no other program uses it.")
                     .arg(id, failure.Text()));
        return false;
    }
    if (!Attach(camera, error)) {
        Close();
        return false;
    }
    ReadInfo(id);
    WatchControl();
    return true;
}

bool CameraSession::Attach(ArvCamera *camera, QString *error)
{
    m_camera = camera;
    m_watch = std::make_shared<ControlWatch>();
    ArvDevice *device = arv_camera_get_device(camera);
    if (ARV_IS_FAKE_DEVICE(device)) {
        int width = 0;
        int height = 0;
        arv_camera_get_sensor_size(camera, &width, &height, nullptr);
        m_sensor =
            std::make_shared<SimulatedSensor>(SceneCatalogue::Create(m_sceneName), QSize(width, height));
        m_sensor->Attach(arv_fake_device_get_fake_camera(ARV_FAKE_DEVICE(device)));
    } else {
        arv_camera_clear_triggers(camera, nullptr); // the last user may have left the camera waiting for one
    }

    m_controls =
        std::make_unique<CameraControls>(camera, m_sensor.get(), [this] { return CanReach(nullptr); });
    m_format = std::make_unique<CameraFormat>(camera, m_sensor.get());
    if (m_format->Layouts().isEmpty()) {
        SetError(error, tr("The camera offers none of the pixel formats Mono8, Mono12, Mono16 and RGB8."));
        return false;
    }
    const PixelLayout layout = m_format->Layout();
    if (!m_format->SetLayout(m_format->Layouts().contains(layout) ? layout : m_format->Layouts().first(),
                             error))
        return false;
    return !m_sensor || m_format->SetRegion(QRect(QPoint(0, 0), m_format->Limits().sensorSize), error);
}

void CameraSession::ReadInfo(const QString &id)
{
    m_info = CameraInfo();
    m_info.id = id;
    m_info.vendor = QString::fromUtf8(arv_camera_get_vendor_name(m_camera, nullptr));
    m_info.model = QString::fromUtf8(arv_camera_get_model_name(m_camera, nullptr));
    m_info.serial = QString::fromUtf8(arv_camera_get_device_serial_number(m_camera, nullptr));
    m_info.firmware = QString::fromUtf8(arv_camera_get_string(m_camera, "DeviceVersion", nullptr));
    m_info.interfaceName = InterfaceNameOf(m_camera);
}

void CameraSession::WatchControl()
{
    m_watch->session = this;
    g_signal_connect_data(arv_camera_get_device(m_camera), "control-lost",
                          G_CALLBACK(ControlWatch::OnControlLost), new std::shared_ptr<ControlWatch>(m_watch),
                          ControlWatch::Free, GConnectFlags(0));
}

void CameraSession::Close()
{
    if (!m_camera)
        return;
    Stop();
    {
        std::lock_guard<std::mutex> lock(m_watch->mutex);
        m_watch->session = nullptr;
    }
    m_controls.reset();
    m_format.reset();
    m_watch.reset();
    m_info = CameraInfo();

    // A lost camera keeps each of these calls waiting. What the stream and the camera write into goes after them.
    Workers()->start([camera = std::exchange(m_camera, nullptr), stream = std::exchange(m_stream, nullptr),
                      receiver = std::exchange(m_receiver, nullptr),
                      sensor = std::exchange(m_sensor, nullptr), stopping = std::exchange(m_busy, {})] {
        if (stopping.valid())
            stopping.wait();
        ReleaseStream(stream);
        g_object_unref(camera);
    });
}

bool CameraSession::WaitForTeardown(int timeoutMs) { return Workers()->waitForDone(timeoutMs); }

bool CameraSession::IsControlLost() const { return m_watch && m_watch->isLost; }

bool CameraSession::HasFeature(const QString &name) const
{
    return CanReach(nullptr) && arv_camera_is_feature_available(m_camera, name.toUtf8().constData(), nullptr);
}

bool CameraSession::CanReach(QString *error) const
{
    if (!m_camera) {
        SetError(error, tr("No camera is open."));
        return false;
    }
    WaitForTurn(); // one call at a time
    if (IsControlLost()) {
        SetError(error, tr("The camera %1 does not answer. Check its cable and power.").arg(m_info.model));
        return false;
    }
    return true;
}

bool CameraSession::SetScene(const QString &name)
{
    std::unique_ptr<Scene> scene = SceneCatalogue::Create(name);
    if (!scene)
        return false;
    m_sceneName = name;
    if (m_sensor)
        m_sensor->SetScene(std::move(scene));
    return true;
}

bool CameraSession::CreateStream(QString *error)
{
    const size_t frameBytes = m_format->FrameBytes();
    m_receiver =
        std::make_shared<FrameReceiver>(m_ledger, StreamBufferPool::Create(frameBytes), m_format->Layout());
    AravisError failure;
    m_stream = arv_camera_create_stream(m_camera, OnStreamEvent, m_receiver.get(), failure.Receive());
    if (!m_stream || frameBytes == 0) {
        DropStream();
        SetError(error, tr("The camera %1 sends no pictures: %2. Close it and open it again.")
                            .arg(m_info.model, failure.Text()));
        return false;
    }
    if (ARV_IS_GV_STREAM(m_stream))
        g_object_set(m_stream, "socket-buffer", ARV_GV_STREAM_SOCKET_BUFFER_FIXED, "socket-buffer-size",
                     kSocketBufferBytes, nullptr);
    m_receiver->Prime(m_stream);
    return true;
}

void CameraSession::DropStream()
{
    ReleaseStream(std::exchange(m_stream, nullptr));
    m_receiver.reset();
}

bool CameraSession::Start(FrameSink *sink, QString *error)
{
    Stop();
    m_ledger.Reset();
    return Resume(sink, error);
}

bool CameraSession::Resume(FrameSink *sink, QString *error)
{
    if (!CanReach(error) || (!m_stream && !CreateStream(error)))
        return false;
    m_receiver->OpenGate(sink);
    if (m_sensor)
        m_sensor->Start();
    AravisError failure;
    arv_camera_set_acquisition_mode(m_camera, ARV_ACQUISITION_MODE_CONTINUOUS, nullptr);
    arv_camera_start_acquisition(m_camera, failure.Receive());
    if (failure.IsSet()) {
        m_receiver->CloseGate();
        SetError(error, tr("The camera %1 did not start: %2. Close it and open it again.")
                            .arg(m_info.model, failure.Text()));
        return false;
    }
    m_sink = sink;
    return true;
}

void CameraSession::Stop()
{
    if (!m_sink)
        return;
    m_receiver->CloseGate();
    m_sink = nullptr;
    if (m_sensor)
        m_sensor->Stop();
    if (IsControlLost())
        return;
    Workers()->start(TurnFor([](ArvCamera *camera) { arv_camera_stop_acquisition(camera, nullptr); }));
}

std::function<void()> CameraSession::TurnFor(const std::function<void(ArvCamera *)> &task)
{
    auto done = std::make_shared<std::promise<void>>();
    const std::shared_future<void> before = std::exchange(m_busy, done->get_future().share());
    const std::shared_ptr<ArvCamera> camera(ARV_CAMERA(g_object_ref(m_camera)), g_object_unref);
    return [camera, before, done, task] {
        if (before.valid())
            before.wait();
        task(camera.get());
        done->set_value();
    };
}

std::function<void()> CameraSession::TakeTurn(const std::function<void(ArvCamera *)> &task)
{
    return m_camera && !IsControlLost() ? TurnFor(task) : nullptr;
}

void CameraSession::WaitForTurn() const
{
    if (m_busy.valid())
        m_busy.wait();
}

qint64 CameraSession::MillisecondsSinceLastFrame() const
{
    return m_sink ? m_receiver->MillisecondsSinceLastFrame() : 0;
}

bool CameraSession::SetPixelLayout(PixelLayout layout, QString *error)
{
    return ChangeFormat([&] { return m_format->SetLayout(layout, error); }, error);
}

bool CameraSession::SetRegion(const QRect &region, QString *error)
{
    return ChangeFormat([&] { return m_format->SetRegion(region, error); }, error);
}

bool CameraSession::SetBinning(int binning, QString *error)
{
    return ChangeFormat([&] { return m_format->SetBinning(binning, error); }, error);
}

bool CameraSession::ChangeFormat(const std::function<bool()> &change, QString *error)
{
    if (!CanReach(error))
        return false;
    FrameSink *const sink = m_sink;
    Stop();
    WaitForTurn();
    DropStream();
    const bool isChanged = change();
    return (!sink || Resume(sink, error)) && isChanged;
}
