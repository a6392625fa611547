// SPDX-License-Identifier: GPL-3.0-or-later
#include "createpicture.h"
#include "guardedtest.h"
#include "picturefolder.h"
#include "pictureresolution.h"

#include <QImage>

#include <cmath>

namespace {

/// Samples that tell their place and frame.
Picture Made(const QSize &size, int channels, SampleType type, int frame)
{
    Picture picture(size.width(), size.height(), channels, type);
    for (qint64 i = 0; i < picture.ByteCount(); ++i)
        picture.Data()[i] = uchar(i * 7 + frame * 31);
    return picture;
}

void Save(const QString &path, int frames, int channels, SampleType type, const SaveOptions &given)
{
    SaveOptions options = given;
    options.frameCount = frames;
    QString error;
    const auto writer = CreatePicture(path, options, error);
    for (int frame = 0; writer && frame < frames; ++frame)
        writer->Append(Made({19, 11}, channels, type, frame), error);
    if (!writer || !writer->Commit(error))
        qFatal("%s", qPrintable(error));
}

QVector<Picture> Frames(const QString &path)
{
    QString error;
    const auto file = OpenPicture(path, error);
    QVector<Picture> frames;
    for (int i = 0; file && i < file->Info().frames; ++i) {
        Picture frame;
        if (!file->ReadFrame(i, frame, error))
            qFatal("%s", qPrintable(error));
        frames << frame;
    }
    return frames;
}

PictureInfo Info(const QString &path)
{
    QString error;
    const auto file = OpenPicture(path, error);
    return file ? file->Info() : PictureInfo();
}

/// 25.4 mm
constexpr double MetresPerInch = 0.0254;

} // namespace

