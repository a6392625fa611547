// SPDX-License-Identifier: GPL-3.0-or-later
#include "levelsconverter.h"
#include "guardedtest.h"
#include "randomsamples.h"

#include <algorithm>
#include <cmath>

class LevelsConverterTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void AgreesWithTheFormula_data();
    void AgreesWithTheFormula();
    void EveryRangeEndsBlackAndWhiteAndIsMonotonic();
    void SenselessLevelsAreGuarded_data();
    void SenselessLevelsAreGuarded();
    void ColourGoesThroughChannelByChannel_data();
    void ColourGoesThroughChannelByChannel();
    void PictureMemoryIsUsedAgainUnlessShared();
    void NothingGivesANullPicture();
    void TableFollowsTheLevels();
    void GammaOfEveryValueIsThatOfTheFormula_data();
    void GammaOfEveryValueIsThatOfTheFormula();
    void SaturatedSamplesAreRedWhenMarked_data();
    void SaturatedSamplesAreRedWhenMarked();
    void SaturatedColourIsRedWhenMarked();
    void MarkTakesTheTrueBitDepth();
    void LargePictureIsThatOfItsParts_data();
    void LargePictureIsThatOfItsParts();
};

namespace {

/// Grey before it is rounded, straight from the definition of the levels.
double ExactGrey(int sample, int left, int right, double gamma)
{
    const double part = double(sample - left) / (right - left);
    return 255.0 * std::pow(part < 0 ? 0.0 : part > 1 ? 1.0 : part, 1.0 / gamma);
}

bool IsRounded(int grey, double exact, int left, int right, double gamma)
{
    // Fixed point may err by range / 2^24 for wide linear levels; a table errs by nothing but rounding.
    const bool isExact = gamma != 1.0 || right - left <= 2896;
    if (isExact)
        return grey == int(std::floor(exact + 0.5 + 1e-9));
    return std::abs(grey - exact) <= 0.5 + double(right - left) / (1 << 24);
}

} // namespace

void LevelsConverterTest::AgreesWithTheFormula_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("bitDepth");
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("right");
    QTest::addColumn<double>("gamma");
    for (const QSize size : { QSize(1, 1), QSize(3, 5), QSize(641, 479), QSize(1021, 7) }) {
        const auto addRow = [size](int bitDepth, int left, int right, double gamma) {
            QTest::addRow("%dx%d %d bits %d..%d gamma %g", size.width(), size.height(), bitDepth, left, right,
                          gamma)
                << size << bitDepth << left << right << gamma;
        };
        for (const double gamma : { 1.0, 2.2, 0.45 }) {
            addRow(8, 0, 255, gamma);
            addRow(8, 13, 200, gamma);
            addRow(8, 100, 101, gamma);
            addRow(12, 0, 4095, gamma);
            addRow(12, 250, 2900, gamma);
            addRow(16, 0, 65535, gamma);
            addRow(16, 1000, 40001, gamma);
            addRow(16, 500, 3396, gamma);
            addRow(16, 65534, 65535, gamma);
        }
    }
}

void LevelsConverterTest::AgreesWithTheFormula()
{
    QFETCH(QSize, size);
    QFETCH(int, bitDepth);
    QFETCH(int, left);
    QFETCH(int, right);
    QFETCH(double, gamma);
    const RandomSamples samples(size, bitDepth, false, 11);
    QImage picture;
    LevelsConverter().Convert(samples.View(), { left, right, gamma }, &picture);
    QCOMPARE(picture.format(), QImage::Format_Grayscale8);
    QCOMPARE(picture.size(), size);
    for (int y = 0; y < size.height(); ++y) {
        const uchar *row = picture.constScanLine(y);
        for (int x = 0; x < size.width(); ++x) {
            const double exact = ExactGrey(samples.At(x, y), left, right, gamma);
            if (!IsRounded(row[x], exact, left, right, gamma))
                QFAIL(
                    qPrintable(QString("%1 became %2, not %3").arg(samples.At(x, y)).arg(row[x]).arg(exact)));
        }
    }
}

