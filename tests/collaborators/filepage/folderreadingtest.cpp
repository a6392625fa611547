// SPDX-License-Identifier: GPL-3.0-or-later
#include "filefolder.h"
#include "folderreading.h"
#include "guardedtest.h"

#include <QFile>

#include <algorithm>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

QStringList Names(const FolderFiles &files)
{
    QStringList names;
    for (const FileEntry &entry : files.entries)
        names << entry.name;
    names.sort();
    return names;
}

FolderFiles Read(const QString &folder)
{
    return FolderReading::Files(folder, {"tif", "png"}, [] { return false; });
}

} // namespace

/// What is found in folders, good and bad ones.
class FolderReadingTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void findsPicturesByTheirEndings()
    {
        const FileFolder folder;
        for (const char *name : {"a.tif", "B.TIF", "c.png", "d.txt", "tif", ".hidden.tif", "e.tif.part"})
            folder.Write(name, "12345");
        QVERIFY(QDir(folder.Path()).mkdir("folder.tif"));
        const FolderFiles files = Read(folder.Path());
        QCOMPARE(Names(files), QStringList({"B.TIF", "a.tif", "c.png"}));
        QVERIFY(files.fault.isEmpty());
        QCOMPARE(files.entries.first().bytes, 5);
        const qint64 age = QDateTime::currentMSecsSinceEpoch() - files.entries.first().modifiedMs;
        QVERIFY(qAbs(age - 3600000) < 60000);
    }

    void namesInAnyScriptAndWithLineBreaks()
    {
        const FileFolder folder;
        const QStringList names{QString::fromUtf8("\u7ec6\u80de.tif"), QString::fromUtf8("\u043a\u043b\u0435\u0442\u043a\u0430.tif"),
                                QString::fromUtf8("\u062e\u0644\u064a\u0629.tif"), "two\nlines.tif", " blank .tif", "100%.tif"};
        for (const QString &name : names)
            folder.Write(name);
        QStringList sorted = names;
        sorted.sort();
        QCOMPARE(Names(Read(folder.Path())), sorted);
    }

    /// As on old disks: Latin-1, which is no UTF-8.
    void namesInAnotherEncodingAreListedAsSuch()
    {
        const FileFolder folder;
        folder.Write(QString::fromUtf8("Pr\u00e4parat.tif"));
        const QByteArray latin = QFile::encodeName(folder.Path()) + "/Pr\xe4parat 2.tif";
        const int fd = ::open(latin.constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0644);
        QVERIFY(fd >= 0);
        ::close(fd);
        const FolderFiles files = Read(folder.Path());
        QCOMPARE(::unlink(latin.constData()), 0); // the folder's own end does not find it
        QCOMPARE(files.entries.size(), 2);
        for (const FileEntry &entry : files.entries)
            QCOMPARE(entry.isMisspelt, entry.name.contains('2'));
    }

    void brokenLinksAreListedAsSuch()
    {
        const FileFolder folder;
        const QString file = folder.Write("a.tif", "1");
        QVERIFY(QFile::link(file, folder.Path("good.tif")));
        QVERIFY(QFile::link(folder.Path("nowhere"), folder.Path("broken.tif")));
        QVERIFY(QFile::link(folder.Path("circle.tif"), folder.Path("circle.tif")));
        const FolderFiles files = Read(folder.Path());
        QCOMPARE(Names(files), QStringList({"a.tif", "broken.tif", "circle.tif", "good.tif"}));
        for (const FileEntry &entry : files.entries)
            QCOMPARE(entry.isBrokenLink, entry.name == "broken.tif" || entry.name == "circle.tif");
    }

    void pipesAreNoPictures()
    {
        const FileFolder folder;
        QCOMPARE(::mkfifo(QFile::encodeName(folder.Path("pipe.tif")).constData(), 0600), 0);
        QVERIFY(Read(folder.Path()).entries.isEmpty());
    }

    void badFoldersAreSaid_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("rights");
        QTest::addColumn<QString>("text");
        QTest::newRow("gone") << "nowhere" << -1 << "The folder \u201c%1\u201d is not there.";
        QTest::newRow("a file") << "file.tif" << -1 << "\u201c%1\u201d is a file, not a folder.";
        QTest::newRow("not to be listed") << "below" << 0311 << "You have no right to look into the folder \u201c%1\u201d.";
        QTest::newRow("not to be entered") << "below" << 0644 << "You have no right to look into the folder \u201c%1\u201d.";
    }
    void badFoldersAreSaid()
    {
        QFETCH(QString, name);
        QFETCH(int, rights);
        QFETCH(QString, text);
        const FileFolder folder;
        folder.Write("file.tif");
        QVERIFY(QDir(folder.Path()).mkdir("below"));
        folder.Write("below/a.tif");
        QVERIFY(::chmod(QFile::encodeName(folder.Path()).constData(), 0755) == 0);
        if (rights >= 0)
            QVERIFY(::chmod(QFile::encodeName(folder.Path(name)).constData(), mode_t(rights)) == 0);
        FolderFiles files;
        {
            const AsNobody nobody;
            files = Read(folder.Path(name));
        }
        ::chmod(QFile::encodeName(folder.Path("below")).constData(), 0755);
        QVERIFY2(files.fault.startsWith(text.arg(folder.Path(name))), qPrintable(files.fault));
        QVERIFY(files.entries.isEmpty());
    }

    void isGivenUpEarly()
    {
        const FileFolder folder;
        for (int i = 0; i < 2000; ++i)
            folder.Write(QString("%1.tif").arg(i));
        const FolderFiles files = FolderReading::Files(folder.Path(), {"tif"}, [] { return true; });
        QVERIFY(files.entries.size() < 1000);
    }

    void foldersWithoutHiddenOnes()
    {
        const FileFolder folder;
        for (const char *name : {"run10", "run2", ".hidden", ".other"})
            QVERIFY(QDir(folder.Path()).mkdir(name));
        folder.Write("file");
        QVERIFY(QFile::link(folder.Path("run2"), folder.Path("link")));
        QVERIFY(QFile::link(folder.Path("file"), folder.Path("filelink")));
        QCOMPARE(FolderReading::Folders(folder.Path(), QString()).names, QStringList({"link", "run2", "run10"}));
        QCOMPARE(FolderReading::Folders(folder.Path(), ".other").names.size(), 4);
        QVERIFY(!FolderReading::Folders(folder.Path("nowhere"), QString()).fault.isEmpty());
    }
};

GUARDED_TEST_MAIN(FolderReadingTest)
#include "folderreadingtest.moc"
