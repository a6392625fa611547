// SPDX-License-Identifier: GPL-3.0-or-later
#include "filefolder.h"
#include "guardedtest.h"
#include "thumbnailstore.h"

#include <QCryptographicHash>
#include <QImage>

#include <sys/stat.h>

namespace {

int Rights(const QString &path)
{
    struct stat status = {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? int(status.st_mode & 07777) : -1;
}

QImage Grey(const QSize &size, int grey)
{
    QImage image(size, QImage::Format_Grayscale8);
    image.fill(QColor(grey, grey, grey));
    return image;
}

QString Md5(const QByteArray &text)
{
    return QCryptographicHash::hash(text, QCryptographicHash::Md5).toHex();
}

constexpr qint64 Modified = 1600000000123;

} // namespace

/// The cache on the disk, checked against the standard's own words.
class ThumbnailStoreTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QCoreApplication::setApplicationName("program");
        QCoreApplication::setApplicationVersion("1.2");
    }

    void theExampleOfTheStandard()
    {
        const ThumbnailStore store("/cache/thumbnails");
        QCOMPARE(store.PathOf("/home/jens/photos/me.png", 128),
                 QString("/cache/thumbnails/normal/c6ee772d9e49320e97ec29a7eb5b1697.png"));
        QCOMPARE(store.PathOf("/home/jens/photos/me.png", 256),
                 QString("/cache/thumbnails/large/c6ee772d9e49320e97ec29a7eb5b1697.png"));
    }

    void theFolderIsThatOfTheUser()
    {
        qputenv("XDG_CACHE_HOME", "/somewhere/cache");
        QCOMPARE(ThumbnailStore::StandardRoot(), QString("/somewhere/cache/thumbnails"));
    }

    void uris_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QByteArray>("uri");
        QTest::newRow("blank") << "/a b/c.tif" << QByteArray("file:///a%20b/c.tif");
        QTest::newRow("script") << QString::fromUtf8("/\u00e4.tif") << QByteArray("file:///%C3%A4.tif");
        QTest::newRow("line break") << "/a\nb.tif" << QByteArray("file:///a%0Ab.tif");
        QTest::newRow("kept") << "/!$&'()*+,=:@-._~.tif" << QByteArray("file:///!$&'()*+,=:@-._~.tif");
        QTest::newRow("escaped") << "/%#?;[]\"<>\\^`{|}.tif"
                                 << QByteArray("file:///%25%23%3F%3B%5B%5D%22%3C%3E%5C%5E%60%7B%7C%7D.tif");
    }
    void uris()
    {
        QFETCH(QString, path);
        QTEST(ThumbnailStore::UriOf(path), "uri");
    }

    void whatIsSavedIsWhatTheStandardSays()
    {
        const FileFolder folder;
        const ThumbnailStore store(folder.Path("cache/thumbnails"));
        const QString picture = folder.Path("a b.tif");
        QVERIFY(store.Save({picture, Modified, 4711}, ThumbnailStore::NormalEdge, Grey({128, 64}, 77)));

        const QByteArray uri = "file://" + QFile::encodeName(folder.Path()) + "/a%20b.tif";
        const QString path = folder.Path("cache/thumbnails/normal/") + Md5(uri) + ".png";
        const QImage saved(path, "png");
        QCOMPARE(saved.size(), QSize(128, 64));
        QCOMPARE(saved.text("Thumb::URI"), QString(uri));
        QCOMPARE(saved.text("Thumb::MTime"), QString("1600000000"));
        QCOMPARE(saved.text("Thumb::Size"), QString("4711"));
        QCOMPARE(saved.text("Software"), QString("program"));
        QCOMPARE(Rights(path), 0600);
        QCOMPARE(Rights(folder.Path("cache/thumbnails/normal")), 0700);
        QCOMPARE(Rights(folder.Path("cache/thumbnails")), 0700);
        QCOMPARE(QDir(folder.Path("cache/thumbnails/normal")).entryList(QDir::Files | QDir::Hidden).size(), 1);
    }

    void findsOnlyThisStateOfTheFile()
    {
        const FileFolder folder;
        const ThumbnailStore store(folder.Path("thumbnails"));
        const QString picture = folder.Path("a.tif");
        QVERIFY(store.Find({picture, Modified, 1}, 128).isNull());
        QVERIFY(store.Save({picture, Modified, 1}, 128, Grey({10, 5}, 77)));
        QCOMPARE(store.Find({picture, Modified, 1}, 128).pixelColor(3, 3), QColor(77, 77, 77));
        QVERIFY(store.Find({picture, Modified + 1000, 1}, 128).isNull());
        QVERIFY(store.Find({picture, Modified, 1}, 256).isNull());
        QVERIFY(store.Find({folder.Path("b.tif"), Modified, 1}, 128).isNull());
        // Another file's thumbnail under this name is no use.
        QVERIFY(QFile::copy(store.PathOf(picture, 128), store.PathOf(folder.Path("b.tif"), 128)));
        QVERIFY(store.Find({folder.Path("b.tif"), Modified, 1}, 128).isNull());
    }

    void anotherProgramsThumbnailIsFound()
    {
        const FileFolder folder;
        const ThumbnailStore store(folder.Path("thumbnails"));
        const QString picture = folder.Path("a.tif");
        QVERIFY(QDir().mkpath(folder.Path("thumbnails/large")));
        QImage image = Grey({256, 200}, 99);
        image.setText("Thumb::URI", "file://" + folder.Path() + "/a.tif");
        image.setText("Thumb::MTime", "1600000000");
        QVERIFY(image.save(folder.Path("thumbnails/large/")
                           + Md5("file://" + QFile::encodeName(folder.Path()) + "/a.tif") + ".png"));
        QCOMPARE(store.Find({picture, Modified, 1}, 200).size(), QSize(256, 200));
    }

    void rubbishInTheStoreIsNoThumbnail()
    {
        const FileFolder folder;
        const ThumbnailStore store(folder.Path("thumbnails"));
        const QString picture = folder.Path("a.tif");
        QVERIFY(QDir().mkpath(folder.Path("thumbnails/normal")));
        QFile file(store.PathOf(picture, 128));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("no picture");
        file.close();
        QVERIFY(store.Find({picture, Modified, 1}, 128).isNull());
        // One that claims to be far larger than any thumbnail is not decoded.
        QImage image = Grey({3000, 3000}, 1);
        image.setText("Thumb::URI", ThumbnailStore::UriOf(picture));
        image.setText("Thumb::MTime", "1600000000");
        QVERIFY(image.save(file.fileName(), "png"));
        QVERIFY(store.Find({picture, Modified, 1}, 128).isNull());
        QVERIFY(store.Save({picture, Modified, 1}, 128, Grey({8, 8}, 1))); // takes its place
        QVERIFY(!store.Find({picture, Modified, 1}, 128).isNull());
    }

    void failuresAreKeptWithTheirReason()
    {
        const FileFolder folder;
        const ThumbnailStore store(folder.Path("thumbnails"));
        const ThumbnailStore::Subject subject{folder.Path("a.tif"), Modified, 1};
        QString fault;
        QVERIFY(!store.HasFailed(subject, fault));
        QVERIFY(store.SaveFailure(subject, QString::fromUtf8("\u201ca.tif\u201d cannot be read")));
        QVERIFY(store.HasFailed(subject, fault));
        QCOMPARE(fault, QString::fromUtf8("\u201ca.tif\u201d cannot be read"));
        QVERIFY(!store.HasFailed({subject.path, Modified + 5000, 1}, fault)); // it was mended meanwhile
        const QByteArray uri = "file://" + QFile::encodeName(folder.Path()) + "/a.tif";
        const QImage saved(folder.Path("thumbnails/fail/program-1.2/") + Md5(uri) + ".png");
        QCOMPARE(saved.text("Thumb::URI"), QString(uri));
        QCOMPARE(saved.text("Thumb::MTime"), QString("1600000000"));
        store.Forget(subject.path);
        QVERIFY(!store.HasFailed(subject, fault));
    }

    void thumbnailsHaveNoThumbnails()
    {
        const FileFolder folder;
        const ThumbnailStore store(folder.Path("thumbnails"));
        QVERIFY(!store.Save({folder.Path("thumbnails/normal/x.png"), Modified, 1}, 128, Grey({8, 8}, 1)));
    }

    void aStoreThatCannotBeWrittenIsNoFault()
    {
        const FileFolder folder;
        folder.Write("thumbnails"); // a file in the way
        const ThumbnailStore store(folder.Path("thumbnails"));
        QVERIFY(!store.Save({folder.Path("a.tif"), Modified, 1}, 128, Grey({8, 8}, 1)));
    }
};

GUARDED_TEST_MAIN(ThumbnailStoreTest)
#include "thumbnailstoretest.moc"
