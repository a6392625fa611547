// SPDX-License-Identifier: GPL-3.0-or-later
#include "araviserror.h"

#include "cameradevice.h"

#include "cameracontrols.h"
#include "cameraformat.h"
#include "devicelist.h"
#include "frameledger.h"
#include "framereceiver.h"
#include "scene.h"
#include "simulatedsensor.h"
#include "streambufferpool.h"

#include <atomic>
#include <utility>

namespace {
constexpr int SocketBufferBytes = 4 << 20; // the system's default loses most frames of a large GigE camera

void OnStreamEvent(void *receiver, ArvStreamCallbackType type, ArvBuffer *)
{
    if (type == ARV_STREAM_CALLBACK_TYPE_BUFFER_DONE)
        static_cast<FrameReceiver *>(receiver)->TakeBuffer();
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

/// Written by the camera's heartbeat thread. Shared with the camera, which may outlive the device for a moment.
struct CameraDevice::LossWatch
{
    std::atomic<bool> isLost{ false };
    std::function<void()> tell;

    static void OnControlLost(ArvDevice *, void *data)
    {
        const std::shared_ptr<LossWatch> watch = *static_cast<std::shared_ptr<LossWatch> *>(data);
        watch->isLost = true;
        watch->tell();
    }

    static void Free(void *data, GClosure *) { delete static_cast<std::shared_ptr<LossWatch> *>(data); }
};

std::shared_ptr<CameraDevice> CameraDevice::Open(const QString &id, Setup setup, QString *error)
{
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
        return nullptr;
    }
    const std::shared_ptr<CameraDevice> device(new CameraDevice(camera, &setup));
    if (!device->Prepare(std::move(setup.scene), error))
        return nullptr;
    device->ReadInfo(id);
    device->WatchControl();
    return device;
}

CameraDevice::CameraDevice(ArvCamera *camera, Setup *setup)
    : m_camera(camera)
    , m_ledger(setup->ledger)
    , m_watch(std::make_shared<LossWatch>())
{
    m_watch->tell = setup->onControlLost;
}

/// What the stream and the camera write into goes after them.
CameraDevice::~CameraDevice()
{
    StopAcquisition();
    DropStream();
    g_object_unref(m_camera);
}

bool CameraDevice::Prepare(std::unique_ptr<Scene> scene, QString *error)
{
    ArvDevice *device = arv_camera_get_device(m_camera);
    if (ARV_IS_FAKE_DEVICE(device)) {
        int width = 0;
        int height = 0;
        arv_camera_get_sensor_size(m_camera, &width, &height, nullptr);
        m_sensor = std::make_unique<SimulatedSensor>(std::move(scene), QSize(width, height));
        m_sensor->Attach(arv_fake_device_get_fake_camera(ARV_FAKE_DEVICE(device)));
    } else {
        arv_camera_clear_triggers(m_camera, nullptr); // the last user may have left the camera waiting for one
    }

    m_controls = std::make_unique<CameraControls>(m_camera, m_sensor.get(), [this] { return !IsLost(); });
    m_format = std::make_unique<CameraFormat>(m_camera, m_sensor.get());
    const FormatValues &format = m_format->Values();
    if (format.layouts.isEmpty()) {
        SetError(error, tr("The camera offers none of the pixel formats Mono8, Mono12, Mono16 and RGB8."));
        return false;
    }
    if (!m_format->SetLayout(format.layouts.contains(format.layout) ? format.layout : format.layouts.first(), error))
        return false;
    return !m_sensor || m_format->SetRegion(QRect(QPoint(0, 0), format.limits.sensorSize), error);
}

void CameraDevice::ReadInfo(const QString &id)
{
    m_info.id = id;
    m_info.vendor = QString::fromUtf8(arv_camera_get_vendor_name(m_camera, nullptr));
    m_info.model = QString::fromUtf8(arv_camera_get_model_name(m_camera, nullptr));
    m_info.serial = QString::fromUtf8(arv_camera_get_device_serial_number(m_camera, nullptr));
    m_info.firmware = QString::fromUtf8(arv_camera_get_string(m_camera, "DeviceVersion", nullptr));
    m_info.interfaceName = InterfaceNameOf(m_camera);
}

void CameraDevice::WatchControl()
{
    g_signal_connect_data(arv_camera_get_device(m_camera), "control-lost", G_CALLBACK(LossWatch::OnControlLost),
                          new std::shared_ptr<LossWatch>(m_watch), LossWatch::Free, GConnectFlags(0));
}

bool CameraDevice::IsLost() const { return m_watch->isLost; }

bool CameraDevice::CanReach(QString *error) const
{
    if (!IsLost())
        return true;
    SetError(error, tr("The camera %1 does not answer. Check its cable and power.").arg(m_info.model));
    return false;
}

int CameraDevice::SetSink(FrameSink *sink)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    CloseGate();
    m_sink = sink;
    return ++m_run;
}

