// SPDX-License-Identifier: GPL-3.0-or-later
#include "usedpictures.h"

#include <algorithm>
#include <atomic>
#include <utility>

QImage UsedPictures::Take(const QSize &size)
{
    const auto isFree = [&size](const QImage &picture) { return picture.size() == size && picture.isDetached(); };
    const auto free = std::find_if(m_pictures.begin(), m_pictures.end(), isFree);
    if (free == m_pictures.end())
        return QImage();
    std::atomic_thread_fence(std::memory_order_acquire); // whoever held it last has read it to the end
    return std::exchange(*free, QImage());
}

void UsedPictures::Remember(const QImage &picture)
{
    if (picture.sizeInBytes() > LargestBytes)
        return;
    const auto empty = std::find_if(m_pictures.begin(), m_pictures.end(), [](const QImage &kept) { return kept.isNull(); });
    if (empty != m_pictures.end()) {
        *empty = picture;
        return;
    }
    m_pictures[m_oldest] = picture;
    m_oldest = (m_oldest + 1) % Most;
}
