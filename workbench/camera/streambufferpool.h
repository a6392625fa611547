// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>
#include <memory>
#include <mutex>
#include <vector>

typedef struct _ArvBuffer ArvBuffer;

/// The buffers of one stream. A filled buffer is lent to whoever holds the frame and used again when the last of them
/// lets go, so a frame is never copied and memory is not asked for 30 times a second. Lent buffers outlive the stream.
class StreamBufferPool : public std::enable_shared_from_this<StreamBufferPool>
{
public:
    /// Pools are shared: a lent buffer keeps its pool.
    static std::shared_ptr<StreamBufferPool> Create(size_t bufferBytes);
    ~StreamBufferPool();
    StreamBufferPool(const StreamBufferPool &) = delete;
    StreamBufferPool &operator=(const StreamBufferPool &) = delete;

    size_t BufferBytes() const { return m_bufferBytes; }
    /// A free buffer, or a new one; the caller owns it.
    ArvBuffer *Take();
    /// Wraps a buffer of this pool; it comes back when the last copy of the pointer goes.
    std::shared_ptr<const uchar> Lend(ArvBuffer *buffer);

private:
    explicit StreamBufferPool(size_t bufferBytes);
    void GiveBack(ArvBuffer *buffer);

    const size_t m_bufferBytes;
    std::mutex m_mutex;
    std::vector<ArvBuffer *> m_free;
};
