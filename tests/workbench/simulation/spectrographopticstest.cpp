// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrographoptics.h"
#include "guardedtest.h"

#include <cmath>

namespace {
const QSize kSensor(2048, 512);

/// Column where the stated dispersion reaches a wavelength, found by halving.
double ColumnOf(double wavelengthNm)
{
    double low = 0;
    double high = 2047;
    for (int i = 0; i < 100; ++i) {
        const double x = (low + high) / 2;
        const double u = x / 2047;
        (390 + 540 * u + 6 * u * (1 - u) < wavelengthNm ? low : high) = x;
    }
    return low;
}
} // namespace

class SpectrographOpticsTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void dispersionCoversTheStatedRange();
    void linesAreThoseOfTheLamp_data();
    void linesAreThoseOfTheLamp();
    void positionsInvertTheDispersion();
    void tiltAndSmileMoveALine_data();
    void tiltAndSmileMoveALine();
    void placesNameEveryLineOnEveryTrack();
    void tracksAreApart_data();
    void tracksAreApart();
    void smallestSensor();
};

void SpectrographOpticsTest::dispersionCoversTheStatedRange()
{
    const SpectrographOptics optics(kSensor);
    QCOMPARE(optics.WavelengthAt(0), 390.0);
    QCOMPARE(optics.WavelengthAt(2047), 930.0);
    QCOMPARE(optics.WavelengthAt(2047 / 2.0), 661.5);
}

void SpectrographOpticsTest::linesAreThoseOfTheLamp_data()
{
    // Wavelengths in air, nanometres, of the handbooks: mercury's green and yellow lines, argon's red ones.
    QTest::addColumn<double>("wavelengthNm");
    for (const double line : { 404.656, 435.833, 546.074, 576.960, 579.066, 696.543, 706.722, 738.398, 750.387, 763.511,
                               772.376, 794.818, 811.531, 826.452, 842.465, 912.297 })
        QTest::newRow(qPrintable(QString::number(line))) << line;
}

void SpectrographOpticsTest::linesAreThoseOfTheLamp()
{
    QFETCH(double, wavelengthNm);
    int found = 0;
    for (const EmissionLine &line : SpectrographOptics::Lines())
        found += std::abs(line.wavelengthNm - wavelengthNm) < 0.002 && line.strength > 0 && line.strength <= 1;
    QCOMPARE(found, 1);
}

void SpectrographOpticsTest::positionsInvertTheDispersion()
{
    const SpectrographOptics optics(kSensor);
    double before = 0;
    for (const EmissionLine &line : SpectrographOptics::Lines()) {
        QVERIFY(line.wavelengthNm > before);
        before = line.wavelengthNm;
        // The middle row has neither tilt nor smile.
        const double x = optics.LinePosition(line.wavelengthNm, 255.5);
        QVERIFY2(std::abs(x - ColumnOf(line.wavelengthNm)) < 1e-6, qPrintable(QString::number(line.wavelengthNm)));
        QVERIFY(std::abs(optics.WavelengthAt(x) - line.wavelengthNm) < 1e-9);
    }
}

void SpectrographOpticsTest::tiltAndSmileMoveALine_data()
{
    QTest::addColumn<double>("tilt");
    QTest::addColumn<double>("smile");
    QTest::addColumn<double>("row");
    QTest::addColumn<double>("moved");
    QTest::newRow("straight") << 0.0 << 0.0 << 0.0 << 0.0;
    QTest::newRow("tilt, top") << 0.01 << 0.0 << 0.0 << -2.555;
    QTest::newRow("tilt, bottom") << 0.01 << 0.0 << 511.0 << 2.555;
    QTest::newRow("smile, top") << 0.0 << 6.0 << 0.0 << 6.0;
    QTest::newRow("smile, half way") << 0.0 << 6.0 << 383.25 << 1.5;
    QTest::newRow("frown, bottom") << 0.0 << -6.0 << 511.0 << -6.0;
    QTest::newRow("both, bottom") << 0.01 << 6.0 << 511.0 << 8.555;
}

void SpectrographOpticsTest::tiltAndSmileMoveALine()
{
    QFETCH(double, tilt);
    QFETCH(double, smile);
    QFETCH(double, row);
    QFETCH(double, moved);
    SpectrographOptics::Geometry geometry;
    geometry.tiltPixelsPerRow = tilt;
    geometry.smilePixels = smile;
    const double x = SpectrographOptics(kSensor, geometry).LinePosition(546.075, row);
    QVERIFY2(std::abs(x - ColumnOf(546.075) - moved) < 1e-6, qPrintable(QString::number(x - ColumnOf(546.075))));
}

void SpectrographOpticsTest::placesNameEveryLineOnEveryTrack()
{
    SpectrographOptics::Geometry geometry;
    geometry.tracks = 4;
    const SpectrographOptics optics(kSensor, geometry);
    const std::vector<SpectrographOptics::LinePlace> places = optics.LinePlaces();
    const size_t lines = SpectrographOptics::Lines().size();
    QCOMPARE(places.size(), 4 * lines);
    QCOMPARE(places[lines].track, 1);
    QCOMPARE(places[lines].line.wavelengthNm, 404.656);
    QCOMPARE(places[lines].centre.y(), 2 * 511 / 5.0);
    QCOMPARE(places[lines].centre.x(), optics.LinePosition(404.656, 2 * 511 / 5.0));
}

void SpectrographOpticsTest::tracksAreApart_data()
{
    QTest::addColumn<int>("wanted");
    QTest::addColumn<int>("tracks");
    QTest::newRow("one") << 1 << 1;
    QTest::newRow("seven") << 7 << 7;
    QTest::newRow("most") << 20 << 20;
    QTest::newRow("too many") << 21 << 20;
    QTest::newRow("none") << 0 << 1;
}

void SpectrographOpticsTest::tracksAreApart()
{
    QFETCH(int, wanted);
    QFETCH(int, tracks);
    SpectrographOptics::Geometry geometry;
    geometry.tracks = wanted;
    const SpectrographOptics optics(kSensor, geometry);
    QCOMPARE(optics.TrackCount(), tracks);
    for (int track = 0; track < tracks; ++track) {
        const double centre = optics.TrackCentre(track);
        QVERIFY(optics.TrackLight(centre) > 0.44);
        QVERIFY(optics.TrackLight(centre) < 1.001);
        QVERIFY(optics.TrackLight(centre + 511.0 / (tracks + 1) / 2) < 0.01);
    }
}

void SpectrographOpticsTest::smallestSensor()
{
    const SpectrographOptics optics(QSize(1, 1));
    QCOMPARE(optics.WavelengthAt(0), 390.0);
    QCOMPARE(optics.LinePosition(546.075, 0), 0.0);
    QCOMPARE(optics.TrackCentre(0), 0.0);
}

GUARDED_TEST_MAIN(SpectrographOpticsTest)
#include "spectrographopticstest.moc"