void LevelsConverterTest::EveryRangeEndsBlackAndWhiteAndIsMonotonic()
{
    // All values of 16 bits in one row.
    RandomSamples samples(QSize(65536, 1), 16, false, 1);
    for (int value = 0; value < 65536; ++value)
        samples.Set(value, 0, value);
    LevelsConverter converter;
    QImage picture;
    for (const int left : { 0, 1, 777, 32768 }) {
        for (int range = 1; left + range <= 65535; range = range * 5 / 3 + 1) {
            converter.Convert(samples.View(), { left, left + range, 1.0 }, &picture);
            const uchar *grey = picture.constScanLine(0);
            QCOMPARE(int(grey[left]), 0);
            QCOMPARE(int(grey[left + range]), 255);
            QCOMPARE(int(grey[65535]), 255);
            QVERIFY(std::is_sorted(grey, grey + 65536));
        }
    }
}

void LevelsConverterTest::SenselessLevelsAreGuarded_data()
{
    QTest::addColumn<int>("bitDepth");
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("right");
    QTest::addColumn<double>("gamma");
    QTest::addColumn<int>("guardedLeft");
    QTest::addColumn<int>("guardedRight");
    QTest::addColumn<double>("guardedGamma");
    QTest::newRow("equal") << 12 << 700 << 700 << 1.0 << 700 << 701 << 1.0;
    QTest::newRow("equal at full scale") << 8 << 255 << 255 << 1.0 << 254 << 255 << 1.0;
    QTest::newRow("equal at zero") << 16 << 0 << 0 << 1.0 << 0 << 1 << 1.0;
    QTest::newRow("crossed") << 16 << 900 << 100 << 1.0 << 900 << 901 << 1.0;
    QTest::newRow("outside") << 8 << -40 << 4000 << 1.0 << 0 << 255 << 1.0;
    QTest::newRow("no gamma") << 8 << 0 << 255 << 0.0 << 0 << 255 << 1.0;
    QTest::newRow("gamma is no number") << 8 << 0 << 255 << std::nan("") << 0 << 255 << 1.0;
    QTest::newRow("wild gamma") << 8 << 0 << 255 << 1e9 << 0 << 255 << 10.0;
}

void LevelsConverterTest::SenselessLevelsAreGuarded()
{
    QFETCH(int, bitDepth);
    QFETCH(int, left);
    QFETCH(int, right);
    QFETCH(double, gamma);
    const DisplayLevels wished{ left, right, gamma };
    const DisplayLevels guarded = wished.Guarded(bitDepth);
    QTEST(guarded.left, "guardedLeft");
    QTEST(guarded.right, "guardedRight");
    QTEST(guarded.gamma, "guardedGamma");

    const RandomSamples samples(QSize(37, 11), bitDepth, false, 5);
    QImage fromWished;
    QImage fromGuarded;
    LevelsConverter().Convert(samples.View(), wished, &fromWished);
    LevelsConverter().Convert(samples.View(), guarded, &fromGuarded);
    QCOMPARE(fromWished, fromGuarded);
}

void LevelsConverterTest::ColourGoesThroughChannelByChannel_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("right");
    QTest::addColumn<double>("gamma");
    for (const QSize size : { QSize(1, 1), QSize(3, 5), QSize(641, 479) }) {
        const QByteArray name = QByteArray::number(size.width()) + "x" + QByteArray::number(size.height());
        QTest::newRow((name + " as it is").constData()) << size << 0 << 255 << 1.0;
        QTest::newRow((name + " levels").constData()) << size << 20 << 180 << 1.0;
        QTest::newRow((name + " gamma").constData()) << size << 20 << 180 << 1.8;
    }
}

void LevelsConverterTest::ColourGoesThroughChannelByChannel()
{
    QFETCH(QSize, size);
    QFETCH(int, left);
    QFETCH(int, right);
    QFETCH(double, gamma);
    const RandomSamples samples(size, 8, true, 3);
    QImage picture;
    LevelsConverter().Convert(samples.View(), { left, right, gamma }, &picture);
    QCOMPARE(picture.format(), QImage::Format_RGB888);
    const auto expected = [&](int x, int y, int channel) {
        return int(std::floor(ExactGrey(samples.At(x, y, channel), left, right, gamma) + 0.5 + 1e-9));
    };
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            QCOMPARE(picture.pixel(x, y), qRgb(expected(x, y, 0), expected(x, y, 1), expected(x, y, 2)));
    }
}

