// SPDX-License-Identifier: GPL-3.0-or-later
#include "levelsfollower.h"
#include "guardedtest.h"
#include "randomsamples.h"

#include <algorithm>
#include <cmath>

class LevelsFollowerTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void EachModeGivesItsLevels_data();
    void EachModeGivesItsLevels();
    void AutomaticLeavesOutOneThousandthAtEachEnd();
    void AutomaticApproachesANewSceneWithoutAJump();
    void AutomaticStartsAnewWhereNothingWasFollowed();
    void NoiseBarelyMovesTheLevels();
    void LargePictureIsJudgedByAPartOfItsRows();
};

namespace {

/// Samples 0 to 999 times `step` plus `offset`, ten of each.
RandomSamples Ramp(int step, int offset, int bitDepth = 16)
{
    RandomSamples samples(QSize(1000, 10), bitDepth, false, 1);
    for (int y = 0; y < 10; ++y) {
        for (int x = 0; x < 1000; ++x)
            samples.Set(x, y, x * step + offset);
    }
    return samples;
}

const LevelsSetting Automatic = LevelsSetting::Default(16);

} // namespace

void LevelsFollowerTest::EachModeGivesItsLevels_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("right");
    QTest::newRow("automatic") << int(LevelsMode::Automatic) << 103 << 3094;
    QTest::newRow("minimum and maximum") << int(LevelsMode::MinimumMaximum) << 100 << 3097;
    QTest::newRow("manual") << int(LevelsMode::Manual) << 11 << 2222;
    QTest::newRow("full range") << int(LevelsMode::FullRange) << 0 << 4095;
}

void LevelsFollowerTest::EachModeGivesItsLevels()
{
    QFETCH(int, mode);
    const RandomSamples samples = Ramp(3, 100, 12);
    const DisplayLevels levels = LevelsFollower().Next(samples.View(), { LevelsMode(mode), 11, 2222, 1.8 });
    QTEST(levels.left, "left");
    QTEST(levels.right, "right");
    QCOMPARE(levels.gamma, 1.8);
}

void LevelsFollowerTest::AutomaticLeavesOutOneThousandthAtEachEnd()
{
    RandomSamples samples = Ramp(1, 2000);
    // Nine hot and nine dead pixels of 10,000.
    for (int x = 100; x < 109; ++x) {
        samples.Set(x, 0, 65535);
        samples.Set(x, 1, 0);
    }
    const DisplayLevels levels = LevelsFollower().Next(samples.View(), Automatic);
    QVERIFY(levels.left >= 2000 && levels.left <= 2001);
    QVERIFY(levels.right >= 2998 && levels.right <= 2999);
}

void LevelsFollowerTest::AutomaticApproachesANewSceneWithoutAJump()
{
    LevelsFollower follower;
    const DisplayLevels dark = follower.Next(Ramp(1, 1000).View(), Automatic);
    QCOMPARE(dark.left, 1001);
    QCOMPARE(dark.right, 1998);
    const RandomSamples bright = Ramp(10, 5000);
    DisplayLevels before = dark;
    for (int picture = 0; picture < 40; ++picture) {
        const DisplayLevels now = follower.Next(bright.View(), Automatic);
        // A quarter of the way that is left: from 1001 to 5010 and from 1998 to 14980.
        QCOMPARE(now.left, int(std::lround(5010 - 4009 * std::pow(0.75, picture + 1))));
        QCOMPARE(now.right, int(std::lround(14980 - 12982 * std::pow(0.75, picture + 1))));
        QVERIFY(now.left >= before.left && now.right >= before.right);
        before = now;
    }
    QCOMPARE(before.left, 5010);
    QCOMPARE(before.right, 14980);
}

void LevelsFollowerTest::AutomaticStartsAnewWhereNothingWasFollowed()
{
    LevelsFollower follower;
    const RandomSamples dark = Ramp(1, 1000);
    const RandomSamples bright = Ramp(10, 5000);
    const auto next = [&follower](const RandomSamples &samples, const LevelsSetting &setting) {
        return follower.Next(samples.View(), setting).right;
    };
    QCOMPARE(next(dark, Automatic), 1998);
    follower.Reset();
    QCOMPARE(next(bright, Automatic), 14980);
    next(dark, LevelsSetting::Default(8)); // another mode in between
    QCOMPARE(next(dark, Automatic), 1998);
    QCOMPARE(next(Ramp(4, 0, 12), Automatic), 3992); // another depth
}

void LevelsFollowerTest::NoiseBarelyMovesTheLevels()
{
    LevelsFollower follower;
    int least = 65535;
    int most = 0;
    int leastFound = 65535;
    int mostFound = 0;
    for (quint32 seed = 0; seed < 60; ++seed) {
        const RandomSamples noise(QSize(64, 64), 16, false, seed);
        const int right = follower.Next(noise.View(), Automatic).right;
        const int found = LevelsFollower().Next(noise.View(), Automatic).right;
        if (seed < 10)
            continue; // on its way from the first picture
        least = std::min(least, right);
        most = std::max(most, right);
        leastFound = std::min(leastFound, found);
        mostFound = std::max(mostFound, found);
    }
    QVERIFY2(most - least < (mostFound - leastFound) / 2,
             qPrintable(QString("%1 against %2").arg(most - least).arg(mostFound - leastFound)));
}

void LevelsFollowerTest::LargePictureIsJudgedByAPartOfItsRows()
{
    const RandomSamples samples(QSize(2048, 2048), 12, false, 4);
    const DisplayLevels levels = LevelsFollower().Next(samples.View(), Automatic);
    // A thousandth of evenly spread samples: 4 of 4096 values.
    QVERIFY(qAbs(levels.left - 4) <= 1);
    QVERIFY(qAbs(levels.right - 4091) <= 1);
}

GUARDED_TEST_MAIN(LevelsFollowerTest)
#include "levelsfollowertest.moc"
