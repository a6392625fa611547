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
    void thatOfAMillionPixelsComesBackWhole();
    void aListComesBack_data();
    void aListComesBack();
    void theOldOneIsReplaced();
    void oneThatNamesNoSideIsOfTheColumns();
    void aSideThatIsNoneIsSaid_data();
    void aSideThatIsNoneIsSaid();
    void whatDoesNotFitIsNotUsed_data();
    void whatDoesNotFitIsNotUsed();
};

namespace {

constexpr int Width = 300;
constexpr int Across = 2;

const QString Ome = "<?xml version=\"1.0\"?><OME xmlns=\"http://www.openmicroscopy.org/Schemas/OME/2016-06\"><Image ID=\"Image:0\">"
                    "<Pixels DimensionOrder=\"XYCZT\" SizeX=\"300\" SizeY=\"2\" SizeC=\"1\" SizeZ=\"1\" SizeT=\"1\" Type=\"uint16\"/></Image>%1</OME>";
const QString Annotations = "<StructuredAnnotations><MapAnnotation ID=\"Annotation:0\"><Value><M K=\"Camera\">7</M></Value>"
                            "</MapAnnotation></StructuredAnnotations>";

/// 400.125 + 0.25 x - 1e-5 x²
SpectralRecord Record(SpectralSide side = SpectralSide::Columns)
{
    SpectralRecord record;
    record.side = side;
    record.coefficients = {400.125, 0.25, -1e-5};
    record.width = Width;
    record.origin = "columns 100 to 399 of the sensor, binned by 1";
    return record;
}

const QSize Wide(Width, Across);

QSize SizeFor(SpectralSide side) { return side == SpectralSide::Columns ? Wide : Wide.transposed(); }

std::unique_ptr<PictureFile> Saved(const PictureFolder &folder, const QString &name,
                                   const QVector<MetadataEntry> &metadata, const QSize &size)
{
    SaveOptions options;
    options.metadata = metadata;
    Picture picture(size.width(), size.height(), 1, name.endsWith("jpg") ? SampleType::U8 : SampleType::U16);
    std::fill_n(picture.Data(), picture.ByteCount(), uchar(1));
    QString error;
    const auto writer = CreatePicture(folder.Path(name), options, error);
    if (!writer || !writer->Append(picture, error) || !writer->Commit(error))
        qFatal("%s", qPrintable(error));
    auto file = OpenPicture(folder.Path(name), error);
    if (!file)
        qFatal("%s", qPrintable(error));
    return file;
}

SpectralAxis SavedAndOpened(const PictureFolder &folder, const QString &name,
                            const QVector<MetadataEntry> &metadata, const QSize &size = Wide)
{
    const auto file = Saved(folder, name, metadata, size);
    if (!file->Info().warning.isEmpty())
        qFatal("%s", qPrintable(file->Info().warning));
    return file->AxisOf(0);
}

bool Tells(const PictureFile &file, const QString &text)
{
    const QVector<MetadataEntry> &metadata = file.Info().metadata;
    return std::any_of(metadata.begin(), metadata.end(),
                       [&](const MetadataEntry &entry) { return entry.value.contains(text); });
}

void AddFormats()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("description");
    QTest::addColumn<SpectralSide>("side");
    for (const SpectralSide side : { SpectralSide::Columns, SpectralSide::Rows }) {
        const auto add = [side](const char *format, const QString &name,
                                const QString &description = QString()) {
            QTest::addRow("%s, %s", format, side == SpectralSide::Columns ? "columns" : "rows")
                << name << description << side;
        };
        add("FITS", "a.fits");
        add("PNG", "a.png");
        add("JPEG", "a.jpg");
        add("TIFF", "a.tif");
        add("TIFF with a text", "a.tif", "taken on Monday");
        add("ImageJ", "a.tif", "ImageJ=1.53t\nunit=micron");
        add("OME", "a.tif", Ome.arg(QString()));
        add("OME with annotations", "a.tif", Ome.arg(Annotations));
    }
}

QVector<MetadataEntry> WithDescription(const QString &description, QVector<MetadataEntry> entries)
{
    if (!description.isEmpty())
        entries.prepend({"ImageDescription", description, QString(), true});
    return entries;
}

} // namespace

Q_DECLARE_METATYPE(SpectralSide)

void SpectralMetadataTest::aPolynomialComesBack_data() { AddFormats(); }

void SpectralMetadataTest::aPolynomialComesBack()
{
    QFETCH(QString, name);
    QFETCH(QString, description);
    PictureFolder folder;
    QFETCH(SpectralSide, side);
    const auto file =
        Saved(folder, name, WithDescription(description, SpectralMetadata(Record(side))), SizeFor(side));
    QCOMPARE(file->Info().warning, QString());
    const SpectralAxis axis = file->AxisOf(0);
    QCOMPARE(int(axis.unit), int(SpectralUnit::Nanometre));
    QCOMPARE(int(axis.side), int(side));
    QCOMPARE(axis.values.size(), Width);
    for (const int x : {0, 1, 200, 299})
        QVERIFY2(std::abs(axis.values[x] - (400.125 + 0.25 * x - 1e-5 * x * x)) < 1e-9, qPrintable(QString::number(axis.values[x])));
    QVERIFY(Tells(*file, "columns 100 to 399 of the sensor"));
}

