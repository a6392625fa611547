// SPDX-License-Identifier: GPL-3.0-or-later
#include "cubefile.h"

namespace {
/// Written behind in pieces of this size, so that the last synchronisation has little left to do.
constexpr qint64 WriteBehindBytes = 32 << 20;
} // namespace

bool CubeFile::Create(const QString &path, const QByteArray &header, qint64 frameBytes, FileFault &fault)
{
    m_headerBytes = header.size();
    m_frameBytes = frameBytes;
    m_end = m_headerBytes;
    m_behindFrom = 0;
    return m_disk.Create(path, fault) && m_disk.Write(header.constData(), header.size(), fault);
}

bool CubeFile::Reopen(const QString &path, qint64 headerBytes, qint64 frameBytes, int *frames,
                      FileFault &fault)
{
    m_headerBytes = headerBytes;
    m_frameBytes = frameBytes;
    if (!m_disk.OpenExisting(path, fault))
        return false;
    const qint64 whole = qMax(qint64(0), (m_disk.Size() - headerBytes) / frameBytes);
    *frames = int(qMin(qint64(*frames), whole));
    return true;
}

bool CubeFile::Append(const void *frame, FileFault &fault)
{
    if (!m_disk.Write(frame, m_frameBytes, fault))
        return false;
    m_end += m_frameBytes;
    if (m_end - m_behindFrom >= WriteBehindBytes) {
        m_disk.WriteBehind(m_behindFrom, m_end - m_behindFrom);
        m_behindFrom = m_end;
    }
    return true;
}

bool CubeFile::CutTo(int frames, FileFault &fault)
{
    m_end = OffsetOf(frames);
    m_behindFrom = qMin(m_behindFrom, m_end);
    return m_disk.CutTo(m_end, fault);
}
