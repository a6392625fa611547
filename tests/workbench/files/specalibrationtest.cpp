// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "picturefolder.h"
#include "spebytes.h"

#include <cmath>

#include <sys/resource.h>

/// Calibrations of version 2, of every degree and in every unit, and lists of version 3 that nothing belongs to.
class SpeCalibrationTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void everyDegreeInEveryUnitIsTakenOver_data();
    void everyDegreeInEveryUnitIsTakenOver();
    void aShiftIsMadeOfWhatTheLaserIsKnownFor_data();
    void aShiftIsMadeOfWhatTheLaserIsKnownFor();
    void theLabelNamesTheUnit_data();
    void theLabelNamesTheUnit();
    void whatCannotBeUsedIsSaid_data();
    void whatCannotBeUsedIsSaid();
    void theRowsHaveACalibrationToo();
    void regionsThatAreNotThereTakeNoMemory();
};

namespace {

constexpr int Width = 40;
constexpr quint8 User = 3;
constexpr quint8 Nm = 4;
constexpr quint8 PerCm = 5;
constexpr quint8 Raman = 6;
/// Of a polynomial that rises.
const std::initializer_list<double> Coefficients{ 500, 1.5, -2e-3, 3e-4, -1e-6, 2e-8 };

/// Of a column, counted from 0.
double Polynomial(int column, int degree)
{
    double value = 0;
    for (int power = 0; power <= degree; ++power)
        value += Coefficients.begin()[power] * std::pow(column + 1, power);
    return value;
}

SpeBytes Spectrum()
{
    SpeBytes spe(Width, 2, 3, 1);
    spe.AppendRamp(2 * Width);
    return spe;
}

SpeBytes &Label(SpeBytes &spe, int offset, const QByteArray &latin1)
{
    for (int i = 0; i < latin1.size(); ++i)
        spe.Set<quint8>(offset + i, quint8(latin1[i]));
    return spe;
}

std::unique_ptr<PictureFile> Opened(const PictureFolder &folder, const SpeBytes &spe)
{
    QString error;
    auto file = OpenPicture(folder.Write("spectrum.spe", spe.Bytes()), error);
    if (!file)
        qFatal("%s", qPrintable(error));
    return file;
}

bool IsNear(double value, double expected)
{
    return std::abs(value - expected) <= 1e-12 * std::abs(expected);
}

/// Of this process so far.
qint64 PeakKilobytes()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

} // namespace

void SpeCalibrationTest::everyDegreeInEveryUnitIsTakenOver_data()
{
    QTest::addColumn<int>("degree");
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("unit");
    for (int degree = 1; degree <= 5; ++degree) {
        QTest::addRow("nm, degree %d", degree) << degree << int(Nm) << int(SpectralUnit::Nanometre);
        QTest::addRow("1/cm, degree %d", degree) << degree << int(PerCm) << int(SpectralUnit::Wavenumber);
        QTest::addRow("Raman shift, degree %d", degree)
            << degree << int(Raman) << int(SpectralUnit::RamanShift);
    }
}

/// Coefficients beyond the degree are none of it.
void SpeCalibrationTest::everyDegreeInEveryUnitIsTakenOver()
{
    QFETCH(int, degree);
    QFETCH(int, code);
    PictureFolder folder;
    SpeBytes spe = Spectrum();
    const auto file = Opened(folder, spe.Calibrate(quint8(code), quint8(code), quint8(degree), Coefficients));
    QCOMPARE(file->Info().warning, QString());
    const SpectralAxis axis = file->AxisOf(0);
    QTEST(int(axis.unit), "unit");
    QCOMPARE(int(axis.side), int(SpectralSide::Columns));
    QCOMPARE(axis.values.size(), Width);
    for (int column = 0; column < Width; ++column)
        QVERIFY(IsNear(axis.values[column], Polynomial(column, degree)));
}

void SpeCalibrationTest::aShiftIsMadeOfWhatTheLaserIsKnownFor_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<double>("laser");
    QTest::addColumn<double>("first"); // of 500 nm or 1/cm, which rise
    QTest::addColumn<int>("unit");
    const int shift = int(SpectralUnit::RamanShift);
    QTest::newRow("of nanometres") << int(Nm) << 400.0 << 1e7 / 400 - 1e7 / 500 << shift;
    QTest::newRow("of wavenumbers") << int(PerCm) << 400.0 << 1e7 / 400 - 500 << shift;
    QTest::newRow("of a shift") << int(Raman) << 400.0 << 500.0 << shift;
    QTest::newRow("of nanometres without a laser") << int(Nm) << 0.0 << 500.0 << int(SpectralUnit::Nanometre);
    QTest::newRow("of wavenumbers and a laser of no number")
        << int(PerCm) << double(NAN) << 500.0 << int(SpectralUnit::Wavenumber);
}

