// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictureaccess.h"

#include "filenametext.h"
#include "openpicture.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <sys/stat.h>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(PictureAccess)
};

/// The one that is seen, the one that was seen before, which may still be in use, and the one that was read ahead.
constexpr int FramesOfStoredFile = 3;

/// Of the first frame; pages may differ.
qint64 FrameBytes(const PictureInfo &info)
{
    return qint64(info.size.width()) * info.size.height() * info.channels * BytesPerSample(info.sampleType);
}

} // namespace

PictureAccess::PictureAccess(int mostOpenFiles, qint64 cacheBytes)
    : m_mostOpenFiles(mostOpenFiles)
    , m_cache(cacheBytes)
{
}

bool PictureAccess::Identity::operator==(const Identity &other) const
{
    return device == other.device && inode == other.inode && size == other.size
           && changedNs == other.changedNs;
}

PictureAccess::Identity PictureAccess::IdentityOf(const QString &path)
{
    constexpr qint64 nsPerSecond = 1000000000;
    struct stat status = {};
    Identity identity;
    if (::stat(QFile::encodeName(path).constData(), &status) == 0) {
        identity = { status.st_dev, status.st_ino, status.st_size,
                     status.st_mtim.tv_sec * nsPerSecond + status.st_mtim.tv_nsec };
    }
    return identity;
}

PictureAccess::OpenFiles::iterator PictureAccess::Find(quint64 id)
{
    return std::find_if(m_files.begin(), m_files.end(),
                        [id](const OpenFile &file) { return file.name.id == id; });
}

PictureFile *PictureAccess::Open(const FileName &name, QString &error)
{
    const auto present = Find(name.id);
    if (present != m_files.end()) {
        m_files.splice(m_files.begin(), m_files, present);
        return m_files.front().file.get();
    }
    const Identity identity = IdentityOf(name.path);
    std::unique_ptr<PictureFile> file = OpenPicture(name.path, error);
    if (!file)
        return nullptr;
    // Frames that were kept are those of the file that was here before.
    m_cache.RemoveFile(name.id);
    m_files.push_front({ name, std::move(file), identity, false });
    CloseSuperfluous();
    return m_files.front().file.get();
}

void PictureAccess::CloseSuperfluous()
{
    const auto canBeOpenedAgain = [](const OpenFile &file) { return !file.isLost; };
    if (std::count_if(m_files.begin(), m_files.end(), canBeOpenedAgain) <= m_mostOpenFiles)
        return;
    const auto oldest = std::find_if(m_files.rbegin(), m_files.rend(), canBeOpenedAgain);
    m_files.erase(std::prev(oldest.base()));
}

Picture PictureAccess::MemoryForFrame(const OpenFile &file)
{
    const PictureInfo &info = file.file->Info();
    return info.isStored ? m_cache.TakeOldestOf(file.name.id, FramesOfStoredFile) : m_cache.TakeOldest(FrameBytes(info));
}

bool PictureAccess::ReadFrame(const FileName &name, int index, Picture &frame, QString &error, FrameRows *rows)
{
    PictureFile *file = Open(name, error);
    if (!file)
        return false;
    if (m_cache.Find(name.id, index, frame))
        return true;
    frame = MemoryForFrame(m_files.front()); // what it was may belong to the cache
    if (!file->ReadFrame(index, frame, error, rows))
        return false;
    m_cache.Insert(name.id, index, frame);
    return true;
}

void PictureAccess::ReadAhead(quint64 id, int index)
{
    const auto file = Find(id);
    if (file == m_files.end() || m_cache.Contains(id, index))
        return;
    const auto hasRoom = [this](qint64 bytes) { return 2 * bytes <= m_cache.CapacityBytes(); };
    const PictureInfo &info = file->file->Info();
    const qint64 bytes = FrameBytes(info);
    if (index < 0 || index >= info.frames || !hasRoom(bytes))
        return;
    Picture frame = MemoryForFrame(*file);
    QString error;
    const auto use = info.isStored ? FrameCache::Use::Perhaps : FrameCache::Use::Now;
    if (file->file->ReadFrame(index, frame, error) && hasRoom(frame.ByteCount())) // pages may differ
        m_cache.Insert(id, index, frame, use);
}

QString PictureAccess::TakeNews(const FileName &name)
{
    const auto file = Find(name.id);
    if (file == m_files.end())
        return QString();
    const Identity now = IdentityOf(file->name.path);
    if (now == file->identity)
        return QString();
    const bool isSame = now.inode == file->identity.inode && now.device == file->identity.device;
    const bool isGone = now.size < 0;
    file->identity = now;
    file->isLost = isGone || !isSame;
    const QString fileName = FileNameTextOf(file->name.path);
    if (isGone)
        return Text::tr("\u201c%1\u201d was deleted or moved. It stays open; save it to keep it.")
            .arg(fileName);
    if (isSame)
        return Text::tr("\u201c%1\u201d was changed on the disk. Open it again to see it as it is now.")
            .arg(fileName);
    return Text::tr(
               "\u201c%1\u201d was replaced by another file. What you see is the old one; open it again to see the new one.")
        .arg(fileName);
}

void PictureAccess::Close(quint64 id)
{
    m_cache.RemoveFile(id);
    const auto file = Find(id);
    if (file != m_files.end())
        m_files.erase(file);
}

void PictureAccess::Rename(quint64 id, const QString &path)
{
    const auto file = Find(id);
    if (file != m_files.end())
        file->name.path = path;
}
