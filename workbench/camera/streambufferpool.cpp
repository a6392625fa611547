// SPDX-License-Identifier: GPL-3.0-or-later
#include <arv.h> // before Qt, whose "signals" GLib uses as a name

#include "streambufferpool.h"

namespace {
constexpr size_t kKeptBuffers = 16; // what comes back beyond these is freed
}

std::shared_ptr<StreamBufferPool> StreamBufferPool::Create(size_t bufferBytes)
{
    return std::shared_ptr<StreamBufferPool>(new StreamBufferPool(bufferBytes));
}

StreamBufferPool::StreamBufferPool(size_t bufferBytes)
    : m_bufferBytes(bufferBytes)
{
    m_free.reserve(kKeptBuffers);
}

StreamBufferPool::~StreamBufferPool()
{
    for (ArvBuffer *buffer : m_free)
        g_object_unref(buffer);
}

ArvBuffer *StreamBufferPool::Take()
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (!m_free.empty()) {
            ArvBuffer *buffer = m_free.back();
            m_free.pop_back();
            return buffer;
        }
    }
    return arv_buffer_new_allocate(m_bufferBytes);
}

std::shared_ptr<const uchar> StreamBufferPool::Lend(ArvBuffer *buffer)
{
    // The size that Aravis reports is that of the received data, and 0 for the simulated camera.
    size_t receivedBytes = 0;
    const auto *data = static_cast<const uchar *>(arv_buffer_get_data(buffer, &receivedBytes));
    return std::shared_ptr<const uchar>(
        data, [pool = shared_from_this(), buffer](const uchar *) { pool->GiveBack(buffer); });
}

void StreamBufferPool::GiveBack(ArvBuffer *buffer)
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (m_free.size() < kKeptBuffers) {
            m_free.push_back(buffer);
            return;
        }
    }
    g_object_unref(buffer);
}
