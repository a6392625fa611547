// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "processedpicture.h"
#include "randompicture.h"

using namespace ProcessedPicture;
using namespace RandomPicture;

/// Each step against the extremes that it is made of, for every type of samples.
class MorphologyTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void morphologyIsMadeOfExtremes_data() { AddShapes(); }
    void morphologyIsMadeOfExtremes()
    {
        using Method = MorphologySettings::Method;
        const Picture picture = RowPicture(4);
        const Picture filled = Filled(picture);
        for (const bool isDisc : { false, true }) {
            const Picture eroded = Extremes(filled, 3, isDisc, false);
            const Picture dilated = Extremes(filled, 3, isDisc, true);
            const Picture opened = Extremes(eroded, 3, isDisc, true);
            const Picture closed = Extremes(dilated, 3, isDisc, false);
            const QVector<QPair<Method, Picture>> expectations = {
                { Method::Erode, eroded }, { Method::Dilate, dilated }, { Method::Open, opened },
                { Method::Close, closed }, { Method::TopHat, opened }
            };
            for (const auto &expectation : expectations) {
                MorphologySettings settings;
                settings.method = expectation.first;
                settings.shape = isDisc ? MorphologySettings::Shape::Disc : MorphologySettings::Shape::Square;
                settings.radius = 3;
                const auto expected = [&](int x, int y, int channel) {
                    double value = At(expectation.second, x, y, channel);
                    if (expectation.first == Method::TopHat)
                        value = At(filled, x, y, channel) - value;
                    return OrGap(picture, x, y, channel, Stored(value, picture.Type()));
                };
                QCOMPARE(Difference(Done(picture, settings), expected, Digits(picture.Type())), QString());
            }
        }
    }
};

GUARDED_TEST_MAIN(MorphologyTest)
#include "morphologytest.moc"
