// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "picturefolder.h"
#include "tiffbytes.h"
#include "tiffchain.h"

#include <QtEndian>

/// What a damaged or odd TIFF file tells the user: its name, what is wrong and where, what to do.
class BadTiffTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void aWrongTagIsToldInWords_data();
    void aWrongTagIsToldInWords();
    void aCircleOfPagesEnds();
    void morePagesThanTheFileCanHoldEnd();
    void everyTruncationIsToldOrRead();
    void damagedCompressedDataIsTold();
    void aBombIsNotUnpacked();
    void everyFlippedByteIsSurvived();
};

namespace {

QByteArray GreyFile(const TiffTags &changes, int dataBytes = 64 * 48)
{
    TiffBytes tiff;
    const quint32 data = tiff.Append(QByteArray(dataBytes, 'x'));
    TiffTags tags = TiffBytes::GreyPage(64, 48, 8, data);
    for (auto change = changes.begin(); change != changes.end(); ++change)
        tags[change.key()] = change.value();
    tiff.AppendPage(tags);
    return tiff.Bytes();
}

} // namespace

void BadTiffTest::aWrongTagIsToldInWords_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("part");
    QTest::newRow("strip beyond the end") << GreyFile({{StripOffsets, {999999}}}) << "strip 0 (3072 bytes from byte 999999) lies beyond the end";
    QTest::newRow("strip offset at 4 GB") << GreyFile({{StripOffsets, {0xfffffff0}}}) << "lies beyond the end of the file";
    QTest::newRow("strip too short") << GreyFile({{RowsPerStrip, {24}}, {StripOffsets, {8, 1544}}, {StripByteCounts, {1536, 100}}})
                                     << "strip 1 has 100 bytes and needs 1536";
    QTest::newRow("second strip missing") << GreyFile({{RowsPerStrip, {24}}, {StripByteCounts, {1536}}}) << "strip 1 has no data";
    QTest::newRow("gigantic")
        << GreyFile({{ImageWidth, {200000}}, {ImageLength, {200000}}, {RowsPerStrip, {200000}}}) << "its size, 200000 x 200000 pixels, is more than the";
    QTest::newRow("gigantic, packed")
        << GreyFile({{ImageWidth, {200000}}, {ImageLength, {200000}}, {RowsPerStrip, {200000}}, {Compression, {8}}})
        << "its size, 200000 x 200000 pixels, is more than the";
    QTest::newRow("gigantic, a strip for each row")
        << GreyFile({{ImageLength, {200000000}}, {RowsPerStrip, {1}}}) << "its size, 64 x 200000000 pixels, is more than the";
    QTest::newRow("beyond 28 bits") << GreyFile({{ImageWidth, {0xffffffff}}}) << "is beyond any picture";
    QTest::newRow("no width") << GreyFile({{ImageWidth, {0}}}) << "page 1 of 1: its description cannot be read (Computed scanline size is zero; Cannot";
    QTest::newRow("JPEG in TIFF") << GreyFile({{Compression, {7}}}) << "its compression (7) is not supported";
    QTest::newRow("complex samples") << GreyFile({{SampleFormat, {5}}}) << "its samples of 8 bits (sample format 5) are not supported";
    QTest::newRow("24-bit samples") << GreyFile({{BitsPerSample, {24}}}) << "its samples of 24 bits";
    QTest::newRow("RGB with one sample") << GreyFile({{Photometric, {2}}}) << "marked as RGB";
    QTest::newRow("CMYK") << GreyFile({{Photometric, {5}}}) << "its colours are of a kind (5)";
    QTest::newRow("no page") << QByteArray("II*\0\0\0\0\0", 8) << "it has no page";
    QTest::newRow("header only") << QByteArray("MM\0*", 4) << "it ends within its header";
    QTest::newRow("page beyond the end") << QByteArray("II*\0\xff\xff\0\0", 8) << "the description of page 1 (at byte 65535) lies beyond the end";
    QTest::newRow("BigTIFF header only") << QByteArray("II+\0\x08\0\0\0", 8) << "it ends within its header";
}

void BadTiffTest::aWrongTagIsToldInWords()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, part);
    PictureFolder folder;
    const QString error = PictureFolder::ErrorOf(folder.Write("wrong.tif", bytes));
    QVERIFY2(error.contains("\u201cwrong.tif\u201d cannot be read"), qPrintable(error));
    QVERIFY2(error.contains(part), qPrintable(error));
    QVERIFY2(error.endsWith('.'), qPrintable(error)); // the advice
}

void BadTiffTest::aCircleOfPagesEnds()
{
    TiffBytes tiff;
    const quint32 data = tiff.Append(QByteArray(12, 'x'));
    const quint32 first = tiff.AppendPage(TiffBytes::GreyPage(4, 3, 8, data));
    tiff.AppendPage(TiffBytes::GreyPage(4, 3, 8, data));
    tiff.LinkLastPage(first);
    PictureFolder folder;
    QString error;
    const auto file = OpenPicture(folder.Write("circle.tif", tiff.Bytes()), error);
    QVERIFY2(file, qPrintable(error));
    QCOMPARE(file->Info().frames, 2);
    QVERIFY2(file->Info().warning.contains("runs in a circle after page 2"), qPrintable(file->Info().warning));
    Picture picture;
    QVERIFY(file->ReadFrame(1, picture, error));
    QVERIFY(!file->ReadFrame(2, picture, error));
    QVERIFY2(error.contains("there is no frame 3 among its 2"), qPrintable(error));
}

