// SPDX-License-Identifier: GPL-3.0-or-later
#include "filefolder.h"
#include "folderworker.h"
#include "guardedtest.h"

#include <memory>

/// Questions after a folder that come faster than they are answered.
class FolderWorkerTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        StartGuard();
        m_folder = std::make_unique<FileFolder>();
        m_newest = 0;
        m_worker = std::make_unique<FolderWorker>(&m_newest);
        m_listings.clear();
        connect(m_worker.get(), &FolderWorker::signalListed, this,
                [this](const FolderListing &listing) { m_listings << listing; });
        m_folder->Write("a.tif");
        m_folder->Write("b.tif");
        Ask(Query());
        QCOMPARE(m_listings.size(), 1);
        QVERIFY(m_listings.last().changes.isReset);
        m_listings.clear();
    }
    void cleanup() override
    {
        m_worker.reset();
        m_folder.reset();
        EndGuard();
    }

    void whatIsKnownIsNotToldAgain()
    {
        FolderQuery query = Query();
        query.watchedFiles = QStringList("a.tif");
        Ask(query);
        QCOMPARE(m_listings.size(), 0);
    }

    void aFolderIsReadAnewThoughTheQuestionIsOvertaken()
    {
        m_folder->Write("c.tif"); // nobody watches
        FolderQuery anew = Query();
        anew.readsAnew = true;
        FolderQuery other = Query();
        other.watchedFiles = QStringList("a.tif");
        AskTogether({anew, other});
        QCOMPARE(m_listings.size(), 1);
        QCOMPARE(m_listings.last().entries.size(), 3);
        QVERIFY(!m_listings.last().changes.isReset);
        Ask(other);
        QCOMPARE(m_listings.size(), 1); // once is enough
    }

    void anOrderIsANewList()
    {
        FolderQuery query = Query();
        query.order.descending = true;
        Ask(query);
        QCOMPARE(m_listings.size(), 1);
        QVERIFY(m_listings.last().changes.isReset);
        QCOMPARE(m_listings.last().entries.first().name, QString("b.tif"));
    }

    void onlyTheLastOfTwoFoldersIsRead()
    {
        QVERIFY(QDir(m_folder->Path()).mkdir("one"));
        QVERIFY(QDir(m_folder->Path()).mkdir("two"));
        FolderQuery one = Query();
        one.folder = m_folder->Path("one");
        FolderQuery two = Query();
        two.folder = m_folder->Path("two");
        AskTogether({one, two});
        QCOMPARE(m_listings.size(), 1);
        QCOMPARE(m_listings.last().folder, m_folder->Path("two"));
        QVERIFY(m_listings.last().changes.isReset);
    }

private:
    FolderQuery Query() const
    {
        FolderQuery query;
        query.folder = m_folder->Path();
        query.suffixes = QStringList("tif");
        return query;
    }
    void Ask(const FolderQuery &query) { AskTogether({query}); }
    /// The last one is asked before the worker comes to the first.
    void AskTogether(QVector<FolderQuery> queries)
    {
        for (FolderQuery &query : queries)
            query.ticket = ++m_newest;
        for (const FolderQuery &query : qAsConst(queries))
            m_worker->slotList(query);
    }

    std::unique_ptr<FileFolder> m_folder;
    std::atomic<quint64> m_newest{0};
    std::unique_ptr<FolderWorker> m_worker;
    QVector<FolderListing> m_listings;
};

GUARDED_TEST_MAIN(FolderWorkerTest)
#include "folderworkertest.moc"
