// SPDX-License-Identifier: GPL-3.0-or-later
#include "frametee.h"

FrameTee::FrameTee(FrameSource *camera)
    : m_camera(camera)
{
}

FrameTee::~FrameTee()
{
    StopRecording();
    StopFrames();
}

bool FrameTee::StartFrames(FrameSink *display) { return Start(&m_display, display); }

void FrameTee::StopFrames() { Stop(&m_display); }

bool FrameTee::StartRecording(FrameSink *recording) { return Start(&m_recording, recording); }

void FrameTee::StopRecording() { Stop(&m_recording); }

void FrameTee::SetListener(FrameSink *sink)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_listener = sink;
}

bool FrameTee::Start(FrameSink **place, FrameSink *sink)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        *place = sink;
    }
    // Not by who else wants frames: theirs may have failed.
    if (m_camera->IsStarted() || m_camera->StartFrames(this))
        return true;
    const std::lock_guard<std::mutex> lock(m_mutex);
    *place = nullptr;
    return false;
}

void FrameTee::Stop(FrameSink **place)
{
    bool wasLast = false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (!*place)
            return;
        *place = nullptr;
        wasLast = !m_display && !m_recording;
    }
    if (wasLast)
        m_camera->StopFrames(); // waits for a frame on its way, so not under the lock
}

void FrameTee::OnFrame(const CameraFrame &frame)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_recording)
        m_recording->OnFrame(frame);
    if (m_listener)
        m_listener->OnFrame(frame);
    if (m_display)
        m_display->OnFrame(frame);
}

void FrameTee::OnLost(LossStage stage, quint64 firstId, quint64 frames)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_recording)
        m_recording->OnLost(stage, firstId, frames);
}