void LevelsConverterTest::PictureMemoryIsUsedAgainUnlessShared()
{
    const RandomSamples first(QSize(33, 9), 16, false, 1);
    const RandomSamples second(QSize(33, 9), 16, false, 2);
    LevelsConverter converter;
    QImage picture;
    converter.Convert(first.View(), DisplayLevels::FullRange(16), &picture);
    const uchar *memory = picture.constBits();
    converter.Convert(second.View(), DisplayLevels::FullRange(16), &picture);
    QCOMPARE(static_cast<const void *>(picture.constBits()), static_cast<const void *>(memory));

    const QImage onScreen = picture;
    const QImage copy = onScreen.copy();
    converter.Convert(first.View(), DisplayLevels::FullRange(16), &picture);
    QCOMPARE(onScreen, copy); // what is on the screen is never written
    QVERIFY(picture != onScreen);
}

void LevelsConverterTest::NothingGivesANullPicture()
{
    QImage picture(4, 4, QImage::Format_Grayscale8);
    LevelsConverter().Convert(SampleView(), DisplayLevels(), &picture);
    QVERIFY(picture.isNull());
}

void LevelsConverterTest::TableFollowsTheLevels()
{
    const RandomSamples samples(QSize(64, 4), 16, false, 9);
    LevelsConverter kept;
    for (const DisplayLevels &levels : { DisplayLevels{ 0, 65535, 2.0 }, DisplayLevels{ 9, 65535, 2.0 },
                                         DisplayLevels{ 9, 6553, 2.0 }, DisplayLevels{ 9, 6553, 0.5 } }) {
        QImage picture;
        QImage fresh;
        kept.Convert(samples.View(), levels, &picture);
        LevelsConverter().Convert(samples.View(), levels, &fresh);
        QCOMPARE(picture, fresh);
    }
}

void LevelsConverterTest::GammaOfEveryValueIsThatOfTheFormula_data()
{
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("right");
    QTest::addColumn<double>("gamma");
    for (const double gamma : { 0.1, 0.5, 0.9, 1.1, 1.8, 2.2, 10.0 }) {
        for (const auto &range : { qMakePair(0, 65535), qMakePair(300, 52000), qMakePair(1000, 1300),
                                   qMakePair(65534, 65535), qMakePair(0, 1) })
            QTest::addRow("%d..%d gamma %g", range.first, range.second, gamma)
                << range.first << range.second << gamma;
    }
}

void LevelsConverterTest::GammaOfEveryValueIsThatOfTheFormula()
{
    QFETCH(int, left);
    QFETCH(int, right);
    QFETCH(double, gamma);
    RandomSamples samples(QSize(65536, 1), 16, false, 1);
    for (int value = 0; value < 65536; ++value)
        samples.Set(value, 0, value);
    QImage picture;
    LevelsConverter().Convert(samples.View(), { left, right, gamma }, &picture);
    const uchar *grey = picture.constScanLine(0);
    for (int value = 0; value < 65536; ++value) {
        const double exact = ExactGrey(value, left, right, gamma);
        if (!IsRounded(grey[value], exact, left, right, gamma))
            QFAIL(qPrintable(QString("%1 became %2, not %3").arg(value).arg(grey[value]).arg(exact)));
    }
}

void LevelsConverterTest::SaturatedSamplesAreRedWhenMarked_data()
{
    QTest::addColumn<int>("bitDepth");
    QTest::addColumn<double>("gamma");
    for (const int bitDepth : { 8, 12, 16 }) {
        for (const double gamma : { 1.0, 2.2 })
            QTest::addRow("%d bits gamma %g", bitDepth, gamma) << bitDepth << gamma;
    }
}

