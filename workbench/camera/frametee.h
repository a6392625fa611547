// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framesink.h"
#include "framesource.h"

#include <mutex>

/// Hands the frames of one camera to the display and to the recording, each of which comes and goes as it likes. The
/// camera sends while either wants frames. Frames are handed on in the camera's thread, to the recording first; the
/// rest belongs to the GUI thread.
class FrameTee : public FrameSource, private FrameSink
{
public:
    /// Borrowed; outlives this object.
    explicit FrameTee(FrameSource *camera);
    ~FrameTee() override;

    bool StartFrames(FrameSink *display) override;
    void StopFrames() override;
    bool IsStarted() const override { return m_display && m_camera->IsStarted(); }
    bool StartRecording(FrameSink *recording);
    /// After this no frame reaches the recording any more.
    void StopRecording();
    /// `sink` gets every frame that comes, for as long as the display or a recording wants any; null ends it. It belongs
    /// to none of the two, and no frame comes because of it.
    void SetListener(FrameSink *sink);

private:
    void OnFrame(const CameraFrame &frame) override;
    void OnLost(LossStage stage, quint64 firstId, quint64 frames) override;
    bool Start(FrameSink **place, FrameSink *sink);
    void Stop(FrameSink **place);

    FrameSource *m_camera;
    std::mutex m_mutex; ///< held while a frame is handed on
    FrameSink *m_display = nullptr;
    FrameSink *m_recording = nullptr;
    FrameSink *m_listener = nullptr;
};
