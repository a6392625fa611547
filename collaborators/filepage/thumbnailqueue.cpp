// SPDX-License-Identifier: GPL-3.0-or-later
#include "thumbnailqueue.h"

#include "thumbnailmaker.h"

#include <QDateTime>
#include <QFileInfo>
#include <QMutexLocker>
#include <QThread>

namespace {

constexpr int FewestThreads = 2; ///< one may wait for a slow disk
constexpr int MostThreads = 4;
/// The store knows whole seconds: of a file that may be written again in this one it would keep an old picture.
constexpr qint64 SettledMs = 2000;

ThumbnailStore::Subject StateOf(const QString &path)
{
    const QFileInfo file(path);
    return {path, file.lastModified().toMSecsSinceEpoch(), file.size()};
}

bool IsSame(const ThumbnailStore::Subject &one, const ThumbnailStore::Subject &other)
{
    return one.modifiedMs == other.modifiedMs && one.bytes == other.bytes;
}

} // namespace

ThumbnailQueue::ThumbnailQueue(const ThumbnailStore &store, QObject *parent)
    : QObject(parent)
    , m_store(store)
{
    qRegisterMetaType<QVector<ThumbnailResult>>();
    m_threads.setMaxThreadCount(qBound(FewestThreads, QThread::idealThreadCount() - 1, MostThreads));
}

ThumbnailQueue::~ThumbnailQueue()
{
    SetMaker(nullptr);
}

void ThumbnailQueue::SetMaker(ThumbnailMaker *maker)
{
    {
        const QMutexLocker lock(&m_mutex);
        m_maker = nullptr;
        ForgetWanted();
    }
    m_threads.waitForDone();
    const QMutexLocker lock(&m_mutex);
    m_maker = maker;
}

void ThumbnailQueue::SetEdge(int edge)
{
    const QMutexLocker lock(&m_mutex);
    m_edge = edge;
}

void ThumbnailQueue::SetWanted(const QVector<ThumbnailStore::Subject> &subjects)
{
    {
        const QMutexLocker lock(&m_mutex);
        ForgetWanted();
        if (!m_maker)
            return;
        for (const ThumbnailStore::Subject &subject : subjects) {
            m_places.insert(subject.path, m_places.size());
            if (!m_inWork.contains(subject.path))
                m_toFind.push_back(subject);
        }
    }
    StartThreads();
}

void ThumbnailQueue::ForgetWanted()
{
    m_places.clear();
    m_toFind.clear();
    m_toMake.clear();
}

void ThumbnailQueue::StartThreads()
{
    const QMutexLocker lock(&m_mutex);
    const int wanted = qMin(int(m_toFind.size() + m_toMake.size()), m_threads.maxThreadCount());
    for (; m_running < wanted; ++m_running)
        m_threads.start([this] { RunThread(); });
}

void ThumbnailQueue::RunThread()
{
    Work work;
    while (TakeWork(work)) {
        ThumbnailResult result;
        if (work.isSought) {
            Answer(Made(work));
        } else if (FindStored(work, result)) {
            Answer(result);
        } else {
            const QMutexLocker lock(&m_mutex);
            m_inWork.remove(work.subject.path);
            const auto place = m_places.constFind(work.subject.path);
            if (place != m_places.constEnd())
                m_toMake.emplace(*place, work.subject);
        }
    }
}

bool ThumbnailQueue::TakeWork(Work &work)
{
    const QMutexLocker lock(&m_mutex);
    if ((m_toFind.empty() && m_toMake.empty()) || !m_maker) {
        --m_running;
        return false;
    }
    work.isSought = m_toFind.empty();
    work.maker = m_maker;
    work.edge = m_edge;
    if (work.isSought) {
        work.subject = m_toMake.begin()->second;
        m_toMake.erase(m_toMake.begin());
    } else {
        work.subject = m_toFind.front();
        m_toFind.pop_front();
    }
    m_inWork.insert(work.subject.path);
    return true;
}

bool ThumbnailQueue::FindStored(const Work &work, ThumbnailResult &result) const
{
    result.subject = work.subject;
    result.image = m_store.Find(work.subject, work.edge);
    return !result.image.isNull() || m_store.HasFailed(work.subject, result.fault);
}

ThumbnailResult ThumbnailQueue::Made(const Work &work) const
{
    ThumbnailResult result;
    result.subject = work.subject;
    const ThumbnailStore::Subject before = StateOf(work.subject.path);
    const int edge = work.edge <= ThumbnailStore::NormalEdge ? ThumbnailStore::NormalEdge : ThumbnailStore::LargeEdge;
    result.image = work.maker->Make(work.subject.path, edge, result.fault);
    // What may be read tomorrow is not written off.
    const bool isSettled = QFileInfo(work.subject.path).isReadable() && IsSame(before, StateOf(work.subject.path))
                           && QDateTime::currentMSecsSinceEpoch() - before.modifiedMs > SettledMs;
    if (!isSettled)
        return result;
    // A store that is full or write-protected only makes the next start slower.
    if (result.image.isNull())
        m_store.SaveFailure(before, result.fault);
    else
        m_store.Save(before, edge, result.image);
    return result;
}

void ThumbnailQueue::Answer(const ThumbnailResult &result)
{
    const QMutexLocker lock(&m_mutex);
    m_inWork.remove(result.subject.path);
    m_results.append(result);
    if (m_isDelivering)
        return;
    m_isDelivering = true;
    QMetaObject::invokeMethod(this, "slotDeliver", Qt::QueuedConnection);
}

void ThumbnailQueue::slotDeliver()
{
    QVector<ThumbnailResult> results;
    {
        const QMutexLocker lock(&m_mutex);
        results.swap(m_results);
        m_isDelivering = false;
    }
    emit signalReady(results);
}
