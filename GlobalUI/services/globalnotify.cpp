// SPDX-License-Identifier: GPL-3.0-or-later
#include "globalnotify.h"

#include <QCoreApplication>
#include <QMutex>
#include <QMutexLocker>
#include <QThread>
#include <QVector>

namespace {

class ObserverHub
{
public:
    void Attach(LxObserver *observer)
    {
        QMutexLocker lock(&m_mutex);
        if (!m_observers.contains(observer))
            m_observers.append(observer);
    }

    void Detach(LxObserver *observer)
    {
        QMutexLocker lock(&m_mutex);
        m_observers.removeAll(observer);
    }

    void Deliver(int id, void *data)
    {
        // A copy: observers come and go while they are being called.
        for (LxObserver *observer : Snapshot()) {
            if (IsAttached(observer))
                observer->UpdateObserver(id, data);
        }
    }

private:
    QVector<LxObserver *> Snapshot() const
    {
        QMutexLocker lock(&m_mutex);
        return m_observers;
    }

    bool IsAttached(LxObserver *observer) const
    {
        QMutexLocker lock(&m_mutex);
        return m_observers.contains(observer);
    }

    mutable QMutex m_mutex;
    QVector<LxObserver *> m_observers;
};

ObserverHub &Hub()
{
    static ObserverHub hub;
    return hub;
}

} // namespace

LxObserver::~LxObserver()
{
    Hub().Detach(this);
}

void GlobalAttachObserver(LxObserver *observer)
{
    if (observer)
        Hub().Attach(observer);
}

void GlobalDetachObserver(LxObserver *observer)
{
    Hub().Detach(observer);
}

void GlobalNotifyObserver(int id, void *data)
{
    QCoreApplication *application = QCoreApplication::instance();
    if (!application || application->thread() == QThread::currentThread()) {
        Hub().Deliver(id, data);
        return;
    }
    QMetaObject::invokeMethod(
        application, [id, data] { Hub().Deliver(id, data); }, Qt::QueuedConnection);
}
