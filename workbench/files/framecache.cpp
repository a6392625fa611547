// SPDX-License-Identifier: GPL-3.0-or-later
#include "framecache.h"

#include <QMutexLocker>

FrameCache::FrameCache(qint64 capacityBytes)
    : m_capacityBytes(capacityBytes)
{
}

void FrameCache::Insert(quint64 file, int frame, const Picture &picture, Use use)
{
    QMutexLocker lock(&m_mutex);
    const Key key(file, frame);
    const auto present = m_index.find(key);
    if (present != m_index.end())
        Remove(present.value());
    if (picture.ByteCount() > m_capacityBytes)
        return;
    while (m_usedBytes + picture.ByteCount() > m_capacityBytes)
        Remove(std::prev(m_entries.end()));
    const auto place = use == Use::Now ? m_entries.cbegin() : m_entries.cend();
    m_index.insert(key, m_entries.insert(place, {key, picture}));
    m_usedBytes += picture.ByteCount();
}

bool FrameCache::Find(quint64 file, int frame, Picture &picture)
{
    QMutexLocker lock(&m_mutex);
    const auto present = m_index.find(Key(file, frame));
    if (present == m_index.end())
        return false;
    m_entries.splice(m_entries.begin(), m_entries, present.value());
    picture = m_entries.front().picture;
    return true;
}

bool FrameCache::Contains(quint64 file, int frame) const
{
    QMutexLocker lock(&m_mutex);
    return m_index.contains(Key(file, frame));
}

Picture FrameCache::TakeOldest(qint64 bytes)
{
    QMutexLocker lock(&m_mutex);
    const bool hasToGo = bytes <= m_capacityBytes && m_usedBytes + bytes > m_capacityBytes;
    if (!hasToGo)
        return Picture();
    return Take(std::prev(m_entries.end()));
}

Picture FrameCache::TakeOldestOf(quint64 file, int most)
{
    QMutexLocker lock(&m_mutex);
    auto oldest = m_entries.end();
    int count = 0;
    for (auto entry = m_entries.begin(); entry != m_entries.end(); ++entry) {
        if (entry->key.first != file)
            continue;
        oldest = entry;
        ++count;
    }
    return count < most ? Picture() : Take(oldest);
}

void FrameCache::RemoveFile(quint64 file)
{
    QMutexLocker lock(&m_mutex);
    for (auto entry = m_entries.begin(); entry != m_entries.end();) {
        const auto next = std::next(entry);
        if (entry->key.first == file)
            Remove(entry);
        entry = next;
    }
}

qint64 FrameCache::UsedBytes() const
{
    QMutexLocker lock(&m_mutex);
    return m_usedBytes;
}

Picture FrameCache::Take(Entries::iterator entry)
{
    const Picture picture = entry->picture;
    Remove(entry);
    return picture;
}

void FrameCache::Remove(Entries::iterator entry)
{
    m_usedBytes -= entry->picture.ByteCount();
    m_index.remove(entry->key);
    m_entries.erase(entry);
}
