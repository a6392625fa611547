// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "usedpictures.h"

class UsedPicturesTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void thereIsNoneAtFirst()
    {
        UsedPictures pictures;
        QVERIFY(pictures.Take(Size).isNull());
    }

    void whatNobodyHoldsIsUsedAgain()
    {
        UsedPictures pictures;
        QImage given(Size, QImage::Format_Grayscale8);
        const uchar *memory = given.constBits();
        pictures.Remember(given);
        QVERIFY(pictures.Take(Size).isNull()); // it is still looked at
        given = QImage();
        QImage again = pictures.Take(Size);
        QCOMPARE(again.constBits(), memory);
        QVERIFY(again.isDetached());
        QVERIFY(pictures.Take(Size).isNull()); // given only once
    }

    void anotherSizeIsNotGiven()
    {
        UsedPictures pictures;
        pictures.Remember(QImage(Size, QImage::Format_Grayscale8));
        QVERIFY(pictures.Take(Size.transposed()).isNull());
        QVERIFY(!pictures.Take(Size).isNull());
    }

    void noMoreThanThreeAreKept()
    {
        UsedPictures pictures;
        for (int i = 0; i < 7; ++i)
            pictures.Remember(QImage(Size, QImage::Format_Grayscale8));
        for (int i = 0; i < 3; ++i)
            QVERIFY(!pictures.Take(Size).isNull());
        QVERIFY(pictures.Take(Size).isNull());
    }

    void theMemoryOfAGiantIsNotKept()
    {
        UsedPictures pictures;
        const QSize giant(16384, 4097);
        pictures.Remember(QImage(giant, QImage::Format_Grayscale8));
        QVERIFY(pictures.Take(giant).isNull());
    }

private:
    const QSize Size{ 30, 20 };
};

GUARDED_TEST_MAIN(UsedPicturesTest)
#include "usedpicturestest.moc"