void BadTiffTest::morePagesThanTheFileCanHoldEnd()
{
    // 3000 descriptions of 1000 tags each, which begin every 4 bytes and lie on top of each other.
    constexpr int pages = 3000;
    constexpr int tagBytes = 1000 * 12;
    QByteArray bytes("II*\0\x08\0\0\0", 8);
    bytes += QByteArray(2 + tagBytes + 4 * pages, '\0');
    for (int i = 0; i < pages; ++i) {
        const int offset = 8 + 4 * i;
        qToLittleEndian(quint16(1000), bytes.data() + offset);
        qToLittleEndian(quint32(offset + 4), bytes.data() + offset + 2 + tagBytes);
    }
    PictureFolder folder;
    QFile file(folder.Write("overlapping.tif", bytes));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const TiffChain chain = ReadTiffChain(file.handle(), file.size());
    QCOMPARE(chain.fault, QString("it names more pages than it can hold"));
    QVERIFY(chain.pages.size() * 18 <= bytes.size() + 18);
    QVERIFY(PictureFolder::ErrorOf(file.fileName()).contains("page 1 of"));
}

void BadTiffTest::everyTruncationIsToldOrRead()
{
    // The page stands behind its samples, so a cut anywhere leaves no picture.
    const QByteArray whole = GreyFile({}, 64 * 48);
    PictureFolder folder;
    for (int size = 0; size < whole.size(); size += size < 40 || size > 3000 ? 1 : 37) {
        const QString error = PictureFolder::ErrorOf(folder.Write("short.tif", whole.left(size)));
        QVERIFY2(error.contains("short.tif"), qPrintable(QString("%1 bytes: %2").arg(size).arg(error)));
    }
    QCOMPARE(PictureFolder::ErrorOf(folder.Write("short.tif", whole)), QString());
}

void BadTiffTest::damagedCompressedDataIsTold()
{
    PictureFolder folder;
    for (const quint32 compression : {5u, 8u, 32773u}) {
        TiffBytes tiff;
        const quint32 data = tiff.Append(QByteArray(600, '\x7f'));
        TiffTags tags = TiffBytes::GreyPage(64, 48, 8, data);
        tags[Compression] = {compression};
        tags[StripByteCounts] = {600};
        tiff.AppendPage(tags);
        const QString error = PictureFolder::ErrorOf(folder.Write("damaged.tif", tiff.Bytes()));
        QVERIFY2(error.contains("page 1 of 1: strip 0 cannot be decoded ("), qPrintable(error)); // and libtiff's own words
    }
}

void BadTiffTest::aBombIsNotUnpacked()
{
    // Many strips, all of them the same few compressed bytes.
    TiffBytes tiff;
    const quint32 data = tiff.Append(QByteArray(2000, 'x'));
    TiffTags tags = TiffBytes::GreyPage(30000, 30000, 16, data);
    tags[Compression] = {8};
    tags[RowsPerStrip] = {1000};
    tags[StripOffsets] = QVector<quint32>(30, data);
    tags[StripByteCounts] = QVector<quint32>(30, 2000);
    tiff.AppendPage(tags);
    PictureFolder folder;
    const QString error = PictureFolder::ErrorOf(folder.Write("bomb.tif", tiff.Bytes()));
    QVERIFY2(error.contains("its size, 30000 x 30000 pixels, is more than the"), qPrintable(error));
}

void BadTiffTest::everyFlippedByteIsSurvived()
{
    TiffBytes tiff;
    const quint32 data = tiff.Append(QByteArray(12, 'x'));
    tiff.AppendPage(TiffBytes::GreyPage(4, 3, 8, data), "ImageJ=1.53t\nimages=2\n");
    tiff.AppendPage(TiffBytes::GreyPage(4, 3, 8, data));
    PictureFolder folder;
    int unreadable = 0;
    for (int place = 0; place < tiff.Bytes().size(); ++place) {
        for (const uchar flip : {0x01, 0x80, 0xff}) {
            QByteArray bytes = tiff.Bytes();
            bytes[place] = char(uchar(bytes[place]) ^ flip);
            const QString error = PictureFolder::ErrorOf(folder.Write("flipped.tif", bytes));
            QVERIFY2(error.isEmpty() || error.contains("\u201cflipped.tif\u201d cannot be read"), qPrintable(error));
            unreadable += error.isEmpty() ? 0 : 1;
        }
    }
    QVERIFY(unreadable > 0);
}

GUARDED_TEST_MAIN(BadTiffTest)
#include "badtifftest.moc"
