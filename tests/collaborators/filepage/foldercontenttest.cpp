// SPDX-License-Identifier: GPL-3.0-or-later
#include "filefolder.h"
#include "foldercontent.h"
#include "guardedtest.h"

#include <QElapsedTimer>

#include <memory>

/// The files of a folder, followed in the background.
class FolderContentTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        StartGuard();
        m_folder = std::make_unique<FileFolder>();
        m_content = std::make_unique<FolderContent>();
        m_content->SetSuffixes({"tif"});
        m_listings.clear();
        connect(m_content.get(), &FolderContent::signalListed, this,
                [this](const FolderListing &listing) { m_listings << listing; });
    }
    void cleanup() override
    {
        m_content.reset();
        m_folder.reset();
        EndGuard();
    }

    void tellsWhatComesGoesAndIsWritten()
    {
        m_folder->Write("a.tif");
        m_folder->Write("b.tif");
        m_content->SetFolder(m_folder->Path());
        m_content->SetWatched(true);
        QTRY_COMPARE(Last().entries.size(), 2);
        m_folder->Write("c.tif");
        QTRY_COMPARE(Last().entries.size(), 3);
        QVERIFY(!Last().changes.isReset);
        QVERIFY(QFile::remove(m_folder->Path("a.tif")));
        QTRY_COMPARE(Last().entries.size(), 2);
        m_content->SetWatchedFiles({"b.tif"});
        const int before = m_listings.size();
        QTRY_VERIFY([&] {
            // It takes a moment until the file is watched.
            m_folder->Write("b.tif", QByteArray(m_listings.size() + 1, 'x'), 1800);
            QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
            return m_listings.size() > before && Last().entries.first().bytes > 0;
        }());
        QVERIFY(!Last().changes.isReset);
    }

    void manyChangesAreToldTogether()
    {
        m_content->SetFolder(m_folder->Path());
        m_content->SetWatched(true);
        QTRY_VERIFY(!m_listings.isEmpty());
        const int before = m_listings.size();
        QElapsedTimer time;
        time.start();
        for (int i = 0; i < 300; ++i)
            m_folder->Write(QString("%1.tif").arg(i));
        const qint64 elapsedMs = time.elapsed();
        QTRY_COMPARE(Last().entries.size(), 300);
        // One at once, one in each fifth of a second, and what came late.
        QVERIFY2(m_listings.size() - before <= 3 + elapsedMs / 200, qPrintable(QString::number(m_listings.size())));
    }

    void theLastQuestionIsAnswered()
    {
        QVERIFY(QDir(m_folder->Path()).mkdir("one"));
        QVERIFY(QDir(m_folder->Path()).mkdir("two"));
        m_folder->Write("one/1.tif");
        m_folder->Write("two/2.tif");
        m_folder->Write("two/3.tif");
        for (int i = 0; i < 20; ++i)
            m_content->SetFolder(m_folder->Path(i % 2 ? "two" : "one"));
        FileOrder order;
        order.descending = true;
        m_content->SetOrder(order);
        QTRY_VERIFY(!m_listings.isEmpty() && Last().entries.size() == 2 && Last().entries.first().name == "3.tif");
        for (const FolderListing &listing : m_listings)
            QCOMPARE(listing.folder, m_folder->Path("two"));
    }

    void aFolderThatVanishesIsSaidAndComesBack()
    {
        QVERIFY(QDir(m_folder->Path()).mkpath("one/two"));
        m_folder->Write("one/two/a.tif");
        m_content->SetFolder(m_folder->Path("one/two"));
        m_content->SetWatched(true);
        QTRY_COMPARE(Last().entries.size(), 1);
        QVERIFY(QDir(m_folder->Path("one")).removeRecursively());
        QTRY_VERIFY(Last().fault.contains("is not there"));
        QVERIFY(Last().entries.isEmpty());
        QVERIFY(QDir(m_folder->Path()).mkpath("one/two"));
        m_folder->Write("one/two/b.tif");
        QTRY_VERIFY(Last().entries.size() == 1 && Last().entries.first().name == "b.tif");
        QVERIFY(Last().fault.isEmpty());
    }

private:
    FolderListing Last() const { return m_listings.isEmpty() ? FolderListing() : m_listings.last(); }

    std::unique_ptr<FileFolder> m_folder;
    std::unique_ptr<FolderContent> m_content;
    QVector<FolderListing> m_listings;
};

GUARDED_TEST_MAIN(FolderContentTest)
#include "foldercontenttest.moc"
