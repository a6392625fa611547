// SPDX-License-Identifier: GPL-3.0-or-later
#include "fitscoordinates.h"
#include "createpicture.h"
#include "guardedtest.h"
#include "openpicture.h"

#include <QTemporaryDir>

namespace {

const QSize FrameSize(100, 80);

MetadataEntry Number(const QString &key, const QString &value) { return { key, value, "a comment", false }; }

MetadataEntry Words(const QString &key, const QString &value) { return { key, value, "", true }; }

QVector<MetadataEntry> Header()
{
    return { Words("OBJECT", "a star"), Number("EXPTIME", "12.5"),
             Words("CTYPE1", "RA---TAN"), Words("CTYPE2", "DEC--TAN"), Words("CTYPE3", "TIME"),
             Number("CRPIX1", "50.5"), Number("CRPIX2", "4.05D1"), Number("CRPIX3", "1.0"), Number("CRPIX1A", "10"),
             Number("CRVAL1", "83.6"), Number("CDELT2", "-0.001"), Number("CD1_1", "0.001"), Number("PC2_1", "0"),
             Number("LONPOLE", "180."), Number("LTV1", "-16.0"), Number("LTM1_1", "0.5"), Number("A_ORDER", "2"),
             Number("B_1_1", "1E-6"), Words("DATASEC", "[1:100,1:80]"), Words("CCDSEC", "[17:116,1:80]"),
             Number("AIRMASS", "1.2") };
}

QStringList Keys(const QVector<MetadataEntry> &metadata)
{
    QStringList keys;
    for (const MetadataEntry &entry : metadata)
        keys << entry.key;
    return keys;
}

QString Value(const QVector<MetadataEntry> &metadata, const QString &key)
{
    for (const MetadataEntry &entry : metadata) {
        if (entry.key == key)
            return entry.value;
    }
    return QString();
}

} // namespace

/// A place of the sky, or a wavelength, is found at the same sample after a crop; after a turn nothing false is said.
class FitsCoordinatesTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void wholeFramesKeepAll()
    {
        const auto kept = FitsMetadataOfRegion(Header(), FrameSize, QRect(QPoint(0, 0), FrameSize));
        QCOMPARE(Keys(kept), Keys(Header()));
        QCOMPARE(Value(kept, "CRPIX2"), QString("4.05D1"));
        QCOMPARE(Value(kept, "DATASEC"), QString("[1:100,1:80]"));
    }

    void aCropMovesTheReferencePixels()
    {
        // 20 columns go at the left, and of 80 rows 5 above and 80 - 5 - 60 = 15 below, where the first row is.
        const auto kept = FitsMetadataOfRegion(Header(), FrameSize, QRect(20, 5, 70, 60));
        QCOMPARE(Value(kept, "CRPIX1").toDouble(), 30.5);
        QCOMPARE(Value(kept, "CRPIX2").toDouble(), 25.5);
        QCOMPARE(Value(kept, "CRPIX1A").toDouble(), -10.0);
        QCOMPARE(Value(kept, "LTV1").toDouble(), -36.0);
        QStringList keys = Keys(Header());
        keys.removeAll("DATASEC");
        keys.removeAll("CCDSEC");
        QCOMPARE(Keys(kept), keys);
        for (const char *key : { "CRPIX3", "CRVAL1", "CD1_1", "LTM1_1", "A_ORDER", "EXPTIME" })
            QCOMPARE(Value(kept, key), Value(Header(), key));
    }

    void aTurnTakesTheCoordinatesAway()
    {
        const auto kept = FitsMetadataOfRegion(Header(), FrameSize, std::nullopt);
        QCOMPARE(Keys(kept), QStringList({ "OBJECT", "EXPTIME", "CTYPE3", "CRPIX3", "AIRMASS" }));
    }

    void whatIsNoNumberIsLeftAlone()
    {
        const QVector<MetadataEntry> odd{ Words("CRPIX1", "middle") };
        QCOMPARE(Value(FitsMetadataOfRegion(odd, FrameSize, QRect(1, 1, 5, 5)), "CRPIX1"), QString("middle"));
    }

    /// The library takes the cards as they come out.
    void theyAreWrittenAndReadAgain()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("cropped.fits");
        SaveOptions options;
        options.metadata = FitsMetadataOfRegion(Header(), FrameSize, QRect(20, 5, 70, 60));
        QString error;
        QVERIFY2(SavePicture(path, Picture(70, 60, 1, SampleType::U16), options, error), qPrintable(error));
        const auto file = OpenPicture(path, error);
        QVERIFY2(file, qPrintable(error));
        QCOMPARE(Value(file->Info().metadata, "CRPIX1").toDouble(), 30.5);
        QCOMPARE(Value(file->Info().metadata, "CRPIX2").toDouble(), 25.5);
        QCOMPARE(Value(file->Info().metadata, "CTYPE1"), QString("RA---TAN"));
    }
};

GUARDED_TEST_MAIN(FitsCoordinatesTest)
#include "fitscoordinatestest.moc"
