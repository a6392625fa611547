// SPDX-License-Identifier: GPL-3.0-or-later
#include "fitsbytes.h"
#include "guardedtest.h"
#include "picturefolder.h"

#include <cmath>

class FitsPictureFileTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void integersStayIntegersWithTheUsualOffset_data();
    void integersStayIntegersWithTheUsualOffset();
    void firstRowOfTheFileIsTheBottom();
    void planesOfACubeAreFrames();
    void aSpectrumIsAPictureOfOneRow();
    void undefinedIntegersBecomeNaNWhenScaled();
    void floatsKeepEveryBit();
    void cardsAreKeptButThoseOfTheStorage();
    void aWrongHeaderIsToldInWords_data();
    void aWrongHeaderIsToldInWords();
    void aCubeCutShortShowsWhatIsThere();
    void everyTruncationIsToldOrRead();
    void everyFlippedByteIsSurvived();
};

void FitsPictureFileTest::integersStayIntegersWithTheUsualOffset_data()
{
    QTest::addColumn<int>("bitpix");
    QTest::addColumn<QByteArray>("zero");
    QTest::addColumn<QByteArray>("scale");
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<int>("type");
    QTest::addColumn<QVector<double>>("samples");
    const auto row = [](const char *name, int bitpix, const char *zero, const char *scale, const char *hex, SampleType type, QVector<double> samples) {
        QTest::newRow(name) << bitpix << QByteArray(zero) << QByteArray(scale) << QByteArray::fromHex(hex) << int(type) << samples;
    };
    row("8 bit", 8, "", "", "00ff", SampleType::U8, {0, 255});
    row("8 bit signed", 8, "-128", "", "00ff", SampleType::S8, {-128, 127});
    row("16 bit", 16, "", "", "8000fffe", SampleType::S16, {-32768, -2});
    row("16 bit unsigned", 16, "32768", "1", "80007fff", SampleType::U16, {0, 65535});
    row("16 bit, other offset", 16, "100", "1", "8000fffe", SampleType::F32, {-32668, 98});
    row("16 bit, scaled", 16, "32768", "0.5", "80007fff", SampleType::F32, {16384, 49151.5});
    row("32 bit", 32, "", "", "80000000fffffffe", SampleType::S32, {-2147483648.0, -2});
    row("32 bit unsigned", 32, "2147483648", "", "800000007fffffff", SampleType::U32, {0, 4294967295.0});
    row("32 bit, scaled", 32, "1", "2", "7fffffff00000001", SampleType::F64, {4294967295.0, 3});
    row("float", -32, "", "", "3fc00000c0000000", SampleType::F32, {1.5, -2});
    row("double", -64, "", "", "3ff8000000000000c000000000000000", SampleType::F64, {1.5, -2});
    row("64 bit", 64, "", "", "0000000000000007ffffffffffffffff", SampleType::F64, {7, -1});
}

void FitsPictureFileTest::integersStayIntegersWithTheUsualOffset()
{
    QFETCH(int, bitpix);
    QFETCH(QByteArray, zero);
    QFETCH(QByteArray, scale);
    QFETCH(QByteArray, data);
    QFETCH(int, type);
    QFETCH(QVector<double>, samples);
    QList<QByteArray> cards = FitsPictureCards(bitpix, {2, 1});
    if (!zero.isEmpty())
        cards << "BZERO   = " + zero.rightJustified(20);
    if (!scale.isEmpty())
        cards << "BSCALE  = " + scale.rightJustified(20);
    PictureFolder folder;
    QString error;
    const auto file = OpenPicture(folder.Write("typed.fits", FitsHeader(cards) + FitsBlocks(data)), error);
    QVERIFY2(file, qPrintable(error));
    Picture picture;
    QVERIFY2(file->ReadFrame(0, picture, error), qPrintable(error));
    QCOMPARE(int(file->Info().sampleType), type);
    QCOMPARE(int(picture.Type()), type);
    QCOMPARE(SamplesOf(picture), samples);
}

void FitsPictureFileTest::firstRowOfTheFileIsTheBottom()
{
    PictureFolder folder;
    QString error;
    const auto file = OpenPicture(folder.Write("rows.fits", FitsHeader(FitsPictureCards(8, {2, 3})) + FitsBlocks("\1\2\3\4\5\6")), error);
    QVERIFY2(file, qPrintable(error));
    Picture picture;
    QVERIFY(file->ReadFrame(0, picture, error));
    QCOMPARE(SamplesOf(picture), QVector<double>({5, 6, 3, 4, 1, 2}));
}

