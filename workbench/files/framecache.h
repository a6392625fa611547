// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "picture.h"

#include <QHash>
#include <QMutex>
#include <QPair>

#include <list>

/// Decoded frames of open files, at most a set number of bytes of them; the one not used for longest
/// goes first. Any thread.
class FrameCache
{
public:
    enum class Use
    {
        Now,
        Perhaps ///< read before anybody asked for it: the first to go
    };

    explicit FrameCache(qint64 capacityBytes);

    /// Keeps a frame of a file; `file` is a number that the caller gives to each open file. A frame
    /// larger than the whole cache is not kept.
    void Insert(quint64 file, int frame, const Picture &picture, Use use = Use::Now);
    /// False if the frame is not there.
    bool Find(quint64 file, int frame, Picture &picture);
    bool Contains(quint64 file, int frame) const;
    /// Drops the frame that has to go when one of `bytes` comes, and gives it for the sake of its memory: to get fresh
    /// memory from the system takes longer than to fill it. Null while there is room.
    Picture TakeOldest(qint64 bytes);
    /// The same for a file of which no more than `most` frames are worth keeping; null while there are fewer.
    Picture TakeOldestOf(quint64 file, int most);
    /// Drops all frames of a file that was closed or has changed.
    void RemoveFile(quint64 file);

    qint64 CapacityBytes() const { return m_capacityBytes; }
    qint64 UsedBytes() const;

private:
    using Key = QPair<quint64, int>;
    struct Entry
    {
        Key key;
        Picture picture;
    };
    using Entries = std::list<Entry>;

    Picture Take(Entries::iterator entry);
    void Remove(Entries::iterator entry);

    const qint64 m_capacityBytes;
    mutable QMutex m_mutex;
    Entries m_entries; ///< the one used last comes first
    QHash<Key, Entries::iterator> m_index;
    qint64 m_usedBytes = 0;
};
