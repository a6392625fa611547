// SPDX-License-Identifier: GPL-3.0-or-later
#include "csvwriter.h"
#include "guardedtest.h"
#include "picturefolder.h"

#include <limits>

namespace {

template <typename Sample>
Picture Row(std::initializer_list<Sample> samples, SampleType type, int channels = 1)
{
    Picture picture(int(samples.size()) / channels, 1, channels, type);
    std::copy(samples.begin(), samples.end(), picture.Samples<Sample>(0));
    return picture;
}

QByteArray Written(const PictureFolder &folder, const QVector<Picture> &frames, const QString &source = "cells.tif")
{
    CsvWriter writer(folder.Path("a.csv"));
    FileFault fault;
    bool done = writer.Create(source, fault);
    for (const Picture &frame : frames)
        done = done && writer.Append(frame, QString(), fault);
    if (!done || !writer.Commit(fault))
        qFatal("%s", qPrintable(fault.what));
    return PictureFolder::Read(folder.Path("a.csv"));
}

} // namespace

/// Samples as text.
class CsvWriterTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void samplesOfAllTypes_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("type");
        QTest::newRow("U8") << QByteArray("0,255") << int(SampleType::U8);
        QTest::newRow("S8") << QByteArray("-128,127") << int(SampleType::S8);
        QTest::newRow("U16") << QByteArray("0,65535") << int(SampleType::U16);
        QTest::newRow("S16") << QByteArray("-32768,32767") << int(SampleType::S16);
        QTest::newRow("U32") << QByteArray("0,4294967295") << int(SampleType::U32);
        QTest::newRow("S32") << QByteArray("-2147483648,2147483647") << int(SampleType::S32);
    }
    void samplesOfAllTypes()
    {
        QFETCH(QByteArray, text);
        QFETCH(int, type);
        Picture picture(2, 1, 1, SampleType(type));
        VisitSampleType(SampleType(type), [&](auto sample) {
            using Sample = decltype(sample);
            picture.Samples<Sample>(0)[0] = std::numeric_limits<Sample>::lowest();
            picture.Samples<Sample>(0)[1] = std::numeric_limits<Sample>::max();
        });
        const PictureFolder folder;
        QCOMPARE(Written(folder, {picture}).split('\n').value(4), text);
    }

    void numbersReadBackAsTheyWere()
    {
        const double nan = std::numeric_limits<double>::quiet_NaN();
        const PictureFolder folder;
        const QByteArray line =
            Written(folder, {Row<double>({0.1, 1.0 / 3, -2.5e-300, 1e22, nan}, SampleType::F64)}).split('\n').value(4);
        const QList<QByteArray> numbers = line.split(',');
        QCOMPARE(numbers.size(), 5);
        QCOMPARE(numbers[0], QByteArray("0.1"));
        QCOMPARE(numbers[1].toDouble(), 1.0 / 3);
        QCOMPARE(numbers[2].toDouble(), -2.5e-300);
        QCOMPARE(numbers[3].toDouble(), 1e22);
        QCOMPARE(numbers[4], QByteArray("nan"));
        QCOMPARE(Written(folder, {Row<float>({0.1f}, SampleType::F32)}).split('\n').value(4), QByteArray("0.1"));
    }

    void theHeaderSaysWhatItIs()
    {
        const PictureFolder folder;
        QCOMPARE(Written(folder, {Row<quint16>({1, 2, 3}, SampleType::U16)}, "two\nlines.tif"),
                 QByteArray("# picture: two lines.tif\n"
                            "# size: 3 x 1 pixels, a line for each row from the top\n"
                            "# samples: 16-bit unsigned integer\n"
                            "# columns: the pixels from the left\n"
                            "1,2,3\n"));
        QCOMPARE(Written(folder, {Row<quint8>({1, 2, 3, 4, 5, 6}, SampleType::U8, 3)}),
                 QByteArray("# picture: cells.tif\n"
                            "# size: 2 x 1 pixels, a line for each row from the top\n"
                            "# samples: 8-bit unsigned integer\n"
                            "# columns: red, green and blue of each pixel\n"
                            "1,2,3,4,5,6\n"));
    }

    void withoutCommitThereIsNothing()
    {
        const PictureFolder folder;
        {
            CsvWriter writer(folder.Path("a.csv"));
            FileFault fault;
            QVERIFY(writer.Create("a", fault));
            QVERIFY(writer.Append(Row<quint8>({1}, SampleType::U8), QString(), fault));
        }
        QVERIFY(folder.Names().isEmpty());
    }
};

GUARDED_TEST_MAIN(CsvWriterTest)
#include "csvwritertest.moc"