/// As of a line scan's rows.
void SpectralMetadataTest::thatOfAMillionPixelsComesBackWhole()
{
    SpectralRecord record;
    record.side = SpectralSide::Rows;
    record.coefficients = { 400, 1e-4, 1e-11, 0, 0, 1e-34 };
    record.width = 1000000;
    const QVector<MetadataEntry> entries = SpectralMetadata(record);
    QString fault;
    const SpectralAxis axis = AxisOfMetadata(entries, QSize(1, record.width), &fault);
    QCOMPARE(axis.values.size(), record.width);
    // 400 + 50 + 2.5 + 3.125e-6
    QCOMPARE(axis.values.value(500000), 452.500003125);
}

void SpectralMetadataTest::aListComesBack_data() { AddFormats(); }

void SpectralMetadataTest::aListComesBack()
{
    QFETCH(QString, name);
    QFETCH(QString, description);
    QFETCH(SpectralSide, side);
    SpectralAxis axis;
    axis.side = side;
    axis.unit = SpectralUnit::RamanShift;
    axis.laserNm = 784.068;
    for (int x = 0; x < Width; ++x)
        axis.values << 1e7 * (1 / axis.laserNm - 1 / (790 + 0.3 * x));
    PictureFolder folder;
    const SpectralAxis back =
        SavedAndOpened(folder, name, WithDescription(description, SpectralMetadata(axis)), SizeFor(side));
    QCOMPARE(int(back.unit), int(SpectralUnit::RamanShift));
    QCOMPARE(int(back.side), int(side));
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

/// As the files that were written when only columns could be calibrated; it takes more than a square picture to be of the rows.
void SpectralMetadataTest::oneThatNamesNoSideIsOfTheColumns()
{
    for (const SpectralSide side : { SpectralSide::Columns, SpectralSide::Rows }) {
        QVector<MetadataEntry> entries = SpectralMetadata(Record(side));
        QString fault;
        QCOMPARE(int(AxisOfMetadata(entries, QSize(Width, Width), &fault).side), int(side));
        entries.erase(std::remove_if(entries.begin(), entries.end(),
                                     [](const MetadataEntry &entry) { return entry.key == "SPECSIDE"; }),
                      entries.end());
        const SpectralAxis axis = AxisOfMetadata(entries, QSize(Width, Width), &fault);
        QCOMPARE(axis.values.size(), Width);
        QCOMPARE(int(axis.side), int(SpectralSide::Columns));
        QVERIFY(AxisOfMetadata(entries, QSize(Across, Width), &fault).IsEmpty());
        QCOMPARE(fault, QString());
    }
}

void SpectralMetadataTest::aSideThatIsNoneIsSaid_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("said");
    for (const char *name : { "a.fits", "a.png", "a.tif" })
        QTest::newRow(name) << name << "diagonal"
                            << "\u201cdiagonal\u201d (SPECSIDE)";
    QTest::newRow("in other letters") << "a.tif"
                                      << "Rows"
                                      << "\u201cRows\u201d (SPECSIDE)";
    QTest::newRow("of no end") << "a.tif" << QString(100000, 'x')
                               << QString("\u201c%1\u201d (SPECSIDE)").arg(QString(20, 'x'));
}

void SpectralMetadataTest::aSideThatIsNoneIsSaid()
{
    QFETCH(QString, name);
    QFETCH(QString, value);
    QFETCH(QString, said);
    QVector<MetadataEntry> entries = SpectralMetadata(Record());
    for (MetadataEntry &entry : entries) {
        if (entry.key == "SPECSIDE")
            entry.value = value;
    }
    PictureFolder folder;
    const auto file = Saved(folder, name, entries, Wide);
    QVERIFY(file->AxisOf(0).IsEmpty());
    QVERIFY2(file->Info().warning.contains(said) && file->Info().warning.contains(name),
             qPrintable(file->Info().warning));
}

void SpectralMetadataTest::whatDoesNotFitIsNotUsed_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("said");
    QTest::newRow("of other pictures") << "SPECWID" << "301" << false;
    QTest::newRow("of the rows") << "SPECSIDE"
                                 << "rows" << false;
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
    QVERIFY(AxisOfMetadata(entries, Wide, &fault).IsEmpty());
    QCOMPARE(!fault.isEmpty(), said);
}

GUARDED_TEST_MAIN(SpectralMetadataTest)
#include "spectralmetadatatest.moc"
