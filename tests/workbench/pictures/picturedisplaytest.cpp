// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturedisplay.h"
#include "guardedtest.h"
#include "levelsmodel.h"

#include <cmath>
#include <limits>

Q_DECLARE_METATYPE(Picture)
Q_DECLARE_METATYPE(LevelsMode)

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
        const SampleKind kind(SampleKind::Floating, 32);
        LevelsSetting setting = m_levels->Setting(kind);
        setting.gamma = 2.0;
        m_levels->SetSetting(kind, setting);
        SampleRange range;
        const QVector<int> greys = Greys(Show(Row<float>(SampleType::F32, { 0.0F, 0.25F, 1.0F }), range));
        QCOMPARE(greys.first(), 0);
        QVERIFY(qAbs(greys.at(1) - int(std::lround(255 * std::sqrt(0.25)))) <= 1);
        QCOMPARE(greys.last(), 255);
    }

    void everyKindHasItsModes_data()
    {
        QTest::addColumn<Picture>("picture");
        QTest::addColumn<LevelsMode>("mode");
        QTest::addColumn<QVector<int>>("greys");
        QTest::addColumn<double>("left");
        QTest::addColumn<double>("right");
        const auto row = [](const char *name, const Picture &picture, LevelsMode mode, const QVector<int> &greys,
                            double left, double right) {
            QTest::newRow(name) << picture << mode << greys << left << right;
        };
        // Manual levels are -50 and 205 throughout.
        row("signed 8 bit, manual", Row<qint8>(SampleType::S8, { -128, -50, 1, 127 }), LevelsMode::Manual,
            { 0, 0, 73, 255 }, -50, 127);
        row("signed 16 bit, manual", Row<qint16>(SampleType::S16, { -51, -50, 1, 205, 206 }), LevelsMode::Manual,
            { 0, 0, 51, 255, 255 }, -50, 205);
        row("signed 32 bit, manual", Row<qint32>(SampleType::S32, { -2000000000, 1, 2000000000 }), LevelsMode::Manual,
            { 0, 51, 255 }, -50, 205);
        row("32 bit, manual", Row<quint32>(SampleType::U32, { 0, 41, 205, 4000000000U }), LevelsMode::Manual,
            { 0, 51, 255, 255 }, 0, 205);
        row("float, manual", Row<float>(SampleType::F32, { -50, 1, 205, notANumber, infinite, -infinite }),
            LevelsMode::Manual, { 0, 51, 255, 0, 255, 0 }, -50, 205);
        row("double, manual", Row<double>(SampleType::F64, { -1e300, 1, 1e300 }), LevelsMode::Manual, { 0, 51, 255 },
            -50, 205);
        row("float, minimum and maximum", Row<float>(SampleType::F32, { notANumber, -2, 0, 2, infinite }),
            LevelsMode::MinimumMaximum, { 0, 0, 128, 255, 255 }, -2, 2);
        row("signed 16 bit, minimum and maximum", Row<qint16>(SampleType::S16, { -255, 0, 255 }),
            LevelsMode::MinimumMaximum, { 0, 128, 255 }, -255, 255);
        row("signed 16 bit, full range", Row<qint16>(SampleType::S16, { -32768, 0, 32767 }), LevelsMode::FullRange,
            { 0, 128, 255 }, -32768, 32767);
        row("32 bit, full range", Row<quint32>(SampleType::U32, { 0, 858993459, 4294967295U }), LevelsMode::FullRange,
            { 0, 51, 255 }, 0, 4294967295.0);
        row("double has no full range", Row<double>(SampleType::F64, { 0, 0.2, 1 }), LevelsMode::FullRange,
            { 0, 51, 255 }, 0, 1);
        constexpr double most = std::numeric_limits<double>::max();
        row("the largest doubles", Row<double>(SampleType::F64, { -most, -most * 0.6, most }),
            LevelsMode::MinimumMaximum, { 0, 51, 255 }, -most, most);
    }

    void everyKindHasItsModes()
    {
        QFETCH(Picture, picture);
        QFETCH(LevelsMode, mode);
        QFETCH(QVector<int>, greys);
        QFETCH(double, left);
        QFETCH(double, right);
        m_levels->SetSetting(PictureDisplay::KindOf(picture.Type()), { mode, -50, 205, 1.0 });
        SampleRange range = { 3, 4 }; // of the frame before, which only automatic levels keep
        const QVector<int> shown = Greys(Show(picture, range));
        QCOMPARE(range.left, left);
        QCOMPARE(range.right, right);
        QCOMPARE(shown.size(), greys.size());
        for (int i = 0; i < shown.size(); ++i)
            QVERIFY2(qAbs(shown.at(i) - greys.at(i)) <= 1, qPrintable(QString("%1: %2").arg(i).arg(shown.at(i))));
    }

    void theHistogramSpansWhatThereIs()
    {
        QVector<float> samples;
        for (int i = 0; i < 256; ++i)
            samples << -1.0F + float(i) / 255; // -1 to 0, one in each column
        samples << 0.0F << notANumber << infinite << -infinite;
        const LevelsReport report = PictureDisplay::Report(Row<float>(SampleType::F32, samples), { -0.5, 3 }, 1.5);
        QVERIFY(report.kind == SampleKind(SampleKind::Floating, 32));
        QCOMPARE(report.levels.left, -0.5);
        QCOMPARE(report.levels.right, 3.0);
        QCOMPARE(report.gamma, 1.5);
        QCOMPARE(report.axis.left, -1.0);
        QCOMPARE(report.axis.right, 0.0);
        QVector<qint64> counts(256, 1);
        counts.last() = 2;
        QCOMPARE(report.histogram, counts);
    }

    void aHistogramNeedsNoNumber()
    {
        const LevelsReport report =
            PictureDisplay::Report(Row<float>(SampleType::F32, { notANumber, infinite }), { 0, 1 }, 1.0);
        QCOMPARE(report.histogram, QVector<qint64>(256, 0));
        QVERIFY(report.axis.IsKnown());
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

    void integersAreMarkedWhateverTheirType_data()
    {
        QTest::addColumn<Picture>("picture"); // of three pixels; the last is at full scale
        QTest::newRow("signed 8 bit") << Row<qint8>(SampleType::S8, { -128, 126, 127 });
        QTest::newRow("signed 16 bit") << Row<qint16>(SampleType::S16, { -32768, 32766, 32767 });
        QTest::newRow("signed 32 bit") << Row<qint32>(SampleType::S32, { -2147483647 - 1, 2147483646, 2147483647 });
        QTest::newRow("32 bit") << Row<quint32>(SampleType::U32, { 0, 4294967294U, 4294967295U });
        QTest::newRow("signed 16 bit colour")
            << Row<qint16>(SampleType::S16, { -5, 0, 9, 32766, 32766, 32766, 1, 32767, 2 }, 3);
    }

    void integersAreMarkedWhateverTheirType()
    {
        QFETCH(Picture, picture);
        SampleRange range;
        const QImage bare = Show(picture, range).convertToFormat(QImage::Format_RGB888);
        m_levels->slotSetMarksSaturated(true);
        const QImage marked = Show(picture, range);
        QCOMPARE(marked.format(), QImage::Format_RGB888);
        for (int x = 0; x < 2; ++x)
            QCOMPARE(marked.pixelColor(x, 0), bare.pixelColor(x, 0));
        QCOMPARE(marked.pixelColor(2, 0), QColor(255, 0, 0));
    }

    void floatingPointHasNoFullScale()
    {
        const Picture picture = Row<float>(SampleType::F32, { 0, 1, std::numeric_limits<float>::max(), infinite });
        SampleRange range = { 0, 1 };
        const QImage bare = Show(picture, range);
        m_levels->slotSetMarksSaturated(true);
        QCOMPARE(Show(picture, range), bare);
    }

    void whatIsForTheEyeAloneIsLeftOut_data()
    {
        QTest::addColumn<Picture>("picture");
        QTest::newRow("16 bit") << Row<quint16>(SampleType::U16, { 0, 51, 255, 65535 });
        QTest::newRow("signed 16 bit") << Row<qint16>(SampleType::S16, { 0, 51, 255, 32767 });
        QTest::newRow("float") << Row<float>(SampleType::F32, { 0, 51, 255, 1000 });
    }

    void whatIsForTheEyeAloneIsLeftOut()
    {
        QFETCH(Picture, picture);
        m_levels->slotSetMarksSaturated(true);
        m_levels->SetPalette(Palette("inverted"));
        SampleRange range = { 0, 255 };
        const QImage image = PictureDisplay(m_levels.get()).MakePlain(picture, range);
        QCOMPARE(image.format(), QImage::Format_Grayscale8);
        QCOMPARE(Greys(image), QVector<int>({ 0, 51, 255, 255 }));
    }

    void aFrameIsMadeWhileItIsRead_data()
    {
        QTest::addColumn<Picture>("picture");
        QTest::addColumn<LevelsMode>("mode");
        QTest::addColumn<bool>("marks");
        QTest::addColumn<bool>("isMade");
        const Picture mono = Row<quint16>(SampleType::U16, { 0, 102, 510, 65535 });
        QTest::newRow("levels of the frame before") << mono << LevelsMode::Automatic << false << true;
        QTest::newRow("manual") << mono << LevelsMode::Manual << false << true;
        QTest::newRow("full range, marked") << mono << LevelsMode::FullRange << true << true;
        QTest::newRow("colour") << Row<quint8>(SampleType::U8, { 1, 2, 3, 200, 100, 255 }, 3) << LevelsMode::Automatic
                                << true << true;
        QTest::newRow("needs all samples") << mono << LevelsMode::MinimumMaximum << false << false;
        QTest::newRow("float") << Row<float>(SampleType::F32, { 1, 5 }) << LevelsMode::Manual << false << false;
    }

    void aFrameIsMadeWhileItIsRead()
    {
        QFETCH(Picture, picture);
        QFETCH(LevelsMode, mode);
        QFETCH(bool, marks);
        QFETCH(bool, isMade);
        m_levels->slotSetMarksSaturated(marks);
        m_levels->SetSetting(PictureDisplay::KindOf(picture.Type()), { mode, 10, 205, 1.0 });
        SampleRange range = { 0, 510 };
        const QImage expected = Show(picture, range);

        PictureDisplay display(m_levels.get());
        SampleRange rangeWhileRead = { 0, 510 };
        uchar *samples = picture.Data(); // its own from here on
        Tell(display.WhileRead(rangeWhileRead), picture);
        // What was told is done with: other samples in its place are not seen.
        const QByteArray told(reinterpret_cast<const char *>(picture.Data()), int(picture.ByteCount()));
        if (isMade)
            std::fill_n(samples, picture.ByteCount(), uchar(0));
        QCOMPARE(display.Make(picture, rangeWhileRead), expected);
        QCOMPARE(rangeWhileRead.left, range.left);
        QCOMPARE(rangeWhileRead.right, range.right);

        std::copy(told.cbegin(), told.cend(), samples);
        rangeWhileRead = { 0, 510 };
        QCOMPARE(display.Make(picture, rangeWhileRead), expected); // made anew
    }

    void whatWasNotToldIsMadeOfItsSamples()
    {
        PictureDisplay display(m_levels.get());
        Picture told(1, 2, 1, SampleType::U16);
        told.Samples<quint16>(0)[0] = 0;
        told.Samples<quint16>(1)[0] = 510;
        SampleRange range = { 0, 510 };
        FrameRows *rows = display.WhileRead(range);
        rows->Begin(told);
        rows->Take(0, 1); // the second row never comes
        QCOMPARE(int(display.Make(told, range).constScanLine(1)[0]), 255);

        Tell(display.WhileRead(range), told);
        QCOMPARE(Greys(display.Make(Row<quint16>(SampleType::U16, { 102, 204 }), range)), QVector<int>({ 51, 102 }));

        SampleRange unknown;
        Tell(display.WhileRead(unknown), told);
        display.Make(told, unknown);
        QCOMPARE(unknown.right, 510.0);
    }

private:
    static void Tell(FrameRows *rows, const Picture &picture)
    {
        rows->Begin(picture);
        rows->Take(0, picture.Height());
    }

    QImage Show(const Picture &picture, SampleRange &range) const
    {
        return PictureDisplay(m_levels.get()).Make(picture, range);
    }

    std::unique_ptr<LevelsModel> m_levels;
};

GUARDED_TEST_MAIN(PictureDisplayTest)
#include "picturedisplaytest.moc"
