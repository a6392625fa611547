// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibrationfit.h"
#include "guardedtest.h"
#include "lineassignment.h"
#include "openpicture.h"
#include "spectrumcorrections.h"

#include <QFile>

#include <algorithm>
#include <cmath>

/// Lamps of real spectrographs, with lines that others have identified.
class RealLampsTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void theirLinesAreFound();
    void everyListedLineAboveTheNoiseIsFound_data();
    void everyListedLineAboveTheNoiseIsFound();
    void theirPointsGiveAGoodCalibration();
    void theyAreAssignedByThemselves();
    void neonInAVacuumAxisIsFound();
    void mercuryBesideFaintArgonIsAssigned();
    void xenonOfAPictureIsAssigned();
    void heliumAndArgonAlongAPictureAreAssigned_data();
    void heliumAndArgonAlongAPictureAreAssigned();
};

namespace {

QVector<QPair<double, double>> Numbers(const QString &name)
{
    QFile file(QString(TEST_DATA) + "/lamp/" + name);
    if (!file.open(QIODevice::ReadOnly))
        QTest::qFail(qPrintable(file.errorString()), __FILE__, __LINE__);
    QVector<QPair<double, double>> numbers;
    for (const QByteArray &line : file.readAll().split('\n')) {
        const QList<QByteArray> fields = line.split(',');
        if (fields.size() >= 2)
            numbers << qMakePair(fields[0].toDouble(), fields[1].toDouble());
    }
    return numbers;
}

std::vector<double> Counts(const QString &name)
{
    std::vector<double> counts;
    for (const auto &sample : Numbers(name))
        counts.push_back(sample.second);
    return counts;
}

Picture FirstFrame(const QString &name)
{
    QString error;
    const auto file = OpenPicture(QString(TEST_DATA) + name, error);
    Picture picture;
    if (!file || !file->ReadFrame(0, picture, error))
        qFatal("%s", qPrintable(error));
    return picture;
}

/// The mean of some rows of a picture.
std::vector<double> MeanOfRows(const QString &name, int first, int end)
{
    const Picture picture = FirstFrame(name);
    std::vector<double> mean(size_t(picture.Width()), 0.0);
    VisitSampleType(picture.Type(), [&](auto sample) {
        for (int y = first; y < end; ++y) {
            for (int x = 0; x < picture.Width(); ++x)
                mean[size_t(x)] += double(picture.Samples<decltype(sample)>(y)[x]) / (end - first);
        }
    });
    return mean;
}

/// The mean of some columns of a picture.
std::vector<double> MeanOfColumns(const QString &name, int first, int end)
{
    const Picture picture = FirstFrame(name);
    std::vector<double> mean(size_t(picture.Height()), 0.0);
    VisitSampleType(picture.Type(), [&](auto sample) {
        for (int y = 0; y < picture.Height(); ++y) {
            for (int x = first; x < end; ++x)
                mean[size_t(y)] += double(picture.Samples<decltype(sample)>(y)[x]) / (end - first);
        }
    });
    return mean;
}

const QString osiris = "osiris-b-effective-pixel-spectrum.txt";
const QString osirisPairs = "osiris-b-pixel-wavelength-solution-pairs.txt";

} // namespace

void RealLampsTest::theirLinesAreFound()
{
    const std::vector<double> counts = Counts(osiris);
    const std::vector<SpectralPeak> peaks = FindPeaks(counts);
    int found = 0;
    const auto pairs = Numbers(osirisPairs);
    for (const auto &pair : pairs)
        found += NearestPeak(peaks, pair.first, 2) ? 1 : 0;
    QCOMPARE(pairs.size(), 34);
    QCOMPARE(found, 34);
    QVERIFY2(peaks.size() < 80, qPrintable(QString::number(peaks.size())));
}

void RealLampsTest::everyListedLineAboveTheNoiseIsFound_data()
{
    QTest::addColumn<QString>("lamp");
    QTest::addColumn<int>("listed");
    QTest::addColumn<double>("noise"); // as the description of the spectra has it
    QTest::addColumn<int>("least");
    QTest::newRow("mercury, argon and neon") << "osiris-b" << 34 << 28.0 << 33;
    QTest::newRow("faint mercury and argon") << "floyds-blue" << 10 << 1.06 << 5;
}

