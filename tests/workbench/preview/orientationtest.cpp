// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "orientation.h"

#include <QImage>

namespace {

enum Command { Turn = 0, MirrorHorizontally = 1, MirrorVertically = 2 };

/// The commands done pixel by pixel on the picture itself.
QImage DoneByPixels(const QImage &picture, int command)
{
    const int width = picture.width();
    const int height = picture.height();
    QImage result(command == Turn ? QSize(height, width) : QSize(width, height), picture.format());
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            QPoint target(x, y);
            if (command == Turn)
                target = QPoint(height - 1 - y, x);
            else if (command == MirrorHorizontally)
                target = QPoint(width - 1 - x, y);
            else
                target = QPoint(x, height - 1 - y);
            result.setPixel(target, picture.pixel(x, y));
        }
    }
    return result;
}

QImage NumberedPicture()
{
    QImage picture(5, 3, QImage::Format_RGB888);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, qRgb(x * 40, y * 60, x + y));
    }
    return picture;
}

void Command(Orientation &orientation, int command)
{
    if (command == Turn)
        orientation.Rotate90();
    else if (command == MirrorHorizontally)
        orientation.FlipHorizontal();
    else
        orientation.FlipVertical();
}

} // namespace

/// Commands act on the picture as it is seen, whatever was done to it before.
class OrientationTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void everySequenceOfThreeCommandsIsTheSameAsDoingThemOneByOne()
    {
        const QImage frame = NumberedPicture();
        for (int sequence = 0; sequence < 27; ++sequence) {
            Orientation orientation;
            QImage expected = frame;
            for (const int command : {sequence % 3, sequence / 3 % 3, sequence / 9}) {
                Command(orientation, command);
                expected = DoneByPixels(expected, command);
            }
            const QImage seen = orientation.Applied(frame);
            QCOMPARE(seen, expected);
            QCOMPARE(orientation.Applied(frame.size()), expected.size());
            CompareFramePixels(orientation, frame, expected);
        }
    }

    void fourTurnsAreNone()
    {
        Orientation orientation;
        QVERIFY(orientation.IsUpright());
        for (const int degrees : {90, 180, 270, 0}) {
            orientation.Rotate90();
            QCOMPARE(orientation.Degrees(), degrees);
        }
        QVERIFY(orientation.IsUpright());
    }

private:
    static void CompareFramePixels(const Orientation &orientation, const QImage &frame, const QImage &seen)
    {
        for (int y = 0; y < seen.height(); ++y) {
            for (int x = 0; x < seen.width(); ++x)
                QCOMPARE(frame.pixel(orientation.FramePixel(QPoint(x, y), frame.size())), seen.pixel(x, y));
        }
    }
};

GUARDED_TEST_MAIN(OrientationTest)
#include "orientationtest.moc"