void SpeCalibrationTest::aShiftIsMadeOfWhatTheLaserIsKnownFor()
{
    QFETCH(int, code);
    QFETCH(double, laser);
    QFETCH(double, first);
    PictureFolder folder;
    SpeBytes spe = Spectrum();
    spe.Calibrate(quint8(code), Raman, 1, { 499, 1 }).SetDouble(3311, laser);
    const SpectralAxis axis = Opened(folder, spe)->AxisOf(0);
    QTEST(int(axis.unit), "unit");
    QVERIFY2(IsNear(axis.values.value(0), first), qPrintable(QString::number(axis.values.value(0), 'g', 12)));
}

void SpeCalibrationTest::theLabelNamesTheUnit_data()
{
    QTest::addColumn<QByteArray>("label"); // Latin 1
    QTest::addColumn<int>("unit");
    QTest::addColumn<double>("factor");
    const int nm = int(SpectralUnit::Nanometre);
    const int perCm = int(SpectralUnit::Wavenumber);
    QTest::newRow("nanometres") << QByteArray("Wavelength [nm]") << nm << 1.0;
    QTest::newRow("Ångström") << QByteArray("Wavelength [\xc5]") << nm << 0.1;
    QTest::newRow("A") << QByteArray("Wavelength (A)") << nm << 0.1;
    QTest::newRow("angstroms") << QByteArray("Angstroms") << nm << 0.1;
    QTest::newRow("micrometres") << QByteArray("Wavelength [\xb5m]") << nm << 1000.0;
    QTest::newRow("um") << QByteArray("um") << nm << 1000.0;
    QTest::newRow("microns") << QByteArray("Microns") << nm << 1000.0;
    QTest::newRow("wavenumbers") << QByteArray("Wavenumber [cm-1]") << perCm << 1.0;
    QTest::newRow("with a space") << QByteArray("Wavenumber [cm -1]") << perCm << 1.0;
    QTest::newRow("with a power") << QByteArray("cm^-1") << perCm << 1.0;
    QTest::newRow("with a slash") << QByteArray("1/cm") << perCm << 1.0;
    QTest::newRow("Raman") << QByteArray("Raman shift [cm -1]") << int(SpectralUnit::RamanShift) << 1.0;
}

/// That of a user's own unit.
void SpeCalibrationTest::theLabelNamesTheUnit()
{
    QFETCH(QByteArray, label);
    QFETCH(double, factor);
    PictureFolder folder;
    for (const bool isLater : { false, true }) {
        SpeBytes spe = Spectrum();
        spe.Calibrate(User, isLater ? Nm : User, 3, Coefficients);
        Label(spe, isLater ? 3321 : 3018, label);
        spe.Set<quint8>(3320, isLater ? 200 : 0);
        const auto file = Opened(folder, spe);
        QCOMPARE(file->Info().warning, QString());
        const SpectralAxis axis = file->AxisOf(0);
        QTEST(int(axis.unit), "unit");
        QCOMPARE(axis.values.size(), Width);
        for (int column = 0; column < Width; ++column)
            QVERIFY(IsNear(axis.values[column], factor * Polynomial(column, 3)));
    }
}

void SpeCalibrationTest::whatCannotBeUsedIsSaid_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("degree");
    QTest::addColumn<QByteArray>("label");
    QTest::addColumn<QString>("said");
    QTest::newRow("pixels") << 1 << 1 << QByteArray("Pixel") << "";
    QTest::newRow("none") << 0 << 1 << QByteArray() << "";
    QTest::newRow("furlongs")
        << 3 << 1 << QByteArray("Way [furlong]")
        << "in a unit that is not known (\u201cWay [furlong]\u201d, code 3) and is left out";
    QTest::newRow("no label") << 3 << 1 << QByteArray()
                              << "in a unit that is not known (\u201c\u201d, code 3)";
    QTest::newRow("a label without an end")
        << 3 << 1 << QByteArray(40, 'x') << QString("(\u201c%1\u201d, code 3)").arg(QString(40, 'x'));
    QTest::newRow("a label of brackets") << 3 << 1 << QByteArray("[](([") << "in a unit that is not known";
    QTest::newRow("data") << 2 << 1 << QByteArray() << "code 2) and is left out";
    QTest::newRow("a code of nothing") << 255 << 1 << QByteArray() << "code 255) and is left out";
    QTest::newRow("degree 0") << 4 << 0 << QByteArray()
                              << "is a polynomial of degree 0, where 1 to 5 are possible, and is left out";
    QTest::newRow("degree 6") << 4 << 6 << QByteArray()
                              << "is a polynomial of degree 6, where 1 to 5 are possible";
    QTest::newRow("degree 255") << 5 << 255 << QByteArray() << "is a polynomial of degree 255";
}