/// A file gets another resolution, and nothing else.
class PictureResolutionTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void onlyTheResolutionChanges_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("frames");
        QTest::addColumn<int>("channels");
        QTest::addColumn<bool>("is16Bit");
        QTest::addColumn<bool>("compress");
        QTest::addColumn<double>("dpiBefore"); // 0: the file says nothing
        QTest::newRow("TIFF") << "a.tif" << 1 << 1 << true << false << 0.0;
        QTest::newRow("TIFF that has one") << "a.tif" << 1 << 1 << true << false << 72.0;
        QTest::newRow("TIFF stack") << "a.tif" << 7 << 1 << true << false << 0.0;
        QTest::newRow("deflate TIFF stack in colour") << "a.tif" << 3 << 3 << false << true << 72.0;
        QTest::newRow("PNG") << "a.png" << 1 << 1 << true << false << 0.0;
        QTest::newRow("PNG that has one") << "a.png" << 1 << 3 << false << false << 72.0;
        QTest::newRow("JPEG") << "a.jpg" << 1 << 1 << false << false << 72.0;
    }
    void onlyTheResolutionChanges()
    {
        QFETCH(QString, name);
        QFETCH(int, frames);
        QFETCH(int, channels);
        QFETCH(bool, is16Bit);
        QFETCH(bool, compress);
        QFETCH(double, dpiBefore);
        const PictureFolder folder;
        SaveOptions options;
        options.compress = compress;
        options.dpiX = options.dpiY = dpiBefore;
        options.metadata = {{"Artist", "A. Person", QString(), true}};
        Save(folder.Path(name), frames, channels, is16Bit ? SampleType::U16 : SampleType::U8, options);
        const QVector<Picture> before = Frames(folder.Path(name));
        const PictureInfo infoBefore = Info(folder.Path(name));

        QString error;
        QVERIFY2(SetPictureResolution(folder.Path(name), 1200, error), qPrintable(error));
        QCOMPARE(Frames(folder.Path(name)), before);
        const PictureInfo info = Info(folder.Path(name));
        QVERIFY(std::abs(info.dpiX - 1200) < 0.02 && std::abs(info.dpiY - 1200) < 0.02);
        QCOMPARE(info.metadata.size(), infoBefore.metadata.size());
        for (int i = 0; i < info.metadata.size(); ++i)
            QCOMPARE(info.metadata[i].value, infoBefore.metadata[i].value);
        QCOMPARE(folder.Names(), QStringList(name)); // nothing is left beside it

        // Another reader agrees.
        if (!name.endsWith("tif"))
            QCOMPARE(QImage(folder.Path(name)).dotsPerMeterX(), qRound(1200 / MetresPerInch));
        // And once more.
        QVERIFY(SetPictureResolution(folder.Path(name), 300, error));
        QVERIFY(std::abs(Info(folder.Path(name)).dpiX - 300) < 0.02);
        QCOMPARE(Frames(folder.Path(name)), before);
    }

    void aBmpAndAJpegOfAnotherProgram()
    {
        const PictureFolder folder;
        QImage image(20, 10, QImage::Format_RGB888);
        image.fill(Qt::darkGreen);
        QVERIFY(image.save(folder.Path("a.bmp")));
        QString error;
        QVERIFY2(SetPictureResolution(folder.Path("a.bmp"), 254, error), qPrintable(error));
        QCOMPARE(QImage(folder.Path("a.bmp")).dotsPerMeterX(), 10000);
        QCOMPARE(QImage(folder.Path("a.bmp")).pixelColor(3, 3), QColor(Qt::darkGreen));

        // Without a JFIF header, as cameras write them.
        QVERIFY(image.save(folder.Path("a.jpg")));
        QByteArray bytes = PictureFolder::Read(folder.Path("a.jpg"));
        QVERIFY(bytes.mid(6, 4) == "JFIF");
        bytes.remove(2, 18);
        folder.Write("a.jpg", bytes);
        const QVector<Picture> before = Frames(folder.Path("a.jpg"));
        QVERIFY2(SetPictureResolution(folder.Path("a.jpg"), 254, error), qPrintable(error));
        QCOMPARE(Info(folder.Path("a.jpg")).dpiX, 254.0);
        QCOMPARE(Frames(folder.Path("a.jpg")), before);
    }

    void imageJsUnitStays()
    {
        const PictureFolder folder;
        SaveOptions options;
        options.dpiX = options.dpiY = 25400; // a pixel to the micrometre
        options.metadata = {{"ImageDescription", "ImageJ=1.53t\nimages=1\nunit=micron\n", QString(), true}};
        Save(folder.Path("a.tif"), 1, 1, SampleType::U16, options);
        QString error;
        QVERIFY2(SetPictureResolution(folder.Path("a.tif"), 50800, error), qPrintable(error));
        QVERIFY(std::abs(Info(folder.Path("a.tif")).dpiX - 50800) < 1);
        QVERIFY(Info(folder.Path("a.tif")).metadata.first().value.contains("unit=micron"));
    }

    void whatHasNoPlaceForItIsSaid()
    {
        const PictureFolder folder;
        Save(folder.Path("a.fits"), 1, 1, SampleType::U16, SaveOptions());
        const QByteArray before = PictureFolder::Read(folder.Path("a.fits"));
        QString error;
        QVERIFY(!SetPictureResolution(folder.Path("a.fits"), 300, error));
        QCOMPARE(error, QString("\u201ca.fits\u201d was not saved: FITS files have no place for a resolution. "
                                "Save the picture as TIFF or PNG first."));
        QCOMPARE(PictureFolder::Read(folder.Path("a.fits")), before);

        QImage image(4, 4, QImage::Format_RGB888);
        image.fill(Qt::white);
        QVERIFY(image.save(folder.Path("a.jpg")));
        QVERIFY(!SetPictureResolution(folder.Path("a.jpg"), 100000, error));
        QVERIFY2(error.contains("at most 65535 pixels an inch"), qPrintable(error));
        QVERIFY(!SetPictureResolution(folder.Path("nowhere.tif"), 300, error));
        QVERIFY2(error.contains("nowhere.tif"), qPrintable(error));
    }

    void damagedFilesStayAsTheyAre()
    {
        const PictureFolder folder;
        Save(folder.Path("a.png"), 1, 1, SampleType::U16, SaveOptions());
        const QByteArray cut = PictureFolder::Read(folder.Path("a.png")).left(60);
        folder.Write("a.png", cut);
        QString error;
        QVERIFY(!SetPictureResolution(folder.Path("a.png"), 300, error));
        QCOMPARE(PictureFolder::Read(folder.Path("a.png")), cut);
        QCOMPARE(folder.Names(), QStringList("a.png"));
    }
};

GUARDED_TEST_MAIN(PictureResolutionTest)
#include "pictureresolutiontest.moc"
