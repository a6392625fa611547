// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "orientedimage.h"
#include "viewcodes.h"

namespace {

/// The commands done pixel by pixel on the picture itself.
QImage DoneByPixels(const QImage &picture, int command)
{
    const int width = picture.width();
    const int height = picture.height();
    QImage result(command == RotateBy90 ? QSize(height, width) : QSize(width, height), picture.format());
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            QPoint target(x, y);
            if (command == RotateBy90)
                target = QPoint(height - 1 - y, x);
            else if (command == FlipHorizontal)
                target = QPoint(width - 1 - x, y);
            else
                target = QPoint(x, height - 1 - y);
            result.setPixel(target, picture.pixel(x, y));
        }
    }
    return result;
}

/// Rows of 5 pixels are padded in memory, and so are columns of 3.
QImage NumberedPicture(QImage::Format format)
{
    QImage picture(5, 3, QImage::Format_RGB888);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, qRgb(x * 40, y * 60, x + y));
    }
    return picture.convertToFormat(format);
}

} // namespace

/// Commands act on the picture as it is seen, whatever was done to it before.
class OrientedImageTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void everySequenceOfThreeCommandsIsTheSameAsDoingThemOneByOne_data()
    {
        QTest::addColumn<QImage::Format>("format");
        QTest::newRow("grey") << QImage::Format_Grayscale8;
        QTest::newRow("colour") << QImage::Format_RGB888;
    }

    void everySequenceOfThreeCommandsIsTheSameAsDoingThemOneByOne()
    {
        QFETCH(QImage::Format, format);
        const QImage frame = NumberedPicture(format);
        for (int sequence = 0; sequence < 27; ++sequence) {
            Orientation orientation;
            QImage expected = frame;
            for (const int command : { sequence % 3, sequence / 3 % 3, sequence / 9 }) {
                orientation = orientation.After(command);
                expected = DoneByPixels(expected, command);
            }
            QCOMPARE(OrientedImage(frame, orientation), expected);
            QCOMPARE(orientation.Map(frame.size()), expected.size());
            ComparePixels(orientation, frame, expected);
        }
    }

    void fourTurnsAreNone()
    {
        Orientation orientation;
        for (const int degrees : { 90, 180, 270, 0 }) {
            orientation = orientation.After(RotateBy90);
            QCOMPARE(orientation.Degrees(), degrees);
        }
        QCOMPARE(orientation, Orientation());
    }

    void anUnknownCommandChangesNothing()
    {
        const Orientation turned(true, 3);
        QCOMPARE(turned.After(3), turned);
        QCOMPARE(turned.After(-1), turned);
    }

    void noPictureStaysNone() { QVERIFY(OrientedImage(QImage(), Orientation(true, 1)).isNull()); }

private:
    static void ComparePixels(const Orientation &orientation, const QImage &frame, const QImage &seen)
    {
        for (int y = 0; y < seen.height(); ++y) {
            for (int x = 0; x < seen.width(); ++x) {
                const QPoint pixel = orientation.Inverse().Map(QPoint(x, y), seen.size());
                QCOMPARE(frame.pixel(pixel), seen.pixel(x, y));
                QCOMPARE(orientation.Map(pixel, frame.size()), QPoint(x, y));
            }
        }
    }
};

GUARDED_TEST_MAIN(OrientedImageTest)
#include "orientedimagetest.moc"
