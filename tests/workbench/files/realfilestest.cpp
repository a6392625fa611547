// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "picturefolder.h"

#include <cmath>

/// Files of cameras and other programs, whose figures were found with other readers.
class RealFilesTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void figuresAreThoseOfOtherReaders_data();
    void figuresAreThoseOfOtherReaders();
    void lastPageOfTheTimeSeries();
    void firstRowOfTheArrayIsTheLastOfThePicture();
    void undefinedSamplesOfTheSkyMapAreKept();
    void regionsOfSpectrumFilesHaveTheirOwnFigures_data();
    void regionsOfSpectrumFilesHaveTheirOwnFigures();
    void rowsOfTheSensorAreThoseOfOtherReaders_data();
    void rowsOfTheSensorAreThoseOfOtherReaders();
    void wavelengthsAreThoseOfOtherReaders_data();
    void wavelengthsAreThoseOfOtherReaders();
    void singleSamplesOfTheRamanSeries();
};

namespace {

QString DataPath(const QString &name)
{
    return QString(TEST_DATA) + '/' + name;
}

struct Figures
{
    double smallest = std::numeric_limits<double>::infinity();
    double largest = -std::numeric_limits<double>::infinity();
    double sum = 0;
    qint64 count = 0;
    qint64 undefined = 0;

    void Add(const Picture &picture)
    {
        for (const double sample : SamplesOf(picture)) {
            if (std::isnan(sample)) {
                ++undefined;
                continue;
            }
            smallest = std::min(smallest, sample);
            largest = std::max(largest, sample);
            sum += sample;
            ++count;
        }
    }
};

std::unique_ptr<PictureFile> Opened(const QString &name)
{
    QString error;
    std::unique_ptr<PictureFile> file = OpenPicture(DataPath(name), error);
    if (!file)
        QTest::qFail(qPrintable(error), __FILE__, __LINE__);
    return file;
}

} // namespace

void RealFilesTest::figuresAreThoseOfOtherReaders_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("frames");
    QTest::addColumn<int>("type");
    QTest::addColumn<double>("smallest");
    QTest::addColumn<double>("largest");
    QTest::addColumn<double>("mean");
    const auto row = [](const char *name, QSize size, int frames, SampleType type, double smallest, double largest, double mean) {
        QTest::newRow(name) << size << frames << int(type) << smallest << largest << mean;
    };
    row("tiff/IXMtest_A02_s9.tif", {695, 395}, 3, SampleType::U16, 135, 4095, 247.0749);
    row("tiff/cancer_cell_migration_crop.tif", {130, 130}, 48, SampleType::U16, 0, 65535, 8627.2969);
    row("tiff/multi-channel.ome.tif", {439, 167}, 3, SampleType::S8, -1, 96, 47.4919);
    row("tiff/gray32float-3x2-sub1.tif", {3, 2}, 1, SampleType::F32, 0, 0.78431374, NAN);
    row("fits/EFOSC_spec_HeAr227_0005.fits", {1030, 1030}, 1, SampleType::U16, 0, 44718, 563.8290);
    row("fits/v_a_20190516_57_1_0_1.fits", {1024, 254}, 1, SampleType::F32, -67.2935, 13821.2, 510.8249);
    row("fits/1904-66_AZP.fits", {192, 192}, 1, SampleType::F32, -0.681549, 13.5759, 0.0301);
    row("spe/HeNe.SPE", {1340, 1}, 1, SampleType::S32, 5631, 266664, 9901.9254);
    row("spe/blut1.SPE", {1023, 1}, 10, SampleType::U16, 581, 3226, 946.1046);
    row("spe/Testfile_Single_SPE2.SPE", {1340, 1}, 35, SampleType::U16, 185, 1369, 233.6926);
    row("spe/spestack_test.spe", {128, 128}, 5, SampleType::U16, 127, 7914, 214.0821);
    row("spe/one_dimensional_spectrum.spe", {1024, 1}, 1, SampleType::F32, -12, 6473, 357.3281);
    row("spe/full_sensor_image.spe", {1024, 1024}, 1, SampleType::U16, 489, 3022, 1261.6098);
}