void LevelsConverterTest::SaturatedSamplesAreRedWhenMarked()
{
    QFETCH(int, bitDepth);
    QFETCH(double, gamma);
    const int fullScale = (1 << bitDepth) - 1;
    RandomSamples samples(QSize(53, 17), bitDepth, false, 8);
    samples.Set(0, 0, fullScale);
    samples.Set(52, 16, fullScale);
    samples.Set(1, 0, fullScale - 1);
    // White begins below full scale: the mark looks at the sample, not at the grey.
    const DisplayLevels levels{ 10, fullScale / 2, gamma };
    LevelsConverter converter;
    QImage plain;
    QImage marked;
    converter.Convert(samples.View(), levels, &plain);
    converter.Convert(samples.View(), levels, &marked, true);
    QCOMPARE(marked.format(), QImage::Format_RGB888);
    QCOMPARE(marked.pixel(1, 0), qRgb(255, 255, 255));
    for (int y = 0; y < 17; ++y) {
        for (int x = 0; x < 53; ++x)
            QCOMPARE(marked.pixel(x, y), samples.At(x, y) == fullScale ? qRgb(255, 0, 0) : plain.pixel(x, y));
    }
}

void LevelsConverterTest::SaturatedColourIsRedWhenMarked()
{
    RandomSamples samples(QSize(40, 30), 8, true, 6);
    const DisplayLevels levels{ 0, 200, 1.0 };
    LevelsConverter converter;
    QImage plain;
    QImage marked;
    converter.Convert(samples.View(), levels, &plain);
    converter.Convert(samples.View(), levels, &marked, true);
    int markedCount = 0;
    for (int y = 0; y < 30; ++y) {
        for (int x = 0; x < 40; ++x) {
            const bool isSaturated =
                samples.At(x, y, 0) == 255 || samples.At(x, y, 1) == 255 || samples.At(x, y, 2) == 255;
            QCOMPARE(marked.pixel(x, y), isSaturated ? qRgb(255, 0, 0) : plain.pixel(x, y));
            markedCount += isSaturated;
        }
    }
    QVERIFY(markedCount > 0);
}

void LevelsConverterTest::MarkTakesTheTrueBitDepth()
{
    RandomSamples samples(QSize(2, 1), 16, false, 1);
    samples.Set(0, 0, 4095);
    samples.Set(1, 0, 4094);
    SampleView view = samples.View();
    view.bitDepth = 12;
    QImage picture;
    LevelsConverter().Convert(view, DisplayLevels::FullRange(12), &picture, true);
    QCOMPARE(picture.pixel(0, 0), qRgb(255, 0, 0));
    QCOMPARE(picture.pixel(1, 0), qRgb(255, 255, 255));
    view.bitDepth = 16;
    LevelsConverter().Convert(view, DisplayLevels::FullRange(16), &picture, true);
    QCOMPARE(picture.pixel(0, 0), qRgb(16, 16, 16));
}

void LevelsConverterTest::LargePictureIsThatOfItsParts_data()
{
    QTest::addColumn<double>("gamma");
    QTest::addColumn<bool>("marks");
    QTest::newRow("straight") << 1.0 << false;
    QTest::newRow("gamma") << 1.8 << false;
    QTest::newRow("marked") << 1.0 << true;
}

/// A large picture is made by two threads.
void LevelsConverterTest::LargePictureIsThatOfItsParts()
{
    QFETCH(double, gamma);
    QFETCH(bool, marks);
    const RandomSamples samples(QSize(1301, 1003), 12, false, 17);
    const DisplayLevels levels{ 100, 3000, gamma };
    LevelsConverter converter;
    QImage whole;
    converter.Convert(samples.View(), levels, &whole, marks);
    constexpr int rowsOfPart = 17;
    for (int y = 0; y < 1003; y += rowsOfPart) {
        SampleView part = samples.View();
        part.samples = part.Row8(y);
        part.height = qMin(rowsOfPart, 1003 - y);
        QImage picture;
        converter.Convert(part, levels, &picture, marks);
        QCOMPARE(whole.copy(0, y, 1301, part.height), picture);
    }
}

GUARDED_TEST_MAIN(LevelsConverterTest)
#include "levelsconvertertest.moc"
