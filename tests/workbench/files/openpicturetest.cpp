// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "fitsbytes.h"
#include "picturefolder.h"
#include "tiffbytes.h"

#include <QDir>

#include <sys/fsuid.h>
#include <sys/stat.h>
#include <unistd.h>

/// What a user meets who opens anything but a good picture file.
class OpenPictureTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void aFileIsWhatItsContentIs_data();
    void aFileIsWhatItsContentIs();
    void whatIsNoPictureIsToldInWords_data();
    void whatIsNoPictureIsToldInWords();
    void foldersPipesAndMissingFilesAreTold();
    void aFileWithoutRightsIsTold();
};

namespace {

QByteArray SmallTiff()
{
    TiffBytes tiff;
    const quint32 data = tiff.Append(QByteArray(12, 'x'));
    tiff.AppendPage(TiffBytes::GreyPage(4, 3, 8, data));
    return tiff.Bytes();
}

QByteArray SmallFits()
{
    return FitsHeader(FitsPictureCards(8, {4, 3})) + FitsBlocks(QByteArray(12, 'x'));
}

} // namespace

void OpenPictureTest::aFileIsWhatItsContentIs_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("warning");
    const QString told = "\u201c%1\u201d is a %2 file, though its name does not end in \u201c.%3\u201d.";
    QTest::newRow("TIFF") << "a.TIF" << SmallTiff() << QString();
    QTest::newRow("FITS") << "a.fit" << SmallFits() << QString();
    QTest::newRow("TIFF named PNG") << "a.png" << SmallTiff() << told.arg("a.png", "TIFF", "tif");
    QTest::newRow("FITS named TIFF") << "a.tif" << SmallFits() << told.arg("a.tif", "FITS", "fits");
    QTest::newRow("no ending") << "cells" << SmallTiff() << told.arg("cells", "TIFF", "tif");
    QTest::newRow("FITS name with a filter") << "a.fits[1:2,1:2]" << SmallFits() << told.arg("a.fits[1:2,1:2]", "FITS", "fits");
    QTest::newRow("a line break in the name") << "a\nb.png" << SmallTiff() << told.arg("a\u23ceb.png", "TIFF", "tif");
    QTest::newRow("letters of other scripts") << QString::fromUtf8("Zellen \u00e4\u7ec6\u80de.fits") << SmallFits() << QString();
}

void OpenPictureTest::aFileIsWhatItsContentIs()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, warning);
    PictureFolder folder;
    QString error;
    const auto file = OpenPicture(folder.Write(name, bytes), error);
    QVERIFY2(file, qPrintable(error));
    QCOMPARE(file->Info().warning, warning);
    QCOMPARE(file->Info().size, QSize(4, 3));
    Picture picture;
    QVERIFY2(file->ReadFrame(0, picture, error), qPrintable(error));
    QCOMPARE(SamplesOf(picture), QVector<double>(12, double('x')));
}

void OpenPictureTest::whatIsNoPictureIsToldInWords_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");
    QTest::newRow("empty") << QByteArray() << "it is empty";
    QTest::newRow("text") << QByteArray("BMW is a car, II is two") << "its content is none of TIFF, FITS, PNG, JPEG, BMP or SPE";
    QTest::newRow("one byte") << QByteArray("I") << "its content is none of";
    QTest::newRow("gzip") << QByteArray::fromHex("1f8b080000000000") << "it is a compressed archive. Unpack it first.";
}

void OpenPictureTest::whatIsNoPictureIsToldInWords()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, reason);
    PictureFolder folder;
    QString error;
    QVERIFY(!OpenPicture(folder.Write("cells.tif", bytes), error));
    QVERIFY2(error.startsWith("\u201ccells.tif\u201d cannot be read: " + reason), qPrintable(error));
}

void OpenPictureTest::foldersPipesAndMissingFilesAreTold()
{
    PictureFolder folder;
    QString error;
    QVERIFY(!OpenPicture(folder.Path("none.tif"), error));
    QVERIFY2(error.contains("\u201cnone.tif\u201d") && error.contains("moved or renamed"), qPrintable(error));
    QVERIFY(!OpenPicture(folder.Path("."), error));
    QVERIFY2(error.contains("it is a folder"), qPrintable(error));
    const QString pipe = folder.Path("pipe.tif");
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QVERIFY(!OpenPicture(pipe, error)); // and it does not wait for a writer
    QVERIFY2(error.contains("it is not an ordinary file"), qPrintable(error));
    QFile::remove(pipe);
}

void OpenPictureTest::aFileWithoutRightsIsTold()
{
    PictureFolder folder;
    const QString path = folder.Write("secret.tif", SmallTiff());
    QVERIFY(QFile::setPermissions(path, QFile::Permissions()));
    constexpr uid_t nobody = 65534;
    const int before = ::geteuid() == 0 ? ::setfsuid(nobody) : -1; // the administrator may read everything
    QString error;
    const auto file = OpenPicture(path, error);
    if (before >= 0)
        ::setfsuid(uid_t(before));
    QVERIFY(!file);
    QVERIFY2(error.contains("\u201csecret.tif\u201d cannot be read"), qPrintable(error));
    QVERIFY2(error.contains("Ask its owner"), qPrintable(error));
}

GUARDED_TEST_MAIN(OpenPictureTest)
#include "openpicturetest.moc"