void FitsPictureFileTest::planesOfACubeAreFrames()
{
    QByteArray data;
    for (char i = 0; i < 24; ++i)
        data += i;
    PictureFolder folder;
    QString error;
    const auto file = OpenPicture(folder.Write("cube.fits", FitsHeader(FitsPictureCards(8, {2, 2, 3, 2})) + FitsBlocks(data)), error);
    QVERIFY2(file, qPrintable(error));
    QCOMPARE(file->Info().frames, 6);
    Picture picture;
    QVERIFY(file->ReadFrame(5, picture, error));
    QCOMPARE(SamplesOf(picture), QVector<double>({22, 23, 20, 21}));
}

void FitsPictureFileTest::aSpectrumIsAPictureOfOneRow()
{
    PictureFolder folder;
    QString error;
    const auto file = OpenPicture(folder.Write("line.fits", FitsHeader(FitsPictureCards(8, {4})) + FitsBlocks("\1\2\3\4")), error);
    QVERIFY2(file, qPrintable(error));
    QCOMPARE(file->Info().size, QSize(4, 1));
    Picture picture;
    QVERIFY(file->ReadFrame(0, picture, error));
    QCOMPARE(SamplesOf(picture), QVector<double>({1, 2, 3, 4}));
}

void FitsPictureFileTest::undefinedIntegersBecomeNaNWhenScaled()
{
    const QList<QByteArray> cards = FitsPictureCards(16, {2, 1})
        << "BSCALE  =                  0.5" << "BLANK   =               -32768";
    PictureFolder folder;
    QString error;
    const auto file = OpenPicture(folder.Write("blank.fits", FitsHeader(cards) + FitsBlocks(QByteArray::fromHex("80000004"))), error);
    QVERIFY2(file, qPrintable(error));
    Picture picture;
    QVERIFY(file->ReadFrame(0, picture, error));
    QVERIFY(std::isnan(picture.Samples<float>(0)[0]));
    QCOMPARE(picture.Samples<float>(0)[1], 2.0f);
}

void FitsPictureFileTest::floatsKeepEveryBit()
{
    // A NaN with a payload, an infinity, the smallest number there is, minus zero.
    const QByteArray data = QByteArray::fromHex("7fc01234ff8000000000000180000000");
    PictureFolder folder;
    QString error;
    const auto file = OpenPicture(folder.Write("bits.fits", FitsHeader(FitsPictureCards(-32, {4, 1})) + FitsBlocks(data)), error);
    QVERIFY2(file, qPrintable(error));
    Picture picture;
    QVERIFY(file->ReadFrame(0, picture, error));
    const quint32 bits[] = {0x7fc01234, 0xff800000, 0x00000001, 0x80000000};
    for (int i = 0; i < 4; ++i)
        QCOMPARE(reinterpret_cast<const quint32 *>(picture.Data())[i], bits[i]);
}

void FitsPictureFileTest::cardsAreKeptButThoseOfTheStorage()
{
    const QList<QByteArray> cards = FitsPictureCards(16, {2, 1})
        << "BZERO   =                32768" << "EXPTIME =                 12.5 / seconds" << "OBJECT  = 'it''s   '           / target"
        << "HISTORY flat field divided" << "CHECKSUM= 'abcdefghijklmnop'";
    PictureFolder folder;
    QString error;
    const auto file = OpenPicture(folder.Write("cards.fits", FitsHeader(cards) + FitsBlocks(QByteArray(4, '\0'))), error);
    QVERIFY2(file, qPrintable(error));
    const QVector<MetadataEntry> &metadata = file->Info().metadata;
    QCOMPARE(metadata.size(), 3);
    QCOMPARE(metadata[0].key + '|' + metadata[0].value + '|' + metadata[0].comment, QString("EXPTIME|12.5|seconds"));
    QVERIFY(!metadata[0].isText);
    QCOMPARE(metadata[1].key + '|' + metadata[1].value + '|' + metadata[1].comment, QString("OBJECT|it's|target"));
    QVERIFY(metadata[1].isText);
    QCOMPARE(metadata[2].key + '|' + metadata[2].value, QString("HISTORY|flat field divided"));
}

