// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "picturefolder.h"

#include <QBuffer>
#include <QImage>
#include <QtEndian>

class RasterPictureFileTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void samplesAreReadAsTheyAre_data();
    void samplesAreReadAsTheyAre();
    void textAndResolutionAreRead();
    void everyTruncationIsToldOrRead_data();
    void everyTruncationIsToldOrRead();
    void giganticSizesAreToldBeforeAnythingIsTaken_data();
    void giganticSizesAreToldBeforeAnythingIsTaken();
};

namespace {

QByteArray Encoded(const QImage &image, const char *format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

QImage Ramp(int width, int height, QImage::Format format)
{
    QImage image(width, height, format);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            image.setPixelColor(x, y, QColor(x * 7 % 256, format == QImage::Format_RGB888 ? y * 5 % 256 : x * 7 % 256, x * 7 % 256));
    }
    return image;
}

quint32 Crc32(const QByteArray &bytes)
{
    quint32 crc = 0xffffffff;
    for (const char byte : bytes) {
        crc ^= uchar(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = crc >> 1 ^ (crc & 1 ? 0xedb88320 : 0);
    }
    return ~crc;
}

QByteArray BigEndian32(quint32 value)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

/// A PNG with another size in its header, and the check sum that goes with it.
QByteArray WithPngSize(QByteArray png, quint32 width, quint32 height)
{
    constexpr int nameOffset = 12;
    constexpr int nameAndContent = 17;
    png.replace(16, 8, BigEndian32(width) + BigEndian32(height));
    return png.replace(nameOffset + nameAndContent, 4, BigEndian32(Crc32(png.mid(nameOffset, nameAndContent))));
}

} // namespace

void RasterPictureFileTest::samplesAreReadAsTheyAre_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("channels");
    QTest::addColumn<int>("type");
    QTest::addColumn<QVector<double>>("samples");
    QImage grey(3, 1, QImage::Format_Grayscale8);
    QImage deep(3, 1, QImage::Format_Grayscale16);
    QImage colour(2, 1, QImage::Format_RGB888);
    for (int x = 0; x < 3; ++x) {
        grey.scanLine(0)[x] = uchar(100 + x);
        reinterpret_cast<quint16 *>(deep.scanLine(0))[x] = quint16(40000 + x);
    }
    for (int i = 0; i < 6; ++i)
        colour.scanLine(0)[i] = uchar(10 + 40 * i);
    QTest::newRow("grey PNG") << Encoded(grey, "png") << 1 << int(SampleType::U8) << QVector<double>{100, 101, 102};
    QTest::newRow("16-bit PNG") << Encoded(deep, "png") << 1 << int(SampleType::U16) << QVector<double>{40000, 40001, 40002};
    QTest::newRow("colour PNG") << Encoded(colour, "png") << 3 << int(SampleType::U8) << QVector<double>{10, 50, 90, 130, 170, 210};
    QTest::newRow("colour BMP") << Encoded(colour, "bmp") << 3 << int(SampleType::U8) << QVector<double>{10, 50, 90, 130, 170, 210};
    QTest::newRow("grey BMP") << Encoded(grey, "bmp") << 1 << int(SampleType::U8) << QVector<double>{100, 101, 102};
}

void RasterPictureFileTest::samplesAreReadAsTheyAre()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, channels);
    QFETCH(int, type);
    QFETCH(QVector<double>, samples);
    PictureFolder folder;
    QString error;
    const auto file = OpenPicture(folder.Write("picture", bytes), error);
    QVERIFY2(file, qPrintable(error));
    QCOMPARE(file->Info().frames, 1);
    QCOMPARE(file->Info().channels, channels);
    Picture picture;
    QVERIFY2(file->ReadFrame(0, picture, error), qPrintable(error));
    QCOMPARE(picture.Channels(), channels);
    QCOMPARE(int(picture.Type()), type);
    QCOMPARE(SamplesOf(picture), samples);
}

void RasterPictureFileTest::textAndResolutionAreRead()
{
    QImage image = Ramp(8, 8, QImage::Format_RGB888);
    image.setText("Exposure", "12 ms");
    image.setDotsPerMeterX(11811);
    image.setDotsPerMeterY(5906);
    PictureFolder folder;
    for (const char *format : {"png", "jpg", "bmp"}) {
        QString error;
        const auto file = OpenPicture(folder.Write(QString("text.") + format, Encoded(image, format)), error);
        QVERIFY2(file, qPrintable(error));
        QCOMPARE(qRound(file->Info().dpiX), 300);
        QCOMPARE(qRound(file->Info().dpiY), 150);
        if (QByteArray(format) == "png")
            QCOMPARE(file->Info().metadata.value(0).key + '=' + file->Info().metadata.value(0).value, QString("Exposure=12 ms"));
    }
}

void RasterPictureFileTest::everyTruncationIsToldOrRead_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("png") << Encoded(Ramp(40, 30, QImage::Format_RGB888), "png");
    QTest::newRow("jpg") << Encoded(Ramp(40, 30, QImage::Format_RGB888), "jpg");
    QTest::newRow("bmp") << Encoded(Ramp(40, 30, QImage::Format_RGB888), "bmp");
    QTest::newRow("grey bmp") << Encoded(Ramp(40, 30, QImage::Format_Grayscale8), "bmp");
}

void RasterPictureFileTest::everyTruncationIsToldOrRead()
{
    QFETCH(QByteArray, bytes);
    PictureFolder folder;
    for (int size = 0; size < bytes.size(); size += 3) {
        const QString error = PictureFolder::ErrorOf(folder.Write("short", bytes.left(size)));
        QVERIFY2(error.contains("\u201cshort\u201d cannot be read"), qPrintable(QString("%1 bytes: %2").arg(size).arg(error)));
    }
    QCOMPARE(PictureFolder::ErrorOf(folder.Write("short", bytes)), QString());
}

void RasterPictureFileTest::giganticSizesAreToldBeforeAnythingIsTaken_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QImage image = Ramp(40, 30, QImage::Format_RGB888);
    QTest::newRow("png") << WithPngSize(Encoded(image, "png"), 30000, 30000);
    QTest::newRow("png, beyond 32 bits") << WithPngSize(Encoded(image, "png"), 0xffffffff, 1);
    QTest::newRow("png without size") << WithPngSize(Encoded(image, "png"), 0, 0);
    QByteArray bmp = Encoded(image, "bmp");
    qToLittleEndian(qint32(30000), bmp.data() + 18);
    qToLittleEndian(qint32(30000), bmp.data() + 22);
    QTest::newRow("bmp") << bmp;
    qToLittleEndian(qint32(-2147483647 - 1), bmp.data() + 22);
    QTest::newRow("bmp, upside down") << bmp;
    QByteArray jpeg = Encoded(image, "jpg");
    const int frame = jpeg.indexOf("\xff\xc0");
    jpeg.replace(frame + 5, 4, QByteArray::fromHex("ffffffff"));
    QTest::newRow("jpg") << jpeg;
}

void RasterPictureFileTest::giganticSizesAreToldBeforeAnythingIsTaken()
{
    QFETCH(QByteArray, bytes);
    PictureFolder folder;
    QString error;
    QVERIFY(!OpenPicture(folder.Write("large", bytes), error)); // nothing was decoded yet
    QVERIFY2(error.contains("its size") || error.contains("takes"), qPrintable(error));
}

GUARDED_TEST_MAIN(RasterPictureFileTest)
#include "rasterpicturefiletest.moc"
