// SPDX-License-Identifier: GPL-3.0-or-later
#include "createpicture.h"
#include "guardedtest.h"
#include "picturefolder.h"
#include "spectralmetadata.h"

#include <cmath>

/// A picture's calibration goes with it into its file and comes back.
class SpectralMetadataTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void aPolynomialComesBack_data();
    void aPolynomialComesBack();
    void aListComesBack_data();
    void aListComesBack();
    void theOldOneIsReplaced();
    void whatDoesNotFitIsNotUsed_data();
    void whatDoesNotFitIsNotUsed();
};

namespace {

constexpr int Width = 300;

const QString Ome = "<?xml version=\"1.0\"?><OME xmlns=\"http://www.openmicroscopy.org/Schemas/OME/2016-06\"><Image ID=\"Image:0\">"
                    "<Pixels DimensionOrder=\"XYCZT\" SizeX=\"300\" SizeY=\"2\" SizeC=\"1\" SizeZ=\"1\" SizeT=\"1\" Type=\"uint16\"/></Image>%1</OME>";
const QString Annotations = "<StructuredAnnotations><MapAnnotation ID=\"Annotation:0\"><Value><M K=\"Camera\">7</M></Value>"
                            "</MapAnnotation></StructuredAnnotations>";

/// 400.125 + 0.25 x - 1e-5 x²
SpectralRecord Record()
{
    SpectralRecord record;
    record.coefficients = {400.125, 0.25, -1e-5};
    record.width = Width;
    record.origin = "columns 100 to 399 of the sensor, binned by 1";
    return record;
}

SpectralAxis SavedAndOpened(const PictureFolder &folder, const QString &name, const QVector<MetadataEntry> &metadata)
{
    SaveOptions options;
    options.metadata = metadata;
    Picture picture(Width, 2, 1, SampleType::U16);
    std::fill_n(picture.Data(), picture.ByteCount(), uchar(1));
    QString error;
    const auto writer = CreatePicture(folder.Path(name), options, error);
    if (!writer || !writer->Append(picture, error) || !writer->Commit(error))
        qFatal("%s", qPrintable(error));
    const auto file = OpenPicture(folder.Path(name), error);
    if (!file || !file->Info().warning.isEmpty())
        qFatal("%s", qPrintable(file ? file->Info().warning : error));
    return file->AxisOf(0);
}

void AddFormats()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("description");
    QTest::newRow("FITS") << "a.fits" << QString();
    QTest::newRow("TIFF") << "a.tif" << QString();
    QTest::newRow("TIFF with a text") << "a.tif" << "taken on Monday";
    QTest::newRow("ImageJ") << "a.tif" << "ImageJ=1.53t\nunit=micron";
    QTest::newRow("OME") << "a.tif" << Ome.arg(QString());
    QTest::newRow("OME with annotations") << "a.tif" << Ome.arg(Annotations);
}

QVector<MetadataEntry> WithDescription(const QString &description, QVector<MetadataEntry> entries)
{
    if (!description.isEmpty())
        entries.prepend({"ImageDescription", description, QString(), true});
    return entries;
}

} // namespace

void SpectralMetadataTest::aPolynomialComesBack_data() { AddFormats(); }

void SpectralMetadataTest::aPolynomialComesBack()
{
    QFETCH(QString, name);
    QFETCH(QString, description);
    PictureFolder folder;
    const SpectralAxis axis = SavedAndOpened(folder, name, WithDescription(description, SpectralMetadata(Record())));
    QCOMPARE(int(axis.unit), int(SpectralUnit::Nanometre));
    QCOMPARE(axis.values.size(), Width);
    for (const int x : {0, 1, 200, 299})
        QVERIFY2(std::abs(axis.values[x] - (400.125 + 0.25 * x - 1e-5 * x * x)) < 1e-9, qPrintable(QString::number(axis.values[x])));
    QVERIFY(PictureFolder::Read(folder.Path(name)).contains("columns 100 to 399 of the sensor"));
}

void SpectralMetadataTest::aListComesBack_data() { AddFormats(); }

void SpectralMetadataTest::aListComesBack()
{
    QFETCH(QString, name);
    QFETCH(QString, description);
    SpectralAxis axis;
    axis.unit = SpectralUnit::RamanShift;
    axis.laserNm = 784.068;
    for (int x = 0; x < Width; ++x)
        axis.values << 1e7 * (1 / axis.laserNm - 1 / (790 + 0.3 * x));
    PictureFolder folder;
    const SpectralAxis back = SavedAndOpened(folder, name, WithDescription(description, SpectralMetadata(axis)));
    QCOMPARE(int(back.unit), int(SpectralUnit::RamanShift));
    QCOMPARE(back.laserNm, axis.laserNm);
    QCOMPARE(back.values.size(), Width);
    for (int x = 0; x < Width; ++x)
        QVERIFY(std::abs(back.values[x] - axis.values[x]) < 1e-7);
}

/// A description that was read holds the calibration of the picture as it was.
void SpectralMetadataTest::theOldOneIsReplaced()
{
    for (const QString &description : {QString(), QString("ImageJ=1.53t"), Ome.arg(Annotations)}) {
        PictureFolder folder;
        SavedAndOpened(folder, "a.tif", WithDescription(description, SpectralMetadata(Record())));
        QString error;
        const QVector<MetadataEntry> read = OpenPicture(folder.Path("a.tif"), error)->Info().metadata;
        QVERIFY(SavedAndOpened(folder, "b.tif", read).IsEmpty());
        SpectralRecord other = Record();
        other.coefficients = {500, 1};
        QCOMPARE(SavedAndOpened(folder, "c.tif", read + SpectralMetadata(other)).values.value(10), 510.0);
    }
}

void SpectralMetadataTest::whatDoesNotFitIsNotUsed_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("said");
    QTest::newRow("of other pictures") << "SPECWID" << "301" << false;
    QTest::newRow("of no unit") << "SPECUNIT" << "furlong" << false;
    QTest::newRow("turns") << "SPECC2" << "-0.001" << true;
    QTest::newRow("no number") << "SPECC0" << "nan" << true;
    QTest::newRow("degree beyond reason") << "SPECDEG" << "2000000000" << true;
}

void SpectralMetadataTest::whatDoesNotFitIsNotUsed()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    QFETCH(bool, said);
    QVector<MetadataEntry> entries = SpectralMetadata(Record());
    for (MetadataEntry &entry : entries) {
        if (entry.key == key)
            entry.value = value;
    }
    QString fault;
    QVERIFY(AxisOfMetadata(entries, Width, &fault).IsEmpty());
    QCOMPARE(!fault.isEmpty(), said);
}

GUARDED_TEST_MAIN(SpectralMetadataTest)
#include "spectralmetadatatest.moc"
