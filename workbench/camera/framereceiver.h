// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cameraframe.h"
#include "frameidunwrapper.h"
#include "frameledger.h"

#include <atomic>
#include <memory>
#include <mutex>

class FrameSink;
class StreamBufferPool;
typedef struct _ArvBuffer ArvBuffer;
typedef struct _ArvStream ArvStream;

/// The receiving end of one stream: turns filled buffers into frames, counts them and hands them to the sink while
/// the gate is open. Cameras send before they are started and after they are stopped; what meets a closed gate is
/// neither counted nor delivered. TakeBuffer() runs in the stream thread, everything else in the session's.
class FrameReceiver
{
public:
    /// Layout and origin are those of all frames of the stream.
    FrameReceiver(FrameLedger &ledger, std::shared_ptr<StreamBufferPool> pool, PixelLayout layout, const FrameOrigin &origin);

    /// Both must live until CloseGate() has returned.
    void OpenGate(FrameSink *sink);
    /// Waits for a delivery in progress.
    void CloseGate();

    /// Fills the stream with free buffers; call it once.
    void Prime(ArvStream *stream);
    /// Takes a filled buffer out of the stream and puts a free one in.
    void TakeBuffer();
    /// Counts and delivers a filled buffer; true when the buffer was lent to the sink, false when it is free again.
    bool Deliver(ArvBuffer *buffer);

    /// Since the gate was opened or the last frame came; tells a silent camera from a slow one.
    qint64 MillisecondsSinceLastFrame() const;

private:
    bool IsComplete(ArvBuffer *buffer) const;
    void CountLost(LossStage stage, quint64 firstId, quint64 frames);
    CameraFrame FrameFrom(ArvBuffer *buffer, quint64 frameId) const;

    FrameLedger &m_ledger;
    const std::shared_ptr<StreamBufferPool> m_pool;
    const PixelLayout m_layout;
    const FrameOrigin m_origin;
    std::atomic<ArvStream *> m_stream{nullptr};

    std::mutex m_gate; ///< held during a delivery
    FrameSink *m_sink = nullptr;
    FrameIdUnwrapper m_frameIds;
    quint64 m_lastId = 0;     ///< of the last whole frame
    quint64 m_incomplete = 0; ///< frames since that one
    std::atomic<qint64> m_lastFrameMs{ 0 }; ///< steady clock
};
