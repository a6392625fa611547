// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibrationfit.h"
#include "guardedtest.h"
#include "madespectra.h"
#include "spectrumcsv.h"

#include <QLocale>
#include <QRegularExpression>

#include <cmath>

/// What another program reads of an exported spectrum.
class SpectrumCsvTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void aBinnedSpectrumTellsAll();
    void numbersHaveAPointInEveryLanguage();
    void aVerticalSpectrumIsOfColumns();
    void tracksStandSideBySide();
    void theAxisOfAFileIsSaid();
    void whatIsNotKnownOfSaturationIsLeftOpen();
    void eachPeakHasALine();
    void aNameCannotBreakTheHeader();
};

namespace {

ExportedSpectrum Binned()
{
    ExportedSpectrum spectrum;
    spectrum.source = "Camera 7";
    spectrum.when = QDateTime(QDate(2026, 3, 4), QTime(5, 6, 7, 89), Qt::UTC);
    spectrum.product.frameId = 42;
    spectrum.product.takenMs = QDateTime(QDate(2026, 3, 4), QTime(5, 6, 0, 7), Qt::UTC).toMSecsSinceEpoch();
    spectrum.product.frameSize = QSize(3, 20);
    spectrum.product.band.top = 5;
    spectrum.product.band.bottom = 9;
    spectrum.product.raw = {{10, 20.5, 30}, {0, 0, 1}, 42};
    spectrum.product.corrected = {{0.125, -2, 1e-7}, {0, 0, 1}, 42};
    spectrum.product.corrections.wanted.subtractsDark = true;
    spectrum.product.corrections.wanted.quantity = SpectrumQuantity::Transmission;
    spectrum.product.corrections.hasDark = true;
    spectrum.product.corrections.hasReference = true;
    spectrum.axis.SetSpectrum(3, SpectralFrame());
    return spectrum;
}

QStringList Lines(const ExportedSpectrum &spectrum) { return QString::fromUtf8(SpectrumCsv(spectrum)).split('\n'); }

} // namespace

void SpectrumCsvTest::aBinnedSpectrumTellsAll()
{
    ExportedSpectrum spectrum = Binned();
    spectrum.points.append({0, 500, "Hg"});
    spectrum.points.append({2, 501, QString(), true});
    spectrum.axis.SetCalibration(FitCalibration(spectrum.points, 1, 3).calibration, SpectralFrame());
    spectrum.residualPixels = 0.03125;
    QCOMPARE(Lines(spectrum), QStringList({
                                  "# source: Camera 7",
                                  "# date: 2026-03-04T05:06:00.007Z",
                                  "# exported: 2026-03-04T05:06:07.089Z",
                                  "# frame: 42",
                                  "# picture: 3 x 20 pixels",
                                  "# rows: 5 to 8",
                                  "# corrections: dark subtracted, divided by reference",
                                  "# corrected values: transmission",
                                  "# axis: nm",
                                  "# calibration: polynomial of degree 1, wavelength in air [nm] of the pixel, counted from 0, lowest power first",
                                  Lines(spectrum).value(10), // the numbers come next
                                  "# residual: 0.03125 pixels rms",
                                  "# line: pixel 0 is 500 nm Hg",
                                  "# line: pixel 2 is 501 nm saturated",
                                  "pixel,axis,raw,corrected,saturated",
                                  "0,500,10,0.125,0",
                                  "1,500.5,20.5,-2,0",
                                  "2,501,30,1e-07,1",
                                  "",
                              }));
    const QStringList powers = Lines(spectrum).value(10).split(' ');
    QCOMPARE(powers.mid(0, 2), QStringList({"#", "coefficients:"}));
    QVERIFY(std::abs(powers.value(2).toDouble() - 500) < 1e-9);
    QVERIFY(std::abs(powers.value(3).toDouble() - 0.5) < 1e-12);
}

void SpectrumCsvTest::numbersHaveAPointInEveryLanguage()
{
    const QStringList english = Lines(Binned());
    QLocale::setDefault(QLocale(QLocale::German));
    const QStringList german = Lines(Binned());
    QLocale::setDefault(QLocale::c());
    QCOMPARE(german, english);
    QVERIFY(german.contains("1,1,20.5,-2,0"));
    QVERIFY(german.contains("# axis: pixel"));
    QVERIFY(german.contains("# calibration: none"));
}

void SpectrumCsvTest::aVerticalSpectrumIsOfColumns()
{
    ExportedSpectrum spectrum = Binned();
    spectrum.product.raw.place.isHorizontal = false;
    QVERIFY(Lines(spectrum).contains("# columns: 5 to 8"));
    QVERIFY(Lines(spectrum).filter("# rows").isEmpty());
}

