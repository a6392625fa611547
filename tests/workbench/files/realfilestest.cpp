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

GUARDED_TEST_MAIN(RealFilesTest)
#include "realfilestest.moc"