void RealFilesTest::figuresAreThoseOfOtherReaders()
{
    QFETCH(QSize, size);
    QFETCH(int, frames);
    QFETCH(int, type);
    QFETCH(double, smallest);
    QFETCH(double, largest);
    QFETCH(double, mean);
    const auto file = Opened(QTest::currentDataTag());
    QVERIFY(file);
    QCOMPARE(file->Info().size, size);
    QCOMPARE(file->Info().frames, frames);
    QCOMPARE(int(file->Info().sampleType), type);
    QCOMPARE(file->Info().warning, QString());
    Figures figures;
    Picture picture;
    QString error;
    for (int i = 0; i < frames; ++i) {
        QVERIFY2(file->ReadFrame(i, picture, error), qPrintable(error));
        figures.Add(picture);
    }
    // The figures are known to the digits given.
    const auto near = [](double value, double expected) { return std::abs(value - expected) <= std::abs(expected) * 1e-5 + 5e-5; };
    QVERIFY2(near(figures.smallest, smallest), qPrintable(QString::number(figures.smallest, 'g', 10)));
    QVERIFY2(near(figures.largest, largest), qPrintable(QString::number(figures.largest, 'g', 10)));
    if (!std::isnan(mean))
        QVERIFY2(near(figures.sum / figures.count, mean), qPrintable(QString::number(figures.sum / figures.count, 'g', 10)));
}

void RealFilesTest::lastPageOfTheTimeSeries()
{
    const auto file = Opened("tiff/cancer_cell_migration_crop.tif");
    QVERIFY(file);
    Picture picture;
    QString error;
    QVERIFY2(file->ReadFrame(47, picture, error), qPrintable(error));
    Figures figures;
    figures.Add(picture);
    QCOMPARE(QString::number(figures.sum / figures.count, 'f', 4), QString("11198.6003"));
}

void RealFilesTest::firstRowOfTheArrayIsTheLastOfThePicture()
{
    const auto file = Opened("fits/EFOSC_spec_HeAr227_0005.fits");
    QVERIFY(file);
    Picture picture;
    QString error;
    QVERIFY2(file->ReadFrame(0, picture, error), qPrintable(error));
    const quint16 *row = picture.Samples<quint16>(picture.Height() - 1);
    QCOMPARE(QVector<int>({row[0], row[1], row[2]}), QVector<int>({68, 254, 230}));
}

void RealFilesTest::undefinedSamplesOfTheSkyMapAreKept()
{
    const auto file = Opened("fits/1904-66_AZP.fits");
    QVERIFY(file);
    Picture picture;
    QString error;
    QVERIFY2(file->ReadFrame(0, picture, error), qPrintable(error));
    Figures figures;
    figures.Add(picture);
    QCOMPARE(figures.undefined, qint64(8121));
}

void RealFilesTest::regionsOfSpectrumFilesHaveTheirOwnFigures_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("regions");
    QTest::addColumn<int>("region");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("smallest");
    QTest::addColumn<double>("largest");
    QTest::addColumn<double>("mean");
    const QString two = "spe/ten_frames_two_rois_different_binning.spe";
    const QString three = "spe/test_multiple_rois.spe";
    QTest::newRow("1 of 2") << two << 2 << 0 << QSize(626, 177) << 336.0 << 2139.0 << 886.4309;
    QTest::newRow("2 of 2") << two << 2 << 1 << QSize(256, 46) << 5182.0 << 9482.0 << 8189.1385;
    QTest::newRow("1 of 3") << three << 3 << 0 << QSize(1340, 1) << 65535.0 << 65535.0 << 65535.0;
    QTest::newRow("2 of 3") << three << 3 << 1 << QSize(524, 66) << 4751.0 << 22348.0 << 19201.5359;
    QTest::newRow("3 of 3") << three << 3 << 2 << QSize(592, 90) << 10030.0 << 22199.0 << 20623.3555;
}

void RealFilesTest::regionsOfSpectrumFilesHaveTheirOwnFigures()
{
    QFETCH(QString, name);
    QFETCH(int, regions);
    QFETCH(int, region);
    QFETCH(QSize, size);
    QFETCH(double, smallest);
    QFETCH(double, largest);
    QFETCH(double, mean);
    const auto file = Opened(name);
    QVERIFY(file);
    Figures figures;
    Picture picture;
    QString error;
    for (int i = region; i < file->Info().frames; i += regions) {
        QVERIFY2(file->ReadFrame(i, picture, error), qPrintable(error));
        QCOMPARE(picture.Size(), size);
        figures.Add(picture);
    }
    QCOMPARE(figures.smallest, smallest);
    QCOMPARE(figures.largest, largest);
    QCOMPARE(QString::number(figures.sum / figures.count, 'f', 4), QString::number(mean, 'f', 4));
}

