// SPDX-License-Identifier: GPL-3.0-or-later
#include "filefolder.h"
#include "guardedtest.h"
#include "thumbnailmaker.h"
#include "thumbnailqueue.h"

#include <QFileInfo>
#include <QMutex>
#include <QMutexLocker>
#include <QSemaphore>
#include <QSignalSpy>

#include <algorithm>
#include <memory>

namespace {

constexpr int MostThreads = 4; // of the queue

/// Notes what it was asked for; makes a grey picture, or none of files named "bad".
class NotingMaker : public ThumbnailMaker
{
public:
    QStringList Suffixes() const override { return {"tif"}; }
    QImage Make(const QString &path, int edge, QString &fault) override
    {
        {
            const QMutexLocker lock(&mutex);
            made << QFileInfo(path).fileName();
            edges << edge;
        }
        gate.acquire();
        if (path.contains("bad")) {
            fault = "It is bad.";
            return QImage();
        }
        QImage image(edge, edge / 2, QImage::Format_Grayscale8);
        image.fill(Qt::gray);
        return image;
    }
    QStringList Made()
    {
        const QMutexLocker lock(&mutex);
        return made;
    }

    QMutex mutex;
    QStringList made;
    QVector<int> edges;
    QSemaphore gate{1000000};
};

} // namespace

