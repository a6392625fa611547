// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictureaccess.h"
#include "guardedtest.h"
#include "madepictures.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <set>

namespace {

constexpr QSize Size(6, 4);
constexpr qint64 FrameBytes = 6 * 4 * 2;

} // namespace

/// Files stay readable while they are open, and what happens to them on the disk is told once.
class PictureAccessTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void aDeletedFileIsStillBrowsed()
    {
        PictureAccess access(4, FrameBytes);
        const PictureAccess::FileName file = Made("stack.tif", 1, 3);
        QCOMPARE(First(access, file, 0), 0);
        QCOMPARE(access.TakeNews(file), QString());
        QVERIFY(QFile::remove(file.path));
        QCOMPARE(First(access, file, 2), 2000);
        QCOMPARE(access.TakeNews(file),
                 QString("\u201cstack.tif\u201d was deleted or moved. It stays open; save it to keep it."));
        QCOMPARE(access.TakeNews(file), QString());
    }

    void aReplacedFileIsTheOldOneUntilItIsClosed()
    {
        PictureAccess access(4, FrameBytes);
        const PictureAccess::FileName file = Made("stack.tif", 1, 2);
        QCOMPARE(First(access, file, 1), 1000);
        MadePictures::Write(m_folder.filePath("other.tif"), QSize(3, 3));
        QVERIFY(QFile::remove(file.path));
        QVERIFY(QFile::rename(m_folder.filePath("other.tif"), file.path));
        QCOMPARE(First(access, file, 0), 0);
        QVERIFY(access.TakeNews(file).startsWith("\u201cstack.tif\u201d was replaced by another file."));
        access.Close(file.id);
        QString error;
        QCOMPARE(access.Open(file, error)->Info().size, QSize(3, 3));
        QCOMPARE(access.TakeNews(file), QString());
    }

    void aFileThatIsWrittenToIsTold()
    {
        PictureAccess access(4, FrameBytes);
        const PictureAccess::FileName file = Made("stack.tif", 1, 2);
        First(access, file, 0);
        QFile onDisk(file.path);
        QVERIFY(onDisk.open(QIODevice::Append) && onDisk.write("more") == 4);
        onDisk.close();
        QVERIFY(access.TakeNews(file).startsWith("\u201cstack.tif\u201d was changed on the disk."));
    }

    void aRenamedFileIsNoNews()
    {
        PictureAccess access(4, FrameBytes);
        const PictureAccess::FileName file = Made("stack.tif", 1, 2);
        First(access, file, 0);
        QVERIFY(QFile::rename(file.path, m_folder.filePath("new.tif")));
        access.Rename(file.id, m_folder.filePath("new.tif"));
        QCOMPARE(access.TakeNews(file), QString());
        QCOMPARE(First(access, { file.id, m_folder.filePath("new.tif") }, 1), 1000);
    }

    void onlyTheFilesUsedLastStayOpen()
    {
        PictureAccess access(2, 0);
        const PictureAccess::FileName one = Made("one.tif", 1, 1);
        const PictureAccess::FileName two = Made("two.tif", 2, 1);
        const PictureAccess::FileName three = Made("three.tif", 3, 1);
        for (const PictureAccess::FileName &file :
             { one, two, one, three }) // two is the one not used for longest
            First(access, file, 0);
        for (const PictureAccess::FileName &file : { one, two, three })
            QVERIFY(QFile::remove(file.path));
        QCOMPARE(First(access, one, 0), 0);
        QCOMPARE(First(access, three, 0), 0);
        QCOMPARE(First(access, two, 0), -1);
    }

    /// What was promised when it was told holds, however many others are opened.
    void aFileThatIsLostStaysOpenUntilItIsClosed()
    {
        PictureAccess access(2, 0);
        const PictureAccess::FileName gone = Made("gone.tif", 1, 2);
        const PictureAccess::FileName replaced = Made("replaced.tif", 2, 2);
        First(access, gone, 0);
        QVERIFY(QFile::remove(gone.path));
        QVERIFY(access.TakeNews(gone).contains("It stays open"));
        First(access, replaced, 0);
        QVERIFY(QFile::remove(replaced.path));
        MadePictures::WriteBytes(replaced.path, "another");
        QVERIFY(access.TakeNews(replaced).contains("What you see is the old one"));
        for (quint64 id = 3; id <= 6; ++id)
            QCOMPARE(First(access, Made(QString("other%1.tif").arg(id), id, 1), 0), 0);
        QCOMPARE(First(access, gone, 1), 1000);
        QCOMPARE(First(access, replaced, 1), 1000);
        // They take no room from the others.
        QVERIFY(QFile::remove(m_folder.filePath("other6.tif")));
        QCOMPARE(First(access, { 6, m_folder.filePath("other6.tif") }, 0), 0);
        access.Close(gone.id);
        QCOMPARE(First(access, gone, 1), -1);
    }

    /// Whoever still shows a frame keeps its samples, though the cache lets it go.
    void whatIsShownStaysWhenItsPlaceIsNeeded()
    {
        PictureAccess access(1, 2 * FrameBytes);
        const PictureAccess::FileName file = Made("stack.tif", 1, 6);
        QString error;
        Picture shown;
        QVERIFY(access.ReadFrame(file, 0, shown, error));
        for (int frame = 1; frame < 6; ++frame)
            QCOMPARE(First(access, file, frame), 1000 * frame);
        QVERIFY(shown == MadePictures::Numbered(Size, 0));
        QCOMPARE(First(access, file, 5), 5000);
        QCOMPARE(First(access, file, 4), 4000);
    }

    void aFrameReadAheadIsAtHand()
    {
        PictureAccess access(2, 2 * FrameBytes);
        const PictureAccess::FileName file = Made("stack.tif", 1, 4);
        QCOMPARE(First(access, file, 0), 0);
        access.ReadAhead(file.id, 1);
        access.ReadAhead(file.id, 1); // there already
        access.ReadAhead(file.id, 7); // there is none
        access.ReadAhead(9, 0);       // not open
        QVERIFY(QFile::resize(file.path, 0));
        QCOMPARE(First(access, file, 0), 0); // still there too
        QCOMPARE(First(access, file, 1), 1000);
        QCOMPARE(First(access, file, 2), -1);
    }

    void readingAheadPushesNotOutWhatIsSeen()
    {
        PictureAccess access(2, 2 * FrameBytes - 1);
        const PictureAccess::FileName file = Made("stack.tif", 1, 2);
        QCOMPARE(First(access, file, 0), 0);
        access.ReadAhead(file.id, 1);
        QVERIFY(QFile::resize(file.path, 0));
        QCOMPARE(First(access, file, 0), 0);
        QCOMPARE(First(access, file, 1), -1);
    }

    void anUncompressedStackIsKeptToThreeFrames()
    {
        PictureAccess access(2, 100 * FrameBytes);
        const PictureAccess::FileName file = Made("stack.tif", 1, 6);
        for (int frame = 0; frame < 4; ++frame)
            QCOMPARE(First(access, file, frame), 1000 * frame);
        access.ReadAhead(file.id, 4);
        QVERIFY(QFile::resize(file.path, 0));
        QCOMPARE(First(access, file, 1), -1);
        QCOMPARE(First(access, file, 2), 2000);
        QCOMPARE(First(access, file, 3), 3000);
    }

    void theMemoryOfAWrongGuessIsUsedAgain()
    {
        PictureAccess access(2, 100 * FrameBytes);
        const PictureAccess::FileName file = Made("stack.tif", 1, 9);
        constexpr quintptr pageBytes = 4096; // where in its first page a frame begins depends on the file
        std::set<quintptr> memories;
        Picture shown;
        for (const int jump : { 0, 4, 2, 7, 1, 5, 3 }) {
            Picture frame;
            QString error;
            QVERIFY2(access.ReadFrame(file, jump, frame, error), qPrintable(error));
            shown = frame;
            memories.insert(quintptr(static_cast<const Picture &>(shown).Data()) / pageBytes);
            access.ReadAhead(file.id, jump + 1);
        }
        QVERIFY2(memories.size() <= 3, qPrintable(QString::number(memories.size())));
    }

    void errorsNameTheFile()
    {
        PictureAccess access(2, 0);
        const PictureAccess::FileName file = { 1, m_folder.filePath("missing.tif") };
        QString error;
        QVERIFY(!access.Open(file, error));
        QVERIFY2(error.startsWith("\u201cmissing.tif\u201d cannot be read:"), qPrintable(error));
        QCOMPARE(access.TakeNews(file), QString());
    }

private:
    PictureAccess::FileName Made(const QString &name, quint64 id, int frames)
    {
        MadePictures::Write(m_folder.filePath(name), Size, frames);
        return { id, m_folder.filePath(name) };
    }

    /// The first sample of a frame, -1 when it cannot be read.
    static int First(PictureAccess &access, const PictureAccess::FileName &file, int frame)
    {
        Picture picture;
        QString error;
        return access.ReadFrame(file, frame, picture, error) ? picture.Samples<quint16>(0)[0] : -1;
    }

    QTemporaryDir m_folder;
};

GUARDED_TEST_MAIN(PictureAccessTest)
#include "pictureaccesstest.moc"

#include <set>
