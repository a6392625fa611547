// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "processedpicture.h"
#include "randompicture.h"

#include <cmath>

using namespace ProcessedPicture;
using namespace RandomPicture;

/// What is taken away as background, against the same calculated sample by sample, for every type of samples.
class BackgroundTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void aConstantBackgroundIsTakenAway_data() { AddShapes(); }
    void aConstantBackgroundIsTakenAway()
    {
        const Picture picture = RowPicture(6);
        BackgroundSettings settings;
        settings.method = BackgroundSettings::Method::Constant;
        settings.level = 100;
        const Picture result = Done(picture, settings);
        QCOMPARE(int(result.Type()), int(picture.Type()));
        QCOMPARE(Difference(result,
                            [&](int x, int y, int channel) {
                                const double value = At(picture, x, y, channel);
                                return OrGap(picture, x, y, channel, Stored(value - 100, picture.Type()));
                            },
                            Digits(picture.Type())),
                 QString());
    }

    void theOpeningIsTakenAway_data() { AddShapes(); }
    void theOpeningIsTakenAway()
    {
        const Picture picture = RowPicture(4);
        const Picture filled = Filled(picture);
        BackgroundSettings settings;
        settings.radius = 2;
        const Picture opened = Extremes(Extremes(filled, 2, false, false), 2, false, true);
        QCOMPARE(Difference(Done(picture, settings),
                            [&](int x, int y, int channel) {
                                double sum = 0;
                                for (int j = -2; j <= 2; ++j) {
                                    for (int i = -2; i <= 2; ++i)
                                        sum += Repeated(opened, x + i, y + j, channel);
                                }
                                return OrGap(picture, x, y, channel,
                                             Stored(At(filled, x, y, channel) - sum / 25, picture.Type()));
                            },
                            RoundedDigits(picture.Type())),
                 QString());
    }

    void theSlopeOfThePlaneIsTakenAwayAndTheMeanStays()
    {
        Picture picture(31, 18, 1, SampleType::F64);
        for (int y = 0; y < 18; ++y) {
            for (int x = 0; x < 31; ++x)
                Set(picture, x, y, 0, 500 + 3.5 * x - 7.25 * y);
        }
        BackgroundSettings settings;
        settings.method = BackgroundSettings::Method::Plane;
        const double mean = 500 + 3.5 * 15 - 7.25 * 8.5;
        QCOMPARE(Difference(Done(picture, settings), [&](int, int, int) { return mean; }, 1e-9), QString());
    }

    /// What is left has no slope and the same mean: that is what makes a fit one of least squares.
    void whatIsLeftOfTheBestPlaneHasNoSlope()
    {
        const Picture picture = Make(QSize(40, 23), 1, SampleType::F64, 5);
        BackgroundSettings settings;
        settings.method = BackgroundSettings::Method::Plane;
        const Picture result = Done(picture, settings);
        double before = 0;
        double after = 0;
        double slopeX = 0;
        double slopeY = 0;
        for (int y = 0; y < 23; ++y) {
            for (int x = 0; x < 40; ++x) {
                before += At(picture, x, y, 0);
                after += At(result, x, y, 0);
                slopeX += At(result, x, y, 0) * (x - 19.5);
                slopeY += At(result, x, y, 0) * (y - 11);
            }
        }
        QVERIFY2(std::abs(after - before) < 1e-7, qPrintable(QString::number(after - before)));
        QVERIFY2(std::abs(slopeX) < 1e-6 && std::abs(slopeY) < 1e-6, "a slope is left");
    }

    void aPlaneOfOnePixelStays()
    {
        BackgroundSettings settings;
        settings.method = BackgroundSettings::Method::Plane;
        const Picture picture = Make(QSize(1, 1), 3, SampleType::U16, 9);
        QVERIFY(Done(picture, settings) == picture);
    }
};

GUARDED_TEST_MAIN(BackgroundTest)
#include "backgroundtest.moc"
