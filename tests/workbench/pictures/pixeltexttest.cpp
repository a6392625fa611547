// SPDX-License-Identifier: GPL-3.0-or-later
#include "pixeltext.h"
#include "guardedtest.h"
#include "picture.h"

#include <QPoint>

#include <limits>

Q_DECLARE_METATYPE(Picture)

namespace {

/// Two pixels beside each other; the second one has the samples.
template <typename Sample>
Picture Second(SampleType type, std::initializer_list<Sample> samples)
{
    Picture picture(2, 1, int(samples.size()), type);
    std::fill_n(picture.Samples<Sample>(0), 2 * samples.size(), Sample(7));
    std::copy(samples.begin(), samples.end(), picture.Samples<Sample>(0) + samples.size());
    return picture;
}

} // namespace

/// What the information bar says of a pixel: its samples as they were measured.
class PixelTextTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void samplesAreSaidInFull_data()
    {
        QTest::addColumn<Picture>("picture");
        QTest::addColumn<QString>("text");
        QTest::newRow("8 bit") << Second<quint8>(SampleType::U8, { 255 }) << "255";
        QTest::newRow("8 bit signed") << Second<qint8>(SampleType::S8, { -128 }) << "-128";
        QTest::newRow("16 bit") << Second<quint16>(SampleType::U16, { 65535 }) << "65535";
        QTest::newRow("16 bit signed") << Second<qint16>(SampleType::S16, { -32768 }) << "-32768";
        QTest::newRow("32 bit") << Second<quint32>(SampleType::U32, { 4294967295U }) << "4294967295";
        QTest::newRow("32 bit signed")
            << Second<qint32>(SampleType::S32, { -2147483647 - 1 }) << "-2147483648";
        QTest::newRow("float") << Second<float>(SampleType::F32, { -0.681549F }) << "-0.681549";
        QTest::newRow("small float") << Second<float>(SampleType::F32, { 1.5e-9F }) << "1.5e-09";
        QTest::newRow("double") << Second<double>(SampleType::F64, { 0.1 }) << "0.1";
        QTest::newRow("no number") << Second<float>(SampleType::F32,
                                                    { std::numeric_limits<float>::quiet_NaN() })
                                   << "nan";
        QTest::newRow("infinite") << Second<double>(SampleType::F64,
                                                    { -std::numeric_limits<double>::infinity() })
                                  << "-inf";
        QTest::newRow("colour") << Second<quint8>(SampleType::U8, { 1, 20, 255 }) << "(1, 20, 255)";
        QTest::newRow("deep colour") << Second<quint16>(SampleType::U16, { 65535, 0, 256 })
                                     << "(65535, 0, 256)";
    }

    void samplesAreSaidInFull()
    {
        QFETCH(Picture, picture);
        QFETCH(QString, text);
        QCOMPARE(PixelText(picture, QPoint(1, 0)), text);
    }

    void nothingIsSaidOutsideOfThePicture()
    {
        const Picture picture = Second<quint8>(SampleType::U8, { 9 });
        for (const QPoint &pixel : { QPoint(-1, 0), QPoint(2, 0), QPoint(0, -1), QPoint(0, 1) })
            QCOMPARE(PixelText(picture, pixel), QString());
        QCOMPARE(PixelText(Picture(), QPoint(0, 0)), QString());
    }
};

GUARDED_TEST_MAIN(PixelTextTest)
#include "pixeltexttest.moc"
