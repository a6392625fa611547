// SPDX-License-Identifier: GPL-3.0-or-later
#include "fileruns.h"

#include "bothhalves.h"

#include <algorithm>
#include <atomic>
#include <unistd.h>

namespace {

/// Reading this many bytes from the disk cache takes long enough to be shared by two threads.
constexpr qint64 ReadByTwo = 2 << 20;
/// What a processor keeps at hand of bytes that it has just read, beside what is made of them.
constexpr qint64 PartBytes = 256 << 10;

bool ReadBytes(int fd, quint64 offset, uchar *bytes, qint64 size)
{
    while (size > 0) {
        const ssize_t got = ::pread(fd, bytes, size_t(size), off_t(offset));
        if (got <= 0)
            return false;
        bytes += got;
        offset += quint64(got);
        size -= got;
    }
    return true;
}

} // namespace

void FileRuns::Add(quint64 offset, qint64 bytes)
{
    const bool follows =
        !m_runs.empty() && m_runs.back().offset + quint64(m_byteCount - m_runs.back().place) == offset;
    if (!follows)
        m_runs.push_back({ offset, m_byteCount });
    m_byteCount += bytes;
}

bool FileRuns::Read(int fd, uchar *bytes) const
{
    std::atomic<bool> isWhole{ true };
    ForBothHalves(m_byteCount, ReadByTwo, [&](qint64 from, qint64 to) {
        if (!ReadPart(fd, bytes, from, to))
            isWhole = false;
    });
    return isWhole;
}

bool FileRuns::ReadInParts(int fd, uchar *bytes, qint64 unitBytes, const PartRead &partRead) const
{
    const qint64 unitsOfPart = std::max(qint64(1), PartBytes / unitBytes);
    std::atomic<bool> isWhole{ true };
    ForBothHalves(m_byteCount / unitBytes, ReadByTwo / unitBytes, [&](qint64 fromUnit, qint64 toUnit) {
        for (qint64 unit = fromUnit; unit < toUnit && isWhole; unit += unitsOfPart) {
            const qint64 from = unit * unitBytes;
            const qint64 to = std::min(toUnit, unit + unitsOfPart) * unitBytes;
            if (ReadPart(fd, bytes, from, to))
                partRead(from, to);
            else
                isWhole = false;
        }
    });
    return isWhole;
}

bool FileRuns::ReadPart(int fd, uchar *bytes, qint64 from, qint64 to) const
{
    const auto behind = std::upper_bound(m_runs.begin(), m_runs.end(), from,
                                         [](qint64 place, const Run &run) { return place < run.place; });
    for (auto run = behind - (behind == m_runs.begin() ? 0 : 1); run != m_runs.end() && from < to; ++run) {
        const qint64 end = run + 1 == m_runs.end() ? to : std::min(to, (run + 1)->place);
        if (!ReadBytes(fd, run->offset + quint64(from - run->place), bytes + from, end - from))
            return false;
        from = end;
    }
    return true;
}