/// Thumbnails in the background.
class ThumbnailQueueTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        StartGuard();
        m_folder = std::make_unique<FileFolder>();
        m_maker = std::make_unique<NotingMaker>();
        m_queue = std::make_unique<ThumbnailQueue>(ThumbnailStore(m_folder->Path("thumbnails")));
        m_queue->SetMaker(m_maker.get());
        m_results.clear();
        connect(m_queue.get(), &ThumbnailQueue::signalReady, this,
                [this](const QVector<ThumbnailResult> &results) { m_results += results; });
    }
    void cleanup() override
    {
        m_queue.reset();
        m_maker.reset();
        m_folder.reset();
        EndGuard();
    }

    void makesAndKeepsThem()
    {
        const auto subjects = Subjects({"a.tif", "bad.tif"});
        m_queue->SetWanted(subjects);
        QTRY_COMPARE(m_results.size(), 2);
        QCOMPARE(Result("a.tif").image.size(), QSize(128, 64));
        QVERIFY(Result("bad.tif").image.isNull());
        QCOMPARE(Result("bad.tif").fault, QString("It is bad."));
        QCOMPARE(m_maker->Made().size(), 2);

        m_results.clear();
        m_queue->SetWanted(subjects);
        QTRY_COMPARE(m_results.size(), 2);
        QCOMPARE(Result("a.tif").image.size(), QSize(128, 64));
        QCOMPARE(Result("bad.tif").fault, QString("It is bad."));
        QCOMPARE(m_maker->Made().size(), 2); // both come from the store
    }

    void largeScreensGetLargeOnes()
    {
        m_queue->SetEdge(192);
        m_queue->SetWanted(Subjects({"a.tif"}));
        QTRY_COMPARE(m_results.size(), 1);
        QCOMPARE(m_results.first().image.width(), 256);
    }

    void aFileThatMayBeWrittenAgainIsNotKept()
    {
        m_queue->SetWanted({Subject("new.tif", 0), Subject("newbad.tif", 0)});
        QTRY_COMPARE(m_results.size(), 2);
        m_results.clear();
        m_queue->SetWanted({Subject("new.tif", 0), Subject("newbad.tif", 0)});
        QTRY_COMPARE(m_results.size(), 2);
        QCOMPARE(m_maker->Made().size(), 4);
    }

    void whatIsStoredComesFirst()
    {
        m_queue->SetWanted(Subjects({"y.tif", "z.tif"}));
        QTRY_COMPARE(m_results.size(), 2);
        m_results.clear();
        m_maker->gate.acquire(m_maker->gate.available()); // making stands still
        m_queue->SetWanted(Subjects({"a.tif", "b.tif", "c.tif", "d.tif", "y.tif", "z.tif"}));
        QTRY_COMPARE(m_results.size(), 2);
        QVERIFY(!Result("y.tif").image.isNull());
        QVERIFY(!Result("z.tif").image.isNull());
        m_maker->gate.release(100);
        QTRY_COMPARE(m_results.size(), 6);
    }

    void whatIsNotWantedAnyMoreIsNotMade()
    {
        m_maker->gate.acquire(m_maker->gate.available());
        QStringList names;
        for (int i = 0; i < 50; ++i)
            names << QString("old%1.tif").arg(i);
        m_queue->SetWanted(Subjects(names));
        QTRY_VERIFY(!m_maker->Made().isEmpty());
        const QString begun = m_maker->Made().first();
        m_queue->SetWanted(Subjects({"new1.tif", "new2.tif"}));
        m_maker->gate.release(100);
        QTRY_VERIFY(m_maker->Made().contains("new1.tif") && m_maker->Made().contains("new2.tif"));
        QTRY_VERIFY(!Result("new1.tif").image.isNull() && !Result("new2.tif").image.isNull());
        QVERIFY(m_maker->Made().contains(begun));
        QVERIFY2(m_maker->Made().size() <= 8, qPrintable(m_maker->Made().join(' '))); // begun before, two in a thread
    }

    void theFirstWantedIsMadeFirst()
    {
        m_maker->gate.acquire(m_maker->gate.available());
        QStringList names;
        for (int i = 0; i < 20; ++i)
            names << QString("%1.tif").arg(i, 2, 10, QChar('0'));
        m_queue->SetWanted(Subjects(names));
        for (int made = 0; made < names.size(); ++made) {
            QTRY_VERIFY(m_maker->Made().size() > made);
            // What is missing before the last one is still looked for by another thread.
            const QStringList begun = m_maker->Made();
            QStringList missing = names.mid(0, 1 + names.indexOf(*std::max_element(begun.begin(), begun.end())));
            for (const QString &name : begun)
                missing.removeOne(name);
            if (missing.size() >= MostThreads)
                m_maker->gate.release(names.size()); // for the end of the queue
            QVERIFY2(missing.size() < MostThreads, qPrintable(begun.join(' ')));
            m_maker->gate.release();
        }
        QTRY_COMPARE(m_results.size(), 20);
    }

    void withoutAMakerNothingHappens()
    {
        m_queue->SetMaker(nullptr);
        m_queue->SetWanted(Subjects({"a.tif"}));
        m_queue->SetMaker(m_maker.get());
        m_queue->SetWanted(Subjects({"b.tif"}));
        QTRY_COMPARE(m_results.size(), 1);
        QCOMPARE(m_maker->Made(), QStringList("b.tif"));
    }

    void canGoWhileThreadsAreAtWork()
    {
        QStringList names;
        for (int i = 0; i < 200; ++i)
            names << QString("%1.tif").arg(i);
        m_queue->SetWanted(Subjects(names));
        m_queue.reset();
        QVERIFY(m_maker->Made().size() <= 200);
    }

private:
    /// As it is on the disk; written when there is none.
    ThumbnailStore::Subject Subject(const QString &name, int age = 3600) const
    {
        const QFileInfo file(QFile::exists(m_folder->Path(name)) ? m_folder->Path(name)
                                                                 : m_folder->Write(name, "12", age));
        return {file.filePath(), file.lastModified().toMSecsSinceEpoch(), file.size()};
    }
    QVector<ThumbnailStore::Subject> Subjects(const QStringList &names) const
    {
        QVector<ThumbnailStore::Subject> subjects;
        for (const QString &name : names)
            subjects << Subject(name);
        return subjects;
    }
    ThumbnailResult Result(const QString &name) const
    {
        for (const ThumbnailResult &result : m_results) {
            if (QFileInfo(result.subject.path).fileName() == name)
                return result;
        }
        return ThumbnailResult();
    }

    std::unique_ptr<FileFolder> m_folder;
    std::unique_ptr<NotingMaker> m_maker;
    std::unique_ptr<ThumbnailQueue> m_queue;
    QVector<ThumbnailResult> m_results;
};

GUARDED_TEST_MAIN(ThumbnailQueueTest)
#include "thumbnailqueuetest.moc"
