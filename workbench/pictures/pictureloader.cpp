// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictureloader.h"

#include "countmarks.h"
#include "filenametext.h"

#include <QCoreApplication>

#include <algorithm>
#include <new>

namespace {

constexpr int MostOpenFiles = 8;
constexpr qint64 CacheBytes = 256 << 20;
constexpr QSize ThumbnailSize(128, 96);

QString MemoryText(const QString &path)
{
    return QCoreApplication::translate(
               "PictureLoader",
               "There is not enough memory for \u201c%1\u201d. Close other pictures or programs.")
        .arg(FileNameTextOf(path));
}

QImage ThumbnailOf(const QImage &image)
{
    return image.scaled(image.size().scaled(ThumbnailSize, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)),
                        Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// Calls `work`; a lack of memory is said in `error`.
template <typename Function>
void Guarded(const QString &path, QString &error, Function work)
{
    try {
        work();
    } catch (const std::bad_alloc &) {
        error = MemoryText(path);
    }
}

} // namespace

PictureLoader::PictureLoader(const LevelsModel *levels, QObject *parent)
    : QThread(parent)
    , m_access(MostOpenFiles, CacheBytes)
    , m_frames(&m_access)
    , m_display(levels)
{
    qRegisterMetaType<LoadedPicture>();
    qRegisterMetaType<PictureThumbnail>();
    qRegisterMetaType<SaveRequest>();
    setObjectName("PictureLoader");
    start();
}

PictureLoader::~PictureLoader()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_ends = true;
    }
    m_changed.notify_all();
    wait();
}

quint64 PictureLoader::Load(PictureRequest request)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    request.ticket = ++m_lastTicket;
    m_requests.insert(request.place, request);
    m_changed.notify_all();
    return request.ticket;
}

void PictureLoader::MakeThumbnail(const PictureAccess::FileName &file)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_thumbnails.push_back(file);
    m_changed.notify_all();
}

void PictureLoader::Save(const SaveRequest &request)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_saves.emplace_back(request);
    m_changed.notify_all();
}

void PictureLoader::Close(quint64 id) { Rename(id, QString()); }

void PictureLoader::Rename(quint64 id, const QString &path)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_fileChanges.append({ id, path });
    m_changed.notify_all();
}

PictureLoader::Work PictureLoader::NextWork() const
{
    if (!m_fileChanges.isEmpty())
        return Work::Files;
    if (!m_requests.isEmpty() && !m_ends)
        return Work::Show;
    if (!m_saves.empty())
        return Work::Save;
    if (m_ends)
        return Work::End;
    if (!m_thumbnails.empty())
        return Work::Thumbnail;
    return m_nextFrames.IsEmpty() ? Work::None : Work::Ahead;
}

PictureLoader::Work PictureLoader::WaitForWork()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_changed.wait(lock, [this] { return NextWork() != Work::None; });
    return NextWork();
}

void PictureLoader::run()
{
    for (Work work = WaitForWork(); work != Work::End; work = WaitForWork()) {
        switch (work) {
        case Work::Files:
            ChangeFiles();
            break;
        case Work::Show:
            LoadNext();
            break;
        case Work::Save:
            SaveStep();
            break;
        case Work::Thumbnail:
            ThumbnailNext();
            break;
        default:
            ReadAhead();
            break;
        }
    }
}

void PictureLoader::ChangeFiles()
{
    QVector<PictureAccess::FileName> changes;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        changes.swap(m_fileChanges);
    }
    for (const PictureAccess::FileName &change : qAsConst(changes)) {
        if (change.path.isEmpty()) {
            m_access.Close(change.id);
            m_frames.Forget(change.id);
        } else {
            m_access.Rename(change.id, change.path);
        }
    }
}

void PictureLoader::LoadNext()
{
    PictureRequest request;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        // The one asked for first, so that no place waits for ever while another is browsed.
        const auto oldest = std::min_element(
            m_requests.begin(), m_requests.end(),
            [](const PictureRequest &one, const PictureRequest &other) { return one.ticket < other.ticket; });
        request = *oldest;
        m_requests.erase(oldest);
    }
    const LoadedPicture loaded = Loaded(request);
    if (!loaded.samples.IsNull() || !loaded.error.isEmpty())
        emit signalLoaded(loaded);
}

