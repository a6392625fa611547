// SPDX-License-Identifier: GPL-3.0-or-later
#include <arv.h> // before Qt, whose "signals" GLib uses as a name

#include "framereceiver.h"

#include "framesink.h"
#include "simulatedsensor.h"
#include "streambufferpool.h"

#include <chrono>

namespace {
constexpr int kStreamBuffers = 8;

qint64 SteadyMs()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

/// Ended by us, or a tick of the simulated camera on which nothing was exposed: no frame at all.
bool IsNoFrame(ArvBuffer *buffer)
{
    const ArvBufferStatus status = arv_buffer_get_status(buffer);
    return status == ARV_BUFFER_STATUS_ABORTED || status == ARV_BUFFER_STATUS_CLEARED
           || arv_buffer_get_frame_id(buffer) == SimulatedSensor::NotExposed;
}

qint64 HostTimeNs(ArvBuffer *buffer)
{
    const quint64 time = arv_buffer_get_system_timestamp(buffer);
    return time != 0 ? qint64(time) : g_get_real_time() * 1000;
}
} // namespace

FrameReceiver::FrameReceiver(FrameLedger &ledger, std::shared_ptr<StreamBufferPool> pool, PixelLayout layout, const FrameOrigin &origin)
    : m_ledger(ledger)
    , m_pool(std::move(pool))
    , m_layout(layout)
    , m_origin(origin)
{
}

void FrameReceiver::OpenGate(FrameSink *sink)
{
    std::lock_guard<std::mutex> lock(m_gate);
    m_frameIds.Reset();
    m_lastId = UnknownFrameId;
    m_incomplete = 0;
    m_lastFrameMs = SteadyMs();
    m_sink = sink;
}

void FrameReceiver::CloseGate()
{
    std::lock_guard<std::mutex> lock(m_gate);
    m_sink = nullptr;
}

void FrameReceiver::Prime(ArvStream *stream)
{
    m_stream = stream;
    for (int i = 0; i < kStreamBuffers; ++i)
        arv_stream_push_buffer(stream, m_pool->Take());
}

void FrameReceiver::TakeBuffer()
{
    ArvStream *stream = m_stream;
    ArvBuffer *buffer = arv_stream_try_pop_buffer(stream);
    if (!buffer)
        return;
    if (Deliver(buffer))
        buffer = m_pool->Take();
    arv_stream_push_buffer(stream, buffer);
}

bool FrameReceiver::Deliver(ArvBuffer *buffer)
{
    std::lock_guard<std::mutex> lock(m_gate);
    if (!m_sink || IsNoFrame(buffer))
        return false;

    m_lastFrameMs = SteadyMs();
    if (!IsComplete(buffer)) {
        // Its own id can't be trusted: without its first packet it is that of the frame before in the same buffer.
        CountLost(LossStage::Transfer, m_lastId == UnknownFrameId ? UnknownFrameId : m_lastId + 1 + m_incomplete, 1);
        ++m_incomplete;
        return false;
    }
    const FrameIdUnwrapper::Step step = m_frameIds.Next(arv_buffer_get_frame_id(buffer));
    if (step.missing > m_incomplete)
        CountLost(LossStage::Camera, m_lastId + 1 + m_incomplete, step.missing - m_incomplete);
    m_lastId = step.id;
    m_incomplete = 0;
    m_ledger.AddCaptured();
    m_sink->OnFrame(FrameFrom(buffer, step.id));
    return true;
}

/// At once: the next whole frame may be long in coming, or never come.
void FrameReceiver::CountLost(LossStage stage, quint64 firstId, quint64 frames)
{
    m_ledger.AddLost(stage, frames);
    m_sink->OnLost(stage, firstId, frames);
}

bool FrameReceiver::IsComplete(ArvBuffer *buffer) const
{
    if (arv_buffer_get_status(buffer) != ARV_BUFFER_STATUS_SUCCESS)
        return false;
    // The camera may have been given another pixel format than the stream was made for.
    if (int(ARV_PIXEL_FORMAT_BIT_PER_PIXEL(arv_buffer_get_image_pixel_format(buffer)))
        != 8 * BytesPerPixel(m_layout))
        return false;
    int paddingX = 0;
    int paddingY = 0;
    arv_buffer_get_image_padding(buffer, &paddingX, &paddingY);
    const qint64 rowBytes = qint64(arv_buffer_get_image_width(buffer)) * BytesPerPixel(m_layout) + paddingX;
    const qint64 bytes = rowBytes * arv_buffer_get_image_height(buffer);
    return bytes > 0 && bytes <= qint64(m_pool->BufferBytes());
}

CameraFrame FrameReceiver::FrameFrom(ArvBuffer *buffer, quint64 frameId) const
{
    int paddingX = 0;
    int paddingY = 0;
    arv_buffer_get_image_padding(buffer, &paddingX, &paddingY);
    CameraFrame frame;
    frame.pixels = m_pool->Lend(buffer);
    frame.width = arv_buffer_get_image_width(buffer);
    frame.height = arv_buffer_get_image_height(buffer);
    frame.strideBytes = frame.width * BytesPerPixel(m_layout) + paddingX;
    frame.layout = m_layout;
    frame.frameId = frameId;
    frame.cameraTimeNs = qint64(arv_buffer_get_timestamp(buffer));
    frame.hostTimeNs = HostTimeNs(buffer);
    frame.origin = m_origin;
    return frame;
}

qint64 FrameReceiver::MillisecondsSinceLastFrame() const { return SteadyMs() - m_lastFrameMs; }
