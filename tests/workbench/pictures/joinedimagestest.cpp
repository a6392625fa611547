// SPDX-License-Identifier: GPL-3.0-or-later
#include "joinedimages.h"
#include "guardedtest.h"

/// The picture of a comparison that is saved.
class JoinedImagesTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void greyPicturesStayGreyAndKeepTheirSizes()
    {
        QImage left(5, 3, QImage::Format_Grayscale8);
        left.fill(100);
        QImage right(2, 7, QImage::Format_Grayscale8);
        right.fill(200);
        const QImage joined = JoinedImages(left, right);
        QCOMPARE(joined.format(), QImage::Format_Grayscale8);
        QCOMPARE(joined.size(), QSize(5 + 8 + 2, 7));
        for (int y = 0; y < 7; ++y) {
            for (int x = 0; x < joined.width(); ++x) {
                const int expected = x < 5 && y < 3 ? 100 : x >= 13 ? 200 : 0;
                QCOMPARE(qGray(joined.pixel(x, y)), expected);
            }
        }
    }

    void aColourPictureKeepsItsColours()
    {
        QImage left(3, 2, QImage::Format_Grayscale8);
        left.fill(50);
        QImage right(3, 2, QImage::Format_RGB888);
        right.fill(QColor(10, 20, 30));
        const QImage joined = JoinedImages(left, right);
        QCOMPARE(joined.format(), QImage::Format_RGB888);
        QCOMPARE(joined.pixelColor(2, 1), QColor(50, 50, 50));
        QCOMPARE(joined.pixelColor(3, 1), QColor(Qt::black));
        QCOMPARE(joined.pixelColor(11, 0), QColor(10, 20, 30));
    }
};

GUARDED_TEST_MAIN(JoinedImagesTest)
#include "joinedimagestest.moc"