/// A line is there when the highest sample within 2 pixels of its place stands 5 times the noise above the background,
/// and its neighbours are lower: on the shoulder of another one it has no peak of its own.
void RealLampsTest::everyListedLineAboveTheNoiseIsFound()
{
    QFETCH(QString, lamp);
    QFETCH(int, listed);
    QFETCH(double, noise);
    QFETCH(int, least);
    const std::vector<double> counts = Counts(lamp + "-effective-pixel-spectrum.txt");
    const std::vector<double> background = Baseline(counts, SpectrumCorrections::BaselineReach);
    const std::vector<SpectralPeak> peaks = FindPeaks(counts);
    const auto pairs = Numbers(lamp + "-pixel-wavelength-solution-pairs.txt");
    QCOMPARE(pairs.size(), listed);
    int there = 0;
    for (const auto &pair : pairs) {
        const int place = int(std::lround(pair.first));
        const auto first = counts.begin() + place - 2;
        const auto highest = std::max_element(first, first + 5);
        const bool isTop = *highest >= *(highest - 1) && *highest >= *(highest + 1);
        const double height = *highest - background[size_t(highest - counts.begin())];
        if (!isTop || height < 5 * noise)
            continue;
        ++there;
        QVERIFY2(NearestPeak(peaks, pair.first, 2), qPrintable(QString("%1 at %2: %3 times the noise").arg(pair.second).arg(pair.first).arg(height / noise)));
    }
    QVERIFY2(there >= least, qPrintable(QString::number(there)));
}

void RealLampsTest::theirPointsGiveAGoodCalibration()
{
    const std::vector<SpectralPeak> peaks = FindPeaks(Counts(osiris));
    QVector<CalibrationPoint> points;
    for (const auto &pair : Numbers(osirisPairs)) {
        if (const SpectralPeak *peak = NearestPeak(peaks, pair.first, 2))
            points.append({peak->position, pair.second / 10, QString()});
    }
    const CalibrationFit fit = FitCalibration(points, 4, 2051);
    QVERIFY2(fit.IsGood(), qPrintable(fit.fault));
    QVERIFY2(fit.rmsPixel < 0.1, qPrintable(QString::number(fit.rmsPixel)));
    QVERIFY2(fit.leaveOneOutPixel > fit.rmsPixel && fit.leaveOneOutPixel < 0.5, qPrintable(QString::number(fit.leaveOneOutPixel))); // one line stands alone at the blue end
}

void RealLampsTest::theyAreAssignedByThemselves()
{
    AssignmentHints hints;
    hints.lamps = {Lamp::Mercury, Lamp::Argon, Lamp::Neon};
    hints.width = 2051;
    hints.firstNm = 335;
    hints.lastNm = 785;
    hints.degree = 4;
    const auto points = AssignLines(FindPeaks(Counts(osiris)), hints).points;
    QVERIFY2(points.size() >= 20, qPrintable(QString::number(points.size())));
    const CalibrationFit fit = FitCalibration(points, 4, 2051);
    QVERIFY2(fit.IsGood() && fit.rmsPixel < 0.1, qPrintable(QString::number(fit.rmsPixel)));
    // The pairs of the others agree, though they are no better than their whole pixels.
    for (const auto &pair : Numbers(osirisPairs)) {
        const double off = (fit.calibration.Wavelength(pair.first) - pair.second / 10) / fit.calibration.Dispersion(pair.first);
        QVERIFY2(std::abs(off) < 2, qPrintable(QString("%1: %2").arg(pair.second).arg(off)));
    }
}

void RealLampsTest::neonInAVacuumAxisIsFound()
{
    QString error;
    const auto file = OpenPicture(QString(TEST_DATA) + "/spe/HeNe.SPE", error);
    QVERIFY2(file, qPrintable(error));
    Picture picture;
    QVERIFY2(file->ReadFrame(0, picture, error), qPrintable(error));
    std::vector<double> counts;
    for (int x = 0; x < picture.Width(); ++x)
        counts.push_back(picture.Samples<qint32>(0)[x]);
    const QVector<double> axis = file->AxisOf(0).values;

    AssignmentHints hints;
    hints.lamps = {Lamp::Neon};
    hints.width = picture.Width();
    hints.firstNm = axis.first();
    hints.lastNm = axis.last();
    hints.degree = 3;
    const AssignedLines assigned = AssignLines(FindPeaks(counts), hints);
    const auto &points = assigned.points;
    QVERIFY2(points.size() >= 15, qPrintable(QString::number(points.size())));
    const CalibrationFit fit = FitCalibration(points, 3, picture.Width());
    QVERIFY2(fit.IsGood() && fit.rmsPixel < 0.1, qPrintable(QString::number(fit.rmsPixel)));
    QVERIFY(fit.leaveOneOutPixel < 0.1);
    // At a quarter of a nanometre a pixel many of its lines are two in one and lie up to half a pixel beside the curve.
    QVERIFY(assigned.oddWidths >= 5 && assigned.blends >= 2);
    // The file's axis is in vacuum: a quarter of a nanometre above air.
    const double middle = 500;
    QVERIFY2(std::abs(axis[500] - fit.calibration.Wavelength(middle) - 0.23) < 0.1,
             qPrintable(QString::number(axis[500] - fit.calibration.Wavelength(middle))));
}

