// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <functional>
#include <vector>

/// Bytes of a file that are wanted one behind the other, wherever they lie.
class FileRuns
{
public:
    /// The bytes that come next. They are one run with the last ones where they follow them in the file.
    void Add(quint64 offset, qint64 bytes);
    int Count() const { return int(m_runs.size()); }
    qint64 ByteCount() const { return m_byteCount; }
    /// Where the first byte lies; 0 without one.
    quint64 FirstOffset() const { return m_runs.empty() ? 0 : m_runs.front().offset; }

    /// Reads them all into `bytes`, many by two threads, whatever the descriptor's position. False when the file
    /// ends before or cannot be read.
    bool Read(int fd, uchar *bytes) const;

    /// Bytes `from` to before `to` are there.
    using PartRead = std::function<void(qint64 from, qint64 to)>;
    /// The same in parts of whole units of `unitBytes`, each as large as a processor's cache can hold and told by the
    /// thread that has read it.
    bool ReadInParts(int fd, uchar *bytes, qint64 unitBytes, const PartRead &partRead) const;

private:
    struct Run
    {
        quint64 offset; ///< in the file
        qint64 place;   ///< among the bytes that are wanted
    };

    bool ReadPart(int fd, uchar *bytes, qint64 from, qint64 to) const;

    std::vector<Run> m_runs; ///< each ends where the next one's place begins
    qint64 m_byteCount = 0;
};
