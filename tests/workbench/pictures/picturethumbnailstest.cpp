// SPDX-License-Identifier: GPL-3.0-or-later
#include "createpicture.h"
#include "guardedtest.h"
#include "madepictures.h"
#include "picturethumbnails.h"

#include <QTemporaryDir>

#include <thread>
#include <vector>

namespace {

/// From `left` to `right` across the picture, in any type of sample.
void WriteRamp(const QString &path, SampleType type, double left, double right)
{
    Picture picture(300, 100, 1, type);
    VisitSampleType(type, [&](auto sample) {
        for (int y = 0; y < 100; ++y) {
            for (int x = 0; x < 300; ++x)
                picture.Samples<decltype(sample)>(y)[x] = decltype(sample)(left + (right - left) * x / 299);
        }
    });
    QString error;
    if (!SavePicture(path, picture, SaveOptions(), error))
        qFatal("%s", qPrintable(error));
}

} // namespace

/// Small pictures of files of every format and type of sample.
class PictureThumbnailsTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void ofEveryFormatAndType_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("type");
        QTest::addColumn<double>("left");
        QTest::addColumn<double>("right");
        QTest::newRow("12 bits in 16") << "a.tif" << int(SampleType::U16) << 100.0 << 4000.0;
        QTest::newRow("dark 16 bits") << "a.png" << int(SampleType::U16) << 10.0 << 320.0;
        QTest::newRow("signed") << "a.fits" << int(SampleType::S16) << -3000.0 << 3000.0;
        QTest::newRow("32 bits") << "a.tif" << int(SampleType::U32) << 1e6 << 4e9;
        QTest::newRow("floating point") << "a.fits" << int(SampleType::F32) << -0.001 << 0.002;
    }
    void ofEveryFormatAndType()
    {
        QFETCH(QString, name);
        QFETCH(int, type);
        QFETCH(double, left);
        QFETCH(double, right);
        const QTemporaryDir folder;
        WriteRamp(folder.filePath(name), SampleType(type), left, right);
        QString fault;
        const QImage image = PictureThumbnails().Make(folder.filePath(name), 128, fault);
        QVERIFY2(!image.isNull(), qPrintable(fault));
        QCOMPARE(image.size(), QSize(128, 42));
        QVERIFY(qGray(image.pixel(0, 20)) < 6);
        QVERIFY(qGray(image.pixel(127, 20)) > 249);
        QVERIFY(qAbs(qGray(image.pixel(64, 20)) - 128) < 6);
    }

    void eightBitsStayAsTheyAre()
    {
        const QTemporaryDir folder;
        WriteRamp(folder.filePath("a.tif"), SampleType::U8, 100, 120);
        QString fault;
        const QImage image = PictureThumbnails().Make(folder.filePath("a.tif"), 128, fault);
        QVERIFY(qAbs(qGray(image.pixel(0, 20)) - 100) <= 1);
        QVERIFY(qAbs(qGray(image.pixel(127, 20)) - 120) <= 1);
    }

    void smallPicturesAreNotEnlarged()
    {
        const QTemporaryDir folder;
        MadePictures::Write(folder.filePath("a.tif"), QSize(20, 1));
        QString fault;
        QCOMPARE(PictureThumbnails().Make(folder.filePath("a.tif"), 128, fault).size(), QSize(20, 1));
    }

    void longOnesKeepAPixel()
    {
        const QTemporaryDir folder;
        Picture picture(5000, 2, 1, SampleType::U8);
        std::fill_n(picture.Data(), picture.ByteCount(), uchar(9));
        QString fault;
        QVERIFY(SavePicture(folder.filePath("a.tif"), picture, SaveOptions(), fault));
        QCOMPARE(PictureThumbnails().Make(folder.filePath("a.tif"), 128, fault).size(), QSize(128, 1));
    }

    void badFilesAreSaid()
    {
        const QTemporaryDir folder;
        MadePictures::WriteBytes(folder.filePath("a.tif"), "no picture");
        QString fault;
        QVERIFY(PictureThumbnails().Make(folder.filePath("a.tif"), 128, fault).isNull());
        QVERIFY2(fault.contains("a.tif"), qPrintable(fault));
        QVERIFY(PictureThumbnails().Make(folder.filePath("nowhere.tif"), 128, fault).isNull());
        QVERIFY2(fault.contains("nowhere.tif"), qPrintable(fault));
    }

    void severalThreadsAtOnce()
    {
        const QTemporaryDir folder;
        WriteRamp(folder.filePath("a.tif"), SampleType::U16, 0, 5000);
        PictureThumbnails thumbnails;
        QString fault;
        const QImage expected = thumbnails.Make(folder.filePath("a.tif"), 128, fault);
        std::vector<std::thread> threads;
        std::atomic<int> same{0};
        for (int i = 0; i < 4; ++i) {
            threads.emplace_back([&] {
                QString ownFault;
                for (int round = 0; round < 10; ++round)
                    same += thumbnails.Make(folder.filePath("a.tif"), 128, ownFault) == expected;
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        QCOMPARE(same.load(), 40);
    }

    void endingsOfAllFormats()
    {
        const QStringList suffixes = PictureThumbnails().Suffixes();
        for (const char *suffix : {"tif", "tiff", "fits", "fit", "png", "jpg", "jpeg", "bmp", "spe"})
            QVERIFY2(suffixes.contains(suffix), suffix);
    }
};

GUARDED_TEST_MAIN(PictureThumbnailsTest)
#include "picturethumbnailstest.moc"