/// Another picture, or the same one processed in another way, is wanted in its place.
bool PictureLoader::IsReplaced(const PictureRequest &request)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto newer = m_requests.constFind(request.place);
    const bool isOther = newer != m_requests.constEnd()
                         && (newer->file.id != request.file.id || newer->edit != request.edit
                             || newer->count != request.count);
    return m_ends || isOther;
}

LoadedPicture PictureLoader::Loaded(const PictureRequest &request)
{
    LoadedPicture loaded;
    loaded.request = request;
    loaded.range = request.range;
    Guarded(request.file.path, loaded.error, [&] {
        const IsUnwanted isUnwanted = [&] { return IsReplaced(request); };
        if (!m_frames.Read(request.file, request.frame, request.edit, isUnwanted, loaded.samples, loaded.fileSize,
                           loaded.error, m_display.WhileRead(loaded.range)))
            return;
        loaded.image = m_display.Make(loaded.samples, loaded.range);
        if (request.wantsThumbnail)
            loaded.thumbnail = ThumbnailOf(loaded.image);
        if (request.count)
            Count(loaded);
        const PictureFile *file = m_access.Open(request.file, loaded.error);
        m_nextFrames.Shown(request.place, { request.file.id, request.frame }, file->Info().frames);
        loaded.info = file->Info();
        loaded.frames = request.edit.SeenFrames(loaded.info.frames);
        loaded.frameDescription = file->FrameDescription(request.frame);
        loaded.fileAxis = file->AxisOf(request.frame);
        loaded.axis = request.edit.SeenAxis(loaded.fileAxis, loaded.fileSize);
    });
    loaded.news = m_access.TakeNews(request.file);
    return loaded;
}

/// Counts and marks the objects of the picture.
void PictureLoader::Count(LoadedPicture &loaded)
{
    const ObjectCount count = CountObjects(loaded.samples, *loaded.request.count, loaded.countError);
    if (!loaded.countError.isEmpty())
        return;
    loaded.countLevel = count.level;
    loaded.objects = count.objects;
    loaded.image = WithOutlines(loaded.image, count.labels);
    if (loaded.image.isNull())
        throw std::bad_alloc();
}

void PictureLoader::SaveStep()
{
    SaveTask *task = nullptr;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        task = &m_saves.front(); // others only add behind it, which moves nothing
    }
    bool goesOn = false;
    QString error;
    Guarded(task->Request().target, error, [&] { goesOn = task->Step(m_frames, m_display); });
    if (goesOn)
        return;
    if (error.isEmpty())
        error = task->Error();
    const SaveRequest request = task->Request();
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_saves.pop_front();
    }
    emit signalSaved(request, error);
}

void PictureLoader::ThumbnailNext()
{
    PictureAccess::FileName file;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        file = m_thumbnails.front();
        m_thumbnails.pop_front();
    }
    emit signalThumbnail(Thumbnail(file));
}

PictureThumbnail PictureLoader::Thumbnail(const PictureAccess::FileName &file)
{
    PictureThumbnail thumbnail;
    thumbnail.id = file.id;
    Guarded(file.path, thumbnail.error, [&] {
        // Opened apart, so that a long list does not push out the files that are looked at.
        PictureAccess access(1, 0);
        Picture frame;
        if (!access.ReadFrame(file, 0, frame, thumbnail.error))
            return;
        SampleRange range;
        thumbnail.image = ThumbnailOf(m_display.Make(frame, range));
        thumbnail.info = access.Open(file, thumbnail.error)->Info();
    });
    return thumbnail;
}

void PictureLoader::ReadAhead()
{
    const NextFrames::Frame next = m_nextFrames.Take();
    QString error; // told when the frame is asked for
    Guarded(QString(), error, [&] { m_access.ReadAhead(next.file, next.index); });
    emit signalReadAhead(next.index);
}
