// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "thumbnailstore.h"

#include <QHash>
#include <QMetaType>
#include <QMutex>
#include <QObject>
#include <QSet>
#include <QThreadPool>
#include <QVector>

#include <deque>
#include <map>

class ThumbnailMaker;

struct ThumbnailResult
{
    ThumbnailStore::Subject subject;
    QImage image;
    QString fault; ///< why there is no image
};
Q_DECLARE_METATYPE(QVector<ThumbnailResult>)

/// Finds or makes thumbnails in background threads, first those asked for first. All that the store has come
/// before any that must be made. The operations are called by the GUI thread, and so come the answers.
class ThumbnailQueue : public QObject
{
    Q_OBJECT

public:
    explicit ThumbnailQueue(const ThumbnailStore &store, QObject *parent = nullptr);
    ~ThumbnailQueue() override;

    /// Borrowed; without one nothing is made. Waits for the threads to be done with the one before.
    void SetMaker(ThumbnailMaker *maker);
    /// Pixels of the screen.
    void SetEdge(int edge);
    /// What is wanted now, the most wanted first. What was wanted before and is not begun is forgotten.
    void SetWanted(const QVector<ThumbnailStore::Subject> &subjects);

signals:
    void signalReady(const QVector<ThumbnailResult> &results);

private slots:
    void slotDeliver();

private:
    struct Work
    {
        ThumbnailStore::Subject subject;
        bool isSought = false; ///< the store was asked, and has none
        ThumbnailMaker *maker = nullptr;
        int edge = 0;
    };

    void ForgetWanted();
    void StartThreads();
    void RunThread();
    bool TakeWork(Work &work);
    /// False when it has to be made.
    bool FindStored(const Work &work, ThumbnailResult &result) const;
    ThumbnailResult Made(const Work &work) const;
    void Answer(const ThumbnailResult &result);

    const ThumbnailStore m_store;
    QThreadPool m_threads;
    QMutex m_mutex; ///< guards all that follows
    ThumbnailMaker *m_maker = nullptr;
    int m_edge = ThumbnailStore::NormalEdge;
    std::deque<ThumbnailStore::Subject> m_toFind;
    QHash<QString, int> m_places; ///< of the wanted ones, the most wanted first
    std::map<int, ThumbnailStore::Subject> m_toMake; ///< by place
    QSet<QString> m_inWork;
    QVector<ThumbnailResult> m_results;
    bool m_isDelivering = false;
    int m_running = 0; ///< threads
};
