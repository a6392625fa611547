// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "madespectra.h"
#include "rowbinning.h"
#include "sampleview.h"
#include "sceneexposure.h"
#include "spectrographoptics.h"
#include "spectrographscene.h"
#include "trackfinder.h"

class TrackFinderTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void bandsAreThoseOfTheProfile();
    void darknessHasNoBand();
    void theTracksOfTheSceneAreFound();
    void aWrongListIsToldInWords_data();
    void aWrongListIsToldInWords();
};

void TrackFinderTest::bandsAreThoseOfTheProfile()
{
    std::vector<double> profile = NoiseOnly(400, 10000, 30, 1);
    for (int row = 100; row < 120; ++row)
        profile[size_t(row)] += 50000;
    for (int row = 300; row < 310; ++row)
        profile[size_t(row)] += 8000;
    const std::vector<RowBand> bands = FindBands(profile);
    QCOMPARE(int(bands.size()), 2);
    QCOMPARE(bands[0].top, 100);
    QCOMPARE(bands[0].bottom, 120);
    QCOMPARE(bands[1].top, 300);
    QCOMPARE(bands[1].bottom, 310);
    QVERIFY(std::abs(bands[0].light / (20 * 50000) - 1) < 0.01);
}

void TrackFinderTest::darknessHasNoBand()
{
    for (unsigned seed = 0; seed < 200; ++seed)
        QCOMPARE(int(FindBands(NoiseOnly(512, 10000, 30, seed)).size()), 0);
    QCOMPARE(int(FindBands({}).size()), 0);
    QCOMPARE(int(FindBands(std::vector<double>(50, 7.0)).size()), 0);
}

void TrackFinderTest::theTracksOfTheSceneAreFound()
{
    SpectrographScene scene(7);
    SceneExposure exposure(1024, 512, 16);
    exposure.Expose(scene);
    SampleView picture;
    picture.samples = exposure.Bytes().data();
    picture.width = 1024;
    picture.height = 512;
    picture.strideBytes = exposure.Settings().strideBytes;
    picture.bitDepth = 16;
    BinnedLine rows;
    BinColumns(picture, 0, 1024, &rows);
    const std::vector<RowBand> bands = FindBands(std::vector<double>(rows.sums.begin(), rows.sums.end()));
    const SpectrographOptics truth(QSize(1024, 512));
    QCOMPARE(int(bands.size()), truth.TrackCount());
    for (int track = 0; track < truth.TrackCount(); ++track) {
        const double centre = (bands[size_t(track)].top + bands[size_t(track)].bottom - 1) / 2.0;
        QVERIFY2(std::abs(centre - truth.TrackCentre(track)) < 2, qPrintable(QString::number(centre)));
    }
}

void TrackFinderTest::aWrongListIsToldInWords_data()
{
    QTest::addColumn<QList<QRectF>>("tracks");
    QTest::addColumn<QString>("text");
    QTest::newRow("good") << QList<QRectF>{{0, 10, 100, 20}, {0, 30, 100, 20}} << "";
    QTest::newRow("empty") << QList<QRectF>() << "There are no tracks: draw them on the picture or have them found.";
    QTest::newRow("overlapping") << QList<QRectF>{{0, 10, 100, 20}, {0, 29, 100, 20}}
                                 << "Tracks 1 and 2 overlap: move or remove one of them.";
    QTest::newRow("outside") << QList<QRectF>{{0, 190, 100, 20}}
                             << "Track 1 (rows 190 to 210) lies outside the sensor of 200 rows: move or remove it.";
    QTest::newRow("no row") << QList<QRectF>{{0, 10, 100, 0}}
                            << "Track 1 (rows 10 to 10) lies outside the sensor of 200 rows: move or remove it.";
    QList<QRectF> many;
    for (int i = 0; i < 21; ++i)
        many << QRectF(0, 5 * i, 100, 4);
    QTest::newRow("21") << many << "There are 21 tracks and the plot shows 20 at most: take some away.";
}

void TrackFinderTest::aWrongListIsToldInWords()
{
    QFETCH(QList<QRectF>, tracks);
    QFETCH(QString, text);
    QCOMPARE(TracksFault(tracks, QSize(100, 200), 20), text);
}

GUARDED_TEST_MAIN(TrackFinderTest)
#include "trackfindertest.moc"