/// The two lines of argon are as faint as its others beside them, which pull them aside; those of mercury stand apart.
void RealLampsTest::mercuryBesideFaintArgonIsAssigned()
{
    AssignmentHints hints;
    hints.lamps = {Lamp::Mercury};
    hints.width = 1550;
    hints.firstNm = 320;
    hints.lastNm = 590;
    hints.degree = 3;
    const auto points = AssignLines(FindPeaks(Counts("floyds-blue-effective-pixel-spectrum.txt")), hints).points;
    QVERIFY2(points.size() >= 6, qPrintable(QString::number(points.size())));
    const CalibrationFit fit = FitCalibration(points, 3, hints.width);
    QVERIFY2(fit.IsGood() && fit.rmsPixel < 0.1, qPrintable(QString::number(fit.rmsPixel)));
    for (const auto &pair : Numbers("floyds-blue-pixel-wavelength-solution-pairs.txt")) {
        const double off = (fit.calibration.Wavelength(pair.first) - pair.second / 10) / fit.calibration.Dispersion(pair.first);
        QVERIFY2(std::abs(off) < 2, qPrintable(QString("%1: %2").arg(pair.second).arg(off)));
    }
}

/// Half a nanometre a pixel and lines of nearly four pixels: more than a third of the peaks are two lines of xenon or
/// more, also of its ions, which no list has.
void RealLampsTest::xenonOfAPictureIsAssigned()
{
    AssignmentHints hints;
    hints.lamps = {Lamp::Xenon};
    hints.width = 1024;
    hints.firstNm = 340;
    hints.lastNm = 816;
    hints.degree = 3;
    const auto points = AssignLines(FindPeaks(MeanOfRows("/fits/v_a_20190516_57_1_0_1.fits", 124, 154)), hints).points;
    QVERIFY2(points.size() >= 10, qPrintable(QString::number(points.size())));
    const CalibrationFit fit = FitCalibration(points, 3, hints.width);
    QVERIFY2(fit.IsGood() && fit.rmsPixel < 0.1, qPrintable(QString::number(fit.rmsPixel)));
    const auto pairs = Numbers("sprat_ground_truth_v_a.csv");
    QCOMPARE(pairs.size(), 39);
    for (const auto &pair : pairs) {
        const double off = (fit.calibration.Wavelength(pair.first) - pair.second / 10) / fit.calibration.Dispersion(pair.first);
        QVERIFY2(std::abs(off) < 4, qPrintable(QString("%1: %2").arg(pair.second).arg(off))); // theirs are good to two
    }
}

void RealLampsTest::heliumAndArgonAlongAPictureAreAssigned_data()
{
    QTest::addColumn<double>("first");
    QTest::addColumn<double>("last");
    QTest::newRow("range known about") << 750.0 << 320.0;
    QTest::newRow("nothing known") << 0.0 << 0.0;
}

/// The spectrum runs downwards, and its dispersion bends more than a cubic does.
void RealLampsTest::heliumAndArgonAlongAPictureAreAssigned()
{
    QFETCH(double, first);
    QFETCH(double, last);
    AssignmentHints hints;
    hints.lamps = {Lamp::Helium, Lamp::Argon};
    hints.width = 1030;
    hints.firstNm = first;
    hints.lastNm = last;
    hints.degree = 4;
    const auto points = AssignLines(FindPeaks(MeanOfColumns("/fits/EFOSC_spec_HeAr227_0005.fits", 495, 535)), hints).points;
    QVERIFY2(points.size() >= 12, qPrintable(QString::number(points.size())));
    const CalibrationFit fit = FitCalibration(points, hints.degree, hints.width);
    QVERIFY2(fit.IsGood() && fit.rmsPixel < 0.1, qPrintable(QString::number(fit.rmsPixel)));
    QVERIFY(fit.leaveOneOutPixel < 0.1);
    // The brightest line is the yellow one of helium, and the last bright one its ultraviolet one.
    QVERIFY2(std::abs(fit.calibration.Wavelength(373.2) - 587.562) < 0.1, qPrintable(QString::number(fit.calibration.Wavelength(373.2))));
    QVERIFY2(std::abs(fit.calibration.Wavelength(862.5) - 388.865) < 0.1, qPrintable(QString::number(fit.calibration.Wavelength(862.5))));
}

GUARDED_TEST_MAIN(RealLampsTest)
#include "reallampstest.moc"