void SpeCalibrationTest::whatCannotBeUsedIsSaid()
{
    QFETCH(int, code);
    QFETCH(int, degree);
    QFETCH(QByteArray, label);
    QFETCH(QString, said);
    PictureFolder folder;
    SpeBytes spe = Spectrum();
    spe.Calibrate(quint8(code), User, quint8(degree), { 500, 1 });
    const auto file = Opened(folder, Label(spe, 3018, label));
    QVERIFY(file->AxisOf(0).IsEmpty());
    QCOMPARE(file->Info().warning.isEmpty(), said.isEmpty());
    QVERIFY2(file->Info().warning.contains(said), qPrintable(file->Info().warning));
    // Of one that is not valid nobody wants to hear.
    QCOMPARE(Opened(folder, spe.Set<quint8>(3098, 0))->Info().warning, QString());
}

/// 489 bytes further on; a picture has one calibration, and that of the columns comes first.
void SpeCalibrationTest::theRowsHaveACalibrationToo()
{
    constexpr int rows = 489;
    PictureFolder folder;
    SpeBytes spe = Spectrum();
    spe.Set<quint8>(3098 + rows, 1).Set<quint8>(3100 + rows, Nm).Set<quint8>(3101 + rows, 1);
    spe.SetDouble(3263 + rows, 400).SetDouble(3271 + rows, 3);
    SpectralAxis axis = Opened(folder, spe)->AxisOf(0);
    QCOMPARE(int(axis.side), int(SpectralSide::Rows));
    QCOMPARE(axis.values, QVector<double>({ 403, 406 }));
    // One of the columns that counts pixels, or that has no unit, is none.
    for (const int code : { 0, 1 }) {
        axis = Opened(folder, SpeBytes(spe).Calibrate(quint8(code), quint8(code), 1, { 0, 1 }))->AxisOf(0);
        QCOMPARE(int(axis.side), int(SpectralSide::Rows));
        QCOMPARE(axis.values, QVector<double>({ 403, 406 }));
    }
    axis = Opened(folder, spe.Calibrate(Nm, Nm, 1, { 500, 1 }))->AxisOf(0);
    QCOMPARE(int(axis.side), int(SpectralSide::Columns));
    QCOMPARE(axis.values.value(0), 501.0);
}

/// Each of 2000 regions asks for its copy of a list of 100 000 wavelengths: 1.6 GB.
void SpeCalibrationTest::regionsThatAreNotThereTakeNoMemory()
{
    QByteArray list("1");
    for (int i = 2; i <= 100000; ++i)
        list += ',' + QByteArray::number(i);
    const QByteArray region("<DataBlock type=\"Region\" width=\"100000\" height=\"1\" stride=\"200000\" calibrations=\"2\"/>");
    SpeBytes spe(0, 0, 3, 1, 3.0F);
    spe.AppendRamp(2).AppendFooter(
        "<SpeFormat><DataBlock type=\"Frame\" count=\"1\" pixelFormat=\"MonochromeUnsigned16\" stride=\"400000000\" calibrations=\"1\">"
        + region.repeated(2000) + "</DataBlock><WavelengthMapping id=\"1\"><Wavelength>" + list
        + "</Wavelength></WavelengthMapping><SensorMapping id=\"2\" width=\"100000\" height=\"1\"/></SpeFormat>");
    PictureFolder folder;
    const QString path = folder.Write("many.spe", spe.Bytes());
    const qint64 before = PeakKilobytes();
    const QString error = PictureFolder::ErrorOf(path);
    QVERIFY2(error.contains("not even its first frame of 100000 x 1 pixels is whole"), qPrintable(error));
    QVERIFY2(PeakKilobytes() - before < 200000, qPrintable(QString::number(PeakKilobytes() - before)));
}

GUARDED_TEST_MAIN(SpeCalibrationTest)
#include "specalibrationtest.moc"