void SpectrumCsvTest::tracksStandSideBySide()
{
    ExportedSpectrum spectrum;
    spectrum.product.frameSize = QSize(2, 20);
    spectrum.product.tracks = {{{1, 2}, {0, 0}, 1}, {{3, 4}, {0, 1}, 1}};
    spectrum.product.trackBands.resize(2);
    spectrum.product.trackBands[1].top = 10;
    spectrum.product.trackBands[1].bottom = 12;
    const QStringList lines = Lines(spectrum);
    QVERIFY(lines.contains("# rows of track 2: 10 to 11"));
    QCOMPARE(lines.mid(lines.indexOf("pixel,axis,track1,track2,saturated1,saturated2")),
             QStringList({"pixel,axis,track1,track2,saturated1,saturated2", "0,0,1,3,0,0", "1,1,2,4,0,1", ""}));
}

void SpectrumCsvTest::theAxisOfAFileIsSaid()
{
    ExportedSpectrum spectrum = Binned();
    spectrum.product.corrected = Spectrum();
    SpectralAxis axis;
    axis.unit = SpectralUnit::RamanShift;
    axis.values = {100, 110, 125};
    spectrum.axis.SetFileAxis(axis);
    spectrum.points.append({0, 500, "Hg"}); // of our own calibration, which is not used here
    const QStringList lines = Lines(spectrum);
    QVERIFY(lines.contains("# axis: 1/cm, Raman shift"));
    QVERIFY(lines.contains("# calibration: from the file"));
    QVERIFY(lines.filter("# line:").isEmpty());
    QVERIFY(lines.contains("2,125,30,1"));
    QVERIFY(lines.contains("pixel,axis,raw,saturated"));
}

void SpectrumCsvTest::whatIsNotKnownOfSaturationIsLeftOpen()
{
    ExportedSpectrum spectrum;
    spectrum.product.raw.values = {7, 8};
    const QStringList lines = Lines(spectrum);
    QVERIFY(lines.filter("# date:").isEmpty()); // nobody knows that either
    QCOMPARE(lines.mid(lines.indexOf("pixel,axis,raw,saturated")), QStringList({"pixel,axis,raw,saturated", "0,0,7,", "1,1,8,", ""}));
}

/// With its place between the pixels, which no mark on the plot has.
void SpectrumCsvTest::eachPeakHasALine()
{
    constexpr int width = 400;
    constexpr double sigma = 2;
    std::vector<double> lamp = NoiseOnly(width, 100, 1, 5);
    AddLine(&lamp, 100.25, 5000, sigma);
    AddLine(&lamp, 300.5, 1000, sigma);
    ExportedSpectrum spectrum;
    spectrum.product.raw.values = lamp;
    spectrum.axis.SetSpectrum(width, SpectralFrame());
    const QStringList plain = Lines(spectrum).filter("# peak:");
    QCOMPARE(plain.size(), 2);
    QVERIFY(QRegularExpression("^# peak: pixel 100.2[0-9], height [0-9.]+, width [0-9.]+ pixels$").match(plain[0]).hasMatch());

    QVector<CalibrationPoint> points;
    points.append({0, 400, "Hg"});
    points.append({200, 500, "Hg"});
    spectrum.axis.SetCalibration(FitCalibration(points, 1, width).calibration, SpectralFrame());
    const QStringList peaks = Lines(spectrum).filter("# peak:");
    QCOMPARE(peaks.size(), 2);
    const QRegularExpression form("^# peak: pixel ([0-9.]+) is ([0-9.]+) nm, height ([0-9.]+), width ([0-9.]+) pixels$");
    const QVector<QPair<double, double>> truth{{100.25, 5000}, {300.5, 1000}};
    for (int i = 0; i < peaks.size(); ++i) {
        const QRegularExpressionMatch peak = form.match(peaks[i]);
        QVERIFY2(peak.hasMatch(), qPrintable(peaks[i]));
        QVERIFY2(std::abs(peak.captured(1).toDouble() - truth[i].first) < 0.03, qPrintable(peaks[i]));
        QVERIFY2(std::abs(peak.captured(2).toDouble() - (400 + truth[i].first / 2)) < 0.02, qPrintable(peaks[i]));
        QVERIFY2(std::abs(peak.captured(3).toDouble() / truth[i].second - 1) < 0.05, qPrintable(peaks[i]));
        QVERIFY2(std::abs(peak.captured(4).toDouble() / (sigma * 2.3548) - 1) < 0.05, qPrintable(peaks[i]));
    }

    spectrum.product.raw = Spectrum();
    spectrum.product.tracks.resize(2);
    spectrum.product.tracks[0].values = NoiseOnly(width, 100, 1, 6);
    spectrum.product.tracks[1].values = lamp;
    QCOMPARE(Lines(spectrum).filter("# peak").size(), 2);
    QCOMPARE(Lines(spectrum).filter("# peak of track 2: pixel 100.2").size(), 1);
}

void SpectrumCsvTest::aNameCannotBreakTheHeader()
{
    ExportedSpectrum spectrum = Binned();
    spectrum.source = "a\nname,with\r\nlines";
    QCOMPARE(Lines(spectrum).first(), QString("# source: a name,with lines"));
}

GUARDED_TEST_MAIN(SpectrumCsvTest)
#include "spectrumcsvtest.moc"
