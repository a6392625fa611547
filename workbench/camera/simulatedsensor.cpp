// SPDX-License-Identifier: GPL-3.0-or-later
#include <arv.h> // before Qt, whose "signals" GLib uses as a name

#include "simulatedsensor.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {
constexpr double kSlowestTicksPerSecond = 10.0;
constexpr quint64 kLastFrameId = 65535; // then 1 again

void FillPattern(ArvBuffer *buffer, void *sensor, guint32 exposureUs, guint32 gainDb, ArvPixelFormat)
{
    static_cast<SimulatedSensor *>(sensor)->Expose(buffer, exposureUs, gainDb);
}

template <typename Sample>
void Bin(const SceneFrame &from, const SceneFrame &to, int channels, int binning)
{
    const quint32 pixels = quint32(binning * binning);
    for (int y = 0; y < to.height; ++y) {
        auto *row = reinterpret_cast<Sample *>(to.pixels + qptrdiff(y) * to.strideBytes);
        for (int x = 0; x < to.width * channels; ++x) {
            quint32 sum = 0;
            for (int i = 0; i < binning; ++i) {
                const auto *source = reinterpret_cast<const Sample *>(from.pixels + qptrdiff(y * binning + i) * from.strideBytes);
                for (int k = 0; k < binning; ++k)
                    sum += source[(x / channels * binning + k) * channels + x % channels];
            }
            row[x] = Sample((sum + pixels / 2) / pixels);
        }
    }
}
} // namespace

SimulatedSensor::SimulatedSensor(std::unique_ptr<Scene> scene, QSize sensorSize)
    : m_scene(std::move(scene))
    , m_sensorSize(sensorSize)
{
}

void SimulatedSensor::Attach(ArvFakeCamera *camera)
{
    arv_fake_camera_set_fill_pattern(camera, FillPattern, this);
}

void SimulatedSensor::SetScene(std::unique_ptr<Scene> scene)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_scene.swap(scene);
}

QString SimulatedSensor::SceneName() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_scene->Name();
}

void SimulatedSensor::SetBitDepthOf16BitSamples(int bits)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_bitDepth16 = bits;
}

void SimulatedSensor::SetBinning(int binning)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_binning = binning;
}

double SimulatedSensor::SetFrameRate(double framesPerSecond)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_ticksPerFrame = std::max(1, int(std::ceil(kSlowestTicksPerSecond / framesPerSecond)));
    m_ticksToFrame = m_ticksPerFrame;
    return framesPerSecond * m_ticksPerFrame;
}

void SimulatedSensor::Start()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_ticksToFrame = m_ticksPerFrame; // the first frame comes after a whole exposure
    m_isRunning = true;
}

void SimulatedSensor::Stop()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_isRunning = false;
}

bool SimulatedSensor::IsTickDue()
{
    if (!m_isRunning || --m_ticksToFrame > 0)
        return false;
    m_ticksToFrame = m_ticksPerFrame;
    return true;
}

quint64 SimulatedSensor::NextFrameId(quint64 cameraId)
{
    // Starts where the camera does, then counts exposures rather than ticks.
    if (m_lastFrameId == 0)
        m_lastFrameId = cameraId;
    else
        m_lastFrameId = m_lastFrameId == kLastFrameId ? 1 : m_lastFrameId + 1;
    return m_lastFrameId;
}

SceneFrame SimulatedSensor::FrameFor(ArvBuffer *buffer) const
{
    const ArvPixelFormat format = arv_buffer_get_image_pixel_format(buffer);
    size_t receivedBytes = 0;
    SceneFrame frame;
    // The buffer is the camera's to fill; Aravis hands it out as constant only.
    frame.pixels = static_cast<uchar *>(const_cast<void *>(arv_buffer_get_data(buffer, &receivedBytes)));
    arv_buffer_get_image_region(buffer, &frame.offsetX, &frame.offsetY, &frame.width, &frame.height);
    frame.strideBytes = frame.width * int(ARV_PIXEL_FORMAT_BIT_PER_PIXEL(format)) / 8;
    frame.sensorWidth = m_sensorSize.width();
    frame.sensorHeight = m_sensorSize.height();
    frame.bitDepth = format == ARV_PIXEL_FORMAT_MONO_16 ? m_bitDepth16 : 8;
    frame.isColour = format == ARV_PIXEL_FORMAT_RGB_8_PACKED;
    frame.frameNumber = m_frameNumber;
    return frame;
}

void SimulatedSensor::Expose(ArvBuffer *buffer, double exposureUs, double gainDb)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (!IsTickDue()) {
        arv_buffer_set_frame_id(buffer, NotExposed);
        return;
    }
    arv_buffer_set_frame_id(buffer, NextFrameId(arv_buffer_get_frame_id(buffer)));
    SceneFrame frame = FrameFor(buffer);
    frame.exposureUs = exposureUs;
    frame.gainDb = gainDb;
    if (m_binning > 1)
        FillBinned(frame);
    else
        m_scene->Fill(frame);
    ++m_frameNumber;
}

void SimulatedSensor::FillBinned(const SceneFrame &frame)
{
    SceneFrame whole = frame;
    whole.offsetX *= m_binning;
    whole.offsetY *= m_binning;
    whole.width *= m_binning;
    whole.height *= m_binning;
    whole.strideBytes *= m_binning;
    m_unbinned.resize(size_t(whole.strideBytes) * size_t(whole.height));
    whole.pixels = m_unbinned.data();
    m_scene->Fill(whole);
    if (frame.bitDepth > 8)
        Bin<quint16>(whole, frame, 1, m_binning);
    else
        Bin<quint8>(whole, frame, frame.isColour ? 3 : 1, m_binning);
}
