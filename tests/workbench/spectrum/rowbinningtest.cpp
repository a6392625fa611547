// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "rowbinning.h"
#include "sampleview.h"

#include <random>

/// Sums against a plain loop.
class RowBinningTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void sumsAreThoseOfAPlainLoop_data();
    void sumsAreThoseOfAPlainLoop();
    void oneSaturatedPixelIsSeenInItsColumnOnly();
    void rowsBeyondThePictureCountNothing();
    void theLargestPictureDoesNotOverflow();
};

namespace {

struct MadePicture
{
    MadePicture(int width, int height, int bitDepth, bool isColour)
    {
        const int bytes = bitDepth > 8 ? 2 : 1;
        view.width = width;
        view.height = height;
        view.bitDepth = bitDepth;
        view.isColour = isColour;
        view.strideBytes = view.SamplesPerRow() * bytes + 6; // not packed
        memory.resize(size_t(view.strideBytes) * size_t(height));
        std::mt19937 random(3);
        for (int y = 0; y < height; ++y) {
            for (int i = 0; i < view.SamplesPerRow(); ++i)
                Set(i, y, random() % ((1U << bitDepth) - 1));
        }
        view.samples = memory.data();
    }

    void Set(int i, int y, unsigned value)
    {
        uchar *row = memory.data() + qptrdiff(y) * view.strideBytes;
        if (view.bitDepth > 8)
            reinterpret_cast<quint16 *>(row)[i] = quint16(value);
        else
            row[i] = uchar(value);
    }

    unsigned At(int i, int y) const { return view.bitDepth > 8 ? view.Row16(y)[i] : view.Row8(y)[i]; }

    SampleView view;
    std::vector<uchar> memory;
};

} // namespace

void RowBinningTest::sumsAreThoseOfAPlainLoop_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("bitDepth");
    QTest::addColumn<bool>("isColour");
    QTest::addColumn<int>("top");
    QTest::addColumn<int>("bottom");
    QTest::newRow("8 bits") << QSize(37, 19) << 8 << false << 0 << 19;
    QTest::newRow("12 bits, a band") << QSize(100, 50) << 12 << false << 11 << 38;
    QTest::newRow("16 bits, two threads") << QSize(1031, 1027) << 16 << false << 0 << 1027;
    QTest::newRow("16 bits, one row") << QSize(1031, 7) << 16 << false << 3 << 4;
    QTest::newRow("colour") << QSize(33, 20) << 8 << true << 2 << 20;
}

void RowBinningTest::sumsAreThoseOfAPlainLoop()
{
    QFETCH(QSize, size);
    QFETCH(int, bitDepth);
    QFETCH(bool, isColour);
    QFETCH(int, top);
    QFETCH(int, bottom);
    const MadePicture picture(size.width(), size.height(), bitDepth, isColour);
    const int channels = isColour ? 3 : 1;
    std::vector<quint32> columns(size_t(size.width()), 0);
    std::vector<quint32> rows(size_t(size.height()), 0);
    for (int y = 0; y < size.height(); ++y) {
        for (int i = 0; i < size.width() * channels; ++i) {
            if (y >= top && y < bottom)
                columns[size_t(i / channels)] += picture.At(i, y);
            if (i / channels >= 5 && i / channels < 20)
                rows[size_t(y)] += picture.At(i, y);
        }
    }
    BinnedLine line;
    BinRows(picture.view, top, bottom, &line);
    QVERIFY(line.sums == columns);
    QCOMPARE(line.saturated, std::vector<quint8>(size_t(size.width()), 0));
    BinColumns(picture.view, 5, 20, &line);
    QVERIFY(line.sums == rows);
    QCOMPARE(line.saturated, std::vector<quint8>(size_t(size.height()), 0));
}

void RowBinningTest::oneSaturatedPixelIsSeenInItsColumnOnly()
{
    for (const int bitDepth : {8, 12, 16}) {
        MadePicture picture(64, 40, bitDepth, false);
        picture.Set(17, 33, (1U << bitDepth) - 1);
        BinnedLine line;
        BinRows(picture.view, 0, 40, &line);
        std::vector<quint8> expected(64, 0);
        expected[17] = 1;
        QCOMPARE(line.saturated, expected);
        BinRows(picture.view, 0, 33, &line);
        QCOMPARE(line.saturated, std::vector<quint8>(64, 0));
        BinColumns(picture.view, 0, 64, &line);
        std::vector<quint8> rows(40, 0);
        rows[33] = 1;
        QCOMPARE(line.saturated, rows);
    }
}

void RowBinningTest::rowsBeyondThePictureCountNothing()
{
    const MadePicture picture(10, 5, 16, false);
    BinnedLine whole;
    BinRows(picture.view, 0, 5, &whole);
    BinnedLine line;
    BinRows(picture.view, -100, 100, &line);
    QVERIFY(line.sums == whole.sums);
    BinRows(picture.view, 4, 2, &line);
    QCOMPARE(line.sums, std::vector<quint32>(10, 0));
    BinRows(SampleView(), 0, 5, &line);
    QVERIFY(line.sums.empty());
}

void RowBinningTest::theLargestPictureDoesNotOverflow()
{
    MadePicture picture(2, 65535, 16, false);
    for (int y = 0; y < 65535; ++y)
        picture.Set(1, y, 65535);
    BinnedLine line;
    BinRows(picture.view, 0, 65535, &line);
    QCOMPARE(line.sums[1], quint32(65535U * 65535U));
    QCOMPARE(int(line.saturated[1]), 1);
}

GUARDED_TEST_MAIN(RowBinningTest)
#include "rowbinningtest.moc"