void FitsPictureFileTest::aWrongHeaderIsToldInWords_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("part");
    const QByteArray data(2880, '\0');
    const QList<QByteArray> tileCards{"XTENSION= 'BINTABLE'", "BITPIX  =                    8", "NAXIS   =                    2",
                                      "NAXIS1  =                    8", "NAXIS2  =                    1", "PCOUNT  =                    8",
                                      "GCOUNT  =                    1", "TFIELDS =                    1", "TTYPE1  = 'COMPRESSED_DATA'",
                                      "TFORM1  = '1PB(8)'", "ZIMAGE  =                    T", "ZCMPTYPE= 'RICE_1'",
                                      "ZBITPIX =                   16", "ZNAXIS  =                    2", "ZNAXIS1 =               100000",
                                      "ZNAXIS2 =               100000", "ZTILE1  =               100000", "ZTILE2  =               100000",
                                      "ZNAME1  = 'BLOCKSIZE'", "ZVAL1   =                   32", "ZNAME2  = 'BYTEPIX'", "ZVAL2   =                    2"};
    const QByteArray noPicture = FitsHeader({"SIMPLE  =                    T", "BITPIX  =                    8", "NAXIS   =                    0", "EXTEND  =                    T"});
    QTest::newRow("gigantic") << FitsHeader(FitsPictureCards(16, {200000, 200000})) + data
                              << "a frame of 200000 x 200000 pixels takes 80000000000 bytes, but the file has only 2880 after its header";
    QTest::newRow("beyond numbers") << FitsHeader(FitsPictureCards(16, {4000000000, 4000000000})) + data << "cannot be read";
    QTest::newRow("too many bits") << FitsHeader(FitsPictureCards(17, {2, 2})) + data << "cannot be read";
    QTest::newRow("negative size") << FitsHeader(FitsPictureCards(16, {-2, 2})) + data << "cannot be read";
    QTest::newRow("no data") << FitsHeader(FitsPictureCards(8, {2, 2})) << "but the file has only 0 after its header";
    QTest::newRow("no picture") << noPicture << "there is no picture in it";
    QTest::newRow("compressed, gigantic") << noPicture + FitsHeader(tileCards) + data << "its size, 100000 x 100000 pixels in 1 frames, is more than";
    QTest::newRow("magic only") << QByteArray("SIMPLE  =") << "the header that begins at byte 0 has no end";
    QTest::newRow("header without end") << FitsHeader(FitsPictureCards(8, {2, 2})).left(800) << "cannot be read";
}

void FitsPictureFileTest::aWrongHeaderIsToldInWords()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, part);
    PictureFolder folder;
    const QString error = PictureFolder::ErrorOf(folder.Write("wrong.fits", bytes));
    QVERIFY2(error.contains("\u201cwrong.fits\u201d cannot be read"), qPrintable(error));
    QVERIFY2(error.contains(part), qPrintable(error));
    QVERIFY2(error.endsWith('.'), qPrintable(error)); // the advice
}

void FitsPictureFileTest::aCubeCutShortShowsWhatIsThere()
{
    PictureFolder folder;
    const QByteArray bytes = FitsHeader(FitsPictureCards(8, {100, 100, 5})) + QByteArray(25000, 'x');
    QString error;
    const auto file = OpenPicture(folder.Write("cut.fits", bytes), error);
    QVERIFY2(file, qPrintable(error));
    QCOMPARE(file->Info().frames, 2);
    QVERIFY2(file->Info().warning.contains("only the first 2 of its 5 frames are there"), qPrintable(file->Info().warning));
    Picture picture;
    QVERIFY2(file->ReadFrame(1, picture, error), qPrintable(error));
}

void FitsPictureFileTest::everyTruncationIsToldOrRead()
{
    // The filling of the last block is not needed.
    const QByteArray whole = FitsHeader(FitsPictureCards(8, {100, 100})) + QByteArray(10000, 'x');
    PictureFolder folder;
    for (int size = 0; size < whole.size(); size += 61) {
        const QString error = PictureFolder::ErrorOf(folder.Write("short.fits", whole.left(size)));
        QVERIFY2(error.contains("short.fits"), qPrintable(QString("%1 bytes: %2").arg(size).arg(error)));
    }
    QCOMPARE(PictureFolder::ErrorOf(folder.Write("short.fits", whole)), QString());
}

void FitsPictureFileTest::everyFlippedByteIsSurvived()
{
    const QList<QByteArray> cards = FitsPictureCards(16, {3, 2}) << "BZERO   =                32768" << "HISTORY flat field";
    const QByteArray whole = FitsHeader(cards) + FitsBlocks(QByteArray(12, 'x'));
    PictureFolder folder;
    int unreadable = 0;
    for (int place = 0; place < cards.size() * 80; ++place) {
        for (const uchar flip : {0x01, 0x10, 0x80}) {
            QByteArray bytes = whole;
            bytes[place] = char(uchar(bytes[place]) ^ flip);
            const QString error = PictureFolder::ErrorOf(folder.Write("flipped.fits", bytes));
            QVERIFY2(error.isEmpty() || error.contains("\u201cflipped.fits\u201d cannot be read"), qPrintable(error));
            unreadable += error.isEmpty() ? 0 : 1;
        }
    }
    QVERIFY(unreadable > 0);
}

GUARDED_TEST_MAIN(FitsPictureFileTest)
#include "fitspicturefiletest.moc"
