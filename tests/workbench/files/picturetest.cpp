// SPDX-License-Identifier: GPL-3.0-or-later
#include "picture.h"
#include "guardedtest.h"

/// The memory of a frame.
class PictureTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void aPictureLiesInItsPagesAsInTheFile_data();
    void aPictureLiesInItsPagesAsInTheFile();
};

void PictureTest::aPictureLiesInItsPagesAsInTheFile_data()
{
    QTest::addColumn<quint64>("fileOffset");
    QTest::addColumn<int>("type");
    QTest::addColumn<quint64>("place");
    QTest::newRow("start of the file") << quint64(0) << int(SampleType::U16) << quint64(0);
    QTest::newRow("behind a header") << quint64(8) << int(SampleType::U16) << quint64(8);
    QTest::newRow("third page") << quint64(2 * 4096 + 4095) << int(SampleType::U8) << quint64(4095);
    QTest::newRow("no place for the type") << quint64(4098) << int(SampleType::F32) << quint64(0);
}

void PictureTest::aPictureLiesInItsPagesAsInTheFile()
{
    QFETCH(quint64, fileOffset);
    QFETCH(int, type);
    QFETCH(quint64, place);
    const auto placeOf = [](const Picture &picture) {
        return quint64(reinterpret_cast<quintptr>(picture.Data()) % 4096);
    };
    Picture picture;
    picture.Reshape(3000, 3, 1, SampleType(type), fileOffset);
    QCOMPARE(placeOf(picture), place);
    std::fill_n(picture.Data(), picture.ByteCount(), uchar(7)); // within its memory

    picture.Reshape(3, 3000, 1, SampleType(type)); // the same buffer
    QCOMPARE(placeOf(picture), quint64(0));
    std::fill_n(picture.Data(), picture.ByteCount(), uchar(8));
    picture.Reshape(3000, 3, 1, SampleType(type), fileOffset);
    QCOMPARE(placeOf(picture), place);
    std::fill_n(picture.Data(), picture.ByteCount(), uchar(9));

    const Picture copy = picture;
    picture.Data()[0] = 1;
    QCOMPARE(copy.Data()[0], uchar(9));
}

GUARDED_TEST_MAIN(PictureTest)
#include "picturetest.moc"