/// False when nobody waits for that run any more.
bool CameraDevice::OpenGate(int run)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (run != m_run || !m_sink)
        return false;
    m_receiver->OpenGate(m_sink);
    m_isGateOpen = true;
    return true;
}

/// Under the lock.
void CameraDevice::CloseGate()
{
    if (m_receiver)
        m_receiver->CloseGate();
    m_isGateOpen = false;
}

qint64 CameraDevice::MillisecondsSinceLastFrame() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_isGateOpen ? m_receiver->MillisecondsSinceLastFrame() : 0;
}

CameraDevice::StartFault CameraDevice::CreateStream()
{
    AravisError failure;
    const size_t frameBytes = m_format->FrameBytes(&failure);
    if (frameBytes > 0) {
        const FormatValues &format = m_format->Values();
        auto receiver = std::make_unique<FrameReceiver>(*m_ledger, StreamBufferPool::Create(frameBytes), format.layout,
                                                        FrameOrigin{KeptCameraName(m_info), format.region, format.binning});
        m_stream = arv_camera_create_stream(m_camera, OnStreamEvent, receiver.get(), failure.Receive());
        if (m_stream && ARV_IS_GV_STREAM(m_stream))
            g_object_set(m_stream, "socket-buffer", ARV_GV_STREAM_SOCKET_BUFFER_FIXED, "socket-buffer-size",
                         SocketBufferBytes, nullptr);
        if (m_stream)
            receiver->Prime(m_stream);
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_receiver = std::move(receiver);
    }
    m_streamBytes = frameBytes;
    if (m_stream)
        return {};
    DropStream();
    const QString reason = failure.IsSet() ? failure.Text() : tr("its frames have no size");
    return { tr("The camera %1 sends no pictures: %2. Close it and open it again.").arg(m_info.model, reason),
             failure.IsSilence() };
}

void CameraDevice::DropStream()
{
    if (ArvStream *stream = std::exchange(m_stream, nullptr)) {
        arv_stream_set_emit_signals(stream, FALSE);
        g_object_unref(stream);
    }
    const std::lock_guard<std::mutex> lock(m_mutex);
    CloseGate();
    m_receiver.reset();
}

CameraDevice::StartFault CameraDevice::Start(int run)
{
    StopAcquisition();
    m_startedRun = run;
    return Resume(run);
}

CameraDevice::StartFault CameraDevice::Resume(int run)
{
    QString lost;
    if (!CanReach(&lost))
        return { lost, true };
    if (!m_stream) {
        const StartFault fault = CreateStream();
        if (!fault.text.isEmpty())
            return fault;
    }
    if (!OpenGate(run))
        return {};
    if (m_sensor)
        m_sensor->Start();
    AravisError failure;
    arv_camera_set_acquisition_mode(m_camera, ARV_ACQUISITION_MODE_CONTINUOUS, nullptr);
    arv_camera_start_acquisition(m_camera, failure.Receive());
    m_isAcquiring = true; // some of it may have reached the camera
    if (!failure.IsSet())
        return {};
    StopAcquisition();
    return {
        tr("The camera %1 did not start: %2. Close it and open it again.").arg(m_info.model, failure.Text()),
        failure.IsSilence()
    };
}

void CameraDevice::StopAcquisition()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        CloseGate();
    }
    if (!std::exchange(m_isAcquiring, false))
        return;
    if (m_sensor)
        m_sensor->Stop();
    if (!IsLost())
        arv_camera_stop_acquisition(m_camera, nullptr);
}

CameraDevice::FormatChange
CameraDevice::ChangeFormat(const std::function<bool(CameraFormat &format, QString *error)> &change)
{
    FormatChange result;
    if (!CanReach(&result.error))
        return result;
    const bool wasAcquiring = m_isAcquiring;
    StopAcquisition();
    DropStream();
    change(*m_format, &result.error);
    result.run = m_startedRun;
    if (wasAcquiring)
        result.startFault = Resume(m_startedRun);
    return result;
}

CameraDevice::FormatChange CameraDevice::ReadAgain()
{
    FormatChange unchanged;
    AravisError failure;
    // One that does not answer would keep each of many calls waiting.
    const size_t frameBytes = IsLost() ? 0 : m_format->FrameBytes(&failure);
    if (IsLost() || failure.IsSet())
        return unchanged;
    const FormatValues before = m_format->Values();
    const bool isKnown = m_format->ReadAgain();
    m_controls->ReadAgain();
    const bool hasSameFrames = isKnown && m_format->Values().HasSameFrames(before);
    if (hasSameFrames && (!m_stream || frameBytes == m_streamBytes))
        return unchanged;
    return ChangeFormat([isKnown, layout = before.layout](CameraFormat &format, QString *error) {
        return isKnown || format.TakeBack(layout, error);
    });
}