void RealFilesTest::rowsOfTheSensorAreThoseOfOtherReaders_data()
{
    QTest::addColumn<QString>("said");
    QTest::newRow("spe/HeNe.SPE") << "columns 0 to 1339, rows 191 to 200 of the sensor, binned by 1 x 10";
    QTest::newRow("spe/Testfile_Single_SPE2.SPE")
        << "columns 0 to 1339, rows 39 to 63 of the sensor, binned by 1 x 25";
    QTest::newRow("spe/blut1.SPE") << "columns 1 to 1023, rows 120 to 139 of the sensor, binned by 1 x 20";
    QTest::newRow("spe/spestack_test.spe")
        << "columns 184 to 311, rows 233 to 360 of the sensor, binned by 1 x 1";
}

void RealFilesTest::rowsOfTheSensorAreThoseOfOtherReaders()
{
    const auto file = Opened(QTest::currentDataTag());
    QVERIFY(file);
    QStringList regions;
    for (const MetadataEntry &entry : file->Info().metadata) {
        if (entry.key == "Region")
            regions << entry.value;
    }
    QCOMPARE(regions.size(), 1);
    QTEST(regions.first(), "said");
}

void RealFilesTest::wavelengthsAreThoseOfOtherReaders_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("last");
    const int nanometre = int(SpectralUnit::Nanometre);
    QTest::newRow("spe/HeNe.SPE") << nanometre << "781.1060" << "1083.3646";
    QTest::newRow("spe/Testfile_Single_SPE2.SPE") << int(SpectralUnit::RamanShift) << "627.1823" << "759.0392";
    QTest::newRow("spe/spestack_test.spe") << int(SpectralUnit::Pixel) << "" << "";
    QTest::newRow("spe/one_dimensional_spectrum.spe") << nanometre << "567.9382" << "831.0861";
    QTest::newRow("spe/full_sensor_image.spe") << nanometre << "-124.0735" << "140.9220";
    QTest::newRow("spe/test_multiple_rois.spe") << nanometre << "574.4960" << "925.1786";
}

void RealFilesTest::wavelengthsAreThoseOfOtherReaders()
{
    QFETCH(int, unit);
    QFETCH(QString, first);
    QFETCH(QString, last);
    const auto file = Opened(QTest::currentDataTag());
    QVERIFY(file);
    const SpectralAxis axis = file->AxisOf(0);
    QCOMPARE(int(axis.unit), unit);
    QCOMPARE(axis.IsEmpty(), first.isEmpty());
    if (axis.IsEmpty())
        return;
    QCOMPARE(axis.values.size(), file->Info().size.width());
    // The figures are wavelengths; a Raman axis counts from the laser.
    const auto wavelength = [&](double value) { return axis.unit == SpectralUnit::RamanShift ? 1 / (1 / axis.laserNm - value / 1e7) : value; };
    QCOMPARE(QString::number(wavelength(axis.values.first()), 'f', 4), first);
    QCOMPARE(QString::number(wavelength(axis.values.last()), 'f', 4), last);
}

void RealFilesTest::singleSamplesOfTheRamanSeries()
{
    const auto file = Opened("spe/blut1.SPE");
    QVERIFY(file);
    Picture picture;
    QString error;
    QVERIFY2(file->ReadFrame(4, picture, error), qPrintable(error));
    QCOMPARE(int(picture.Samples<quint16>(0)[76]), 1484);
    QVERIFY2(file->ReadFrame(1, picture, error), qPrintable(error));
    QCOMPARE(int(picture.Samples<quint16>(0)[810]), 606);
    const SpectralAxis axis = file->AxisOf(0);
    QCOMPARE(int(axis.unit), int(SpectralUnit::RamanShift));
    QCOMPARE(QString::number(axis.values[620], 'f', 3), QString("2618.027"));
}

GUARDED_TEST_MAIN(RealFilesTest)
#include "realfilestest.moc"
