// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturedisplay.h"
#include "guardedtest.h"
#include "levelsmodel.h"

#include <cmath>
#include <limits>

Q_DECLARE_METATYPE(Picture)

namespace {

template <typename Sample>
Picture Row(SampleType type, const QVector<Sample> &samples, int channels = 1)
{
    Picture picture(samples.size() / channels, 1, channels, type);
    std::copy(samples.begin(), samples.end(), picture.Samples<Sample>(0));
    return picture;
}

QVector<int> Greys(const QImage &image)
{
    QVector<int> greys;
    for (int x = 0; x < image.width(); ++x)
        greys << image.constScanLine(0)[x];
    return greys;
}

constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float infinite = std::numeric_limits<float>::infinity();

} // namespace

/// How samples of a file become the greys of the screen.
class PictureDisplayTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        StartGuard();
        m_levels = std::make_unique<LevelsModel>();
    }

    void eightBitsAreShownAsTheyAre()
    {
        SampleRange range;
        QCOMPARE(Greys(Show(Row<quint8>(SampleType::U8, { 0, 1, 127, 254, 255 }), range)),
                 QVector<int>({ 0, 1, 127, 254, 255 }));
        QCOMPARE(range.left, 0.0);
        QCOMPARE(range.right, 255.0);
    }

    void sixteenBitsAreSpreadOverTheirOwnRange()
    {
        SampleRange range;
        QCOMPARE(Greys(Show(Row<quint16>(SampleType::U16, { 1000, 1051, 1255 }), range)),
                 QVector<int>({ 0, 51, 255 }));
        QCOMPARE(range.left, 1000.0);
        QCOMPARE(range.right, 1255.0);
    }

    void levelsOfTheFirstFrameAreKept()
    {
        SampleRange range = { 0, 510 };
        QCOMPARE(Greys(Show(Row<quint16>(SampleType::U16, { 0, 102, 510, 9999 }), range)),
                 QVector<int>({ 0, 51, 255, 255 }));
        QCOMPARE(range.right, 510.0);
    }

    void othersAreSpreadOverTheirFiniteSamples_data()
    {
        QTest::addColumn<Picture>("picture");
        QTest::addColumn<QVector<int>>("greys");
        QTest::newRow("signed 8 bit")
            << Row<qint8>(SampleType::S8, { -100, -49, 2, 104, -100 }) << QVector<int>{ 0, 64, 128, 255, 0 };
        QTest::newRow("signed 16 bit")
            << Row<qint16>(SampleType::S16, { -255, 0, 255 }) << QVector<int>{ 0, 128, 255 };
        QTest::newRow("32 bit") << Row<quint32>(SampleType::U32, { 4000000000U, 4000000051U, 4000000255U })
                                << QVector<int>{ 0, 51, 255 };
        QTest::newRow("float") << Row<float>(SampleType::F32, { 0.0F, 0.2F, 1.0F })
                               << QVector<int>{ 0, 51, 255 };
        QTest::newRow("no numbers are black")
            << Row<float>(SampleType::F32, { notANumber, -0.5F, 0.0F, 0.5F, notANumber })
            << QVector<int>{ 0, 0, 128, 255, 0 };
        QTest::newRow("infinite") << Row<float>(SampleType::F32, { -infinite, 1.0F, 2.0F, infinite })
                                  << QVector<int>{ 0, 0, 255, 255 };
        QTest::newRow("no number at all")
            << Row<float>(SampleType::F32, { notANumber, notANumber }) << QVector<int>{ 0, 0 };
        QTest::newRow("one value") << Row<double>(SampleType::F64, { 3.5, 3.5, 3.5 })
                                   << QVector<int>{ 128, 128, 128 };
    }

    void othersAreSpreadOverTheirFiniteSamples()
    {
        QFETCH(Picture, picture);
        QFETCH(QVector<int>, greys);
        SampleRange range;
        const QVector<int> shown = Greys(Show(picture, range));
        QCOMPARE(shown.size(), greys.size());
        for (int i = 0; i < shown.size(); ++i)
            QVERIFY2(qAbs(shown.at(i) - greys.at(i)) <= 1,
                     qPrintable(QString("%1: %2").arg(i).arg(shown.at(i))));
        QVERIFY(range.IsKnown());
    }

    void aFewHotPixelsDoNotMakeThePictureDark()
    {
        QVector<float> samples(100000);
        for (int i = 0; i < samples.size(); ++i)
            samples[i] = float(i % 1000);
        for (int i = 0; i < 20; ++i)
            samples[i * 5000] = 1e9F;
        SampleRange range;
        Show(Row<float>(SampleType::F32, samples), range);
        QVERIFY2(range.left >= 0 && range.left <= 2, qPrintable(QString::number(range.left)));
        QVERIFY2(range.right >= 996 && range.right <= 999, qPrintable(QString::number(range.right)));
    }

    void whatIsNearlyEmptyShowsWhatThereIs()
    {
        QVector<qint32> samples(100000, 0);
        samples[5] = 1000;
        SampleRange range;
        const QImage image = Show(Row<qint32>(SampleType::S32, samples), range);
        QCOMPARE(int(image.constScanLine(0)[4]), 0);
        QCOMPARE(int(image.constScanLine(0)[5]), 255);
    }

    void gammaBrightensTheMiddle()
    {
        LevelsSetting setting = m_levels->Setting(16);
        setting.gamma = 2.0;
        m_levels->SetSetting(16, setting);
        SampleRange range;
        const QVector<int> greys = Greys(Show(Row<float>(SampleType::F32, { 0.0F, 0.25F, 1.0F }), range));
        QCOMPARE(greys.first(), 0);
        QVERIFY(qAbs(greys.at(1) - int(std::lround(255 * std::sqrt(0.25)))) <= 1);
        QCOMPARE(greys.last(), 255);
    }

    void coloursAreShownTogether()
    {
        SampleRange range;
        const QImage image =
            Show(Row<float>(SampleType::F32, { 0.0F, 0.2F, 1.0F, 0.4F, 0.6F, 0.8F }, 3), range);
        QCOMPARE(image.format(), QImage::Format_RGB888);
        QCOMPARE(image.pixelColor(0, 0), QColor(0, 51, 255));
        QCOMPARE(image.pixelColor(1, 0), QColor(102, 153, 204));
    }

    void saturatedSamplesAreMarked()
    {
        m_levels->slotSetMarksSaturated(true);
        SampleRange range;
        const QImage image = Show(Row<quint16>(SampleType::U16, { 0, 65534, 65535 }), range);
        QCOMPARE(image.format(), QImage::Format_RGB888);
        QCOMPARE(image.pixelColor(2, 0), QColor(255, 0, 0));
        QVERIFY(image.pixelColor(1, 0) != QColor(255, 0, 0));
    }

private:
    QImage Show(const Picture &picture, SampleRange &range) const
    {
        return PictureDisplay(m_levels.get()).Make(picture, range);
    }

    std::unique_ptr<LevelsModel> m_levels;
};

GUARDED_TEST_MAIN(PictureDisplayTest)
#include "picturedisplaytest.moc"
