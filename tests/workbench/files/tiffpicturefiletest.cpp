// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "picturefolder.h"
#include "tiffbytes.h"

#include <QtEndian>

class TiffPictureFileTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void packedSamplesGetAWholeTypeOfTheirOwn_data();
    void packedSamplesGetAWholeTypeOfTheirOwn();
    void thumbnailsAndMasksAreNoFrames();
    void pagesMayDiffer();
    void stripsMayLieAnywhere_data();
    void stripsMayLieAnywhere();
    void whatLiesAsItIsShownIsToldRowByRow_data();
    void whatLiesAsItIsShownIsToldRowByRow();
    void greyRampPaletteStaysGrey();
    void missingPhotometricIsBlackZero();
    void framesAreToldByTheStackTheyAreOf_data();
    void framesAreToldByTheStackTheyAreOf();
    void aStackCutShortShowsWhatIsThere();
    void aFileThatIsDeletedWhileOpenIsStillRead();
    void aStackOfManyGigabytesOpensAtOnce();
};

namespace {

QByteArray Ramp(int size)
{
    QByteArray bytes(size, '\0');
    for (int i = 0; i < size; ++i)
        bytes[i] = char(i);
    return bytes;
}

/// Opens and reads frame `index`, or ends the test function with the reason.
std::unique_ptr<PictureFile> Read(const QString &path, int index, Picture &picture)
{
    QString error;
    std::unique_ptr<PictureFile> file = OpenPicture(path, error);
    if (!file || !file->ReadFrame(index, picture, error))
        QTest::qFail(qPrintable(error), __FILE__, __LINE__);
    return file;
}

} // namespace

/// Which rows were told, and the samples of those as they were then.
class ToldRows : public FrameRows
{
public:
    void Begin(const Picture &frame) override
    {
        m_frame = &frame;
        size = frame.Size();
    }

    void Take(int from, int to) override
    {
        for (int y = from; y < to; ++y)
            rows[y] += QByteArray(reinterpret_cast<const char *>(m_frame->Row(y)), int(m_frame->BytesPerRow()));
    }

    QSize size;
    QMap<int, QByteArray> rows;

private:
    const Picture *m_frame = nullptr;
};

void TiffPictureFileTest::whatLiesAsItIsShownIsToldRowByRow_data()
{
    QTest::addColumn<int>("bits");
    QTest::addColumn<bool>("bigEndian");
    QTest::addColumn<bool>("isTold");
    QTest::newRow("8 bit") << 8 << false << true;
    QTest::newRow("16 bit") << 16 << false << true;
    QTest::newRow("to be turned around") << 16 << true << false;
    QTest::newRow("packed") << 4 << false << false;
}

void TiffPictureFileTest::whatLiesAsItIsShownIsToldRowByRow()
{
    QFETCH(int, bits);
    QFETCH(bool, bigEndian);
    QFETCH(bool, isTold);
    TiffBytes tiff(bigEndian);
    const quint32 data = tiff.Append(Ramp(24));
    tiff.AppendPage(TiffBytes::GreyPage(4, 3, bits, data));
    PictureFolder folder;
    QString error;
    const auto file = OpenPicture(folder.Write("rows.tif", tiff.Bytes()), error);
    QVERIFY2(file, qPrintable(error));
    Picture picture;
    ToldRows told;
    QVERIFY2(file->ReadFrame(0, picture, error, &told), qPrintable(error));
    QCOMPARE(told.size, isTold ? QSize(4, 3) : QSize());
    QCOMPARE(told.rows.keys(), isTold ? QList<int>({0, 1, 2}) : QList<int>());
    const int rowBytes = bits / 2;
    for (int y = 0; y < told.rows.size(); ++y)
        QCOMPARE(told.rows.value(y), Ramp(24).mid(y * rowBytes, rowBytes));
}

void TiffPictureFileTest::packedSamplesGetAWholeTypeOfTheirOwn_data()
{
    QTest::addColumn<int>("bits");
    QTest::addColumn<QByteArray>("row");
    QTest::addColumn<QVector<double>>("samples");
    // The highest bit comes first; 5 samples to a row, which is filled up to a whole byte.
    QTest::newRow("1 bit") << 1 << QByteArray::fromHex("a8") << QVector<double>{1, 0, 1, 0, 1};
    QTest::newRow("4 bits") << 4 << QByteArray::fromHex("12345f") << QVector<double>{1, 2, 3, 4, 5};
    QTest::newRow("10 bits") << 10 << QByteArray::fromHex("ffc0100401fc00") << QVector<double>{1023, 1, 1, 1, 1008};
    QTest::newRow("12 bits") << 12 << QByteArray::fromHex("123456789abcdef0") << QVector<double>{0x123, 0x456, 0x789, 0xabc, 0xdef};
}

void TiffPictureFileTest::packedSamplesGetAWholeTypeOfTheirOwn()
{
    QFETCH(int, bits);
    QFETCH(QByteArray, row);
    QFETCH(QVector<double>, samples);
    PictureFolder folder;
    for (const bool bigEndian : {false, true}) {
        TiffBytes tiff(bigEndian);
        const quint32 data = tiff.Append(row + row);
        tiff.AppendPage(TiffBytes::GreyPage(5, 2, bits, data));
        Picture picture;
        Read(folder.Write("packed.tif", tiff.Bytes()), 0, picture);
        QCOMPARE(picture.Type(), bits <= 8 ? SampleType::U8 : SampleType::U16);
        QCOMPARE(SamplesOf(picture), samples + samples);
    }
}

void TiffPictureFileTest::thumbnailsAndMasksAreNoFrames()
{
    TiffBytes tiff;
    const quint32 data = tiff.Append(Ramp(12));
    for (const quint32 kind : {1u, 0u, 4u, 2u}) { // thumbnail, whole, mask, one page of several
        TiffTags tags = TiffBytes::GreyPage(4, 3, 8, data);
        tags[NewSubfileType] = {kind};
        tiff.AppendPage(tags);
    }
    PictureFolder folder;
    Picture picture;
    const auto file = Read(folder.Write("kinds.tif", tiff.Bytes()), 1, picture);
    QCOMPARE(file->Info().frames, 2);
    QVERIFY(file->Info().warning.isEmpty());
}

void TiffPictureFileTest::pagesMayDiffer()
{
    TiffBytes tiff;
    const quint32 data = tiff.Append(Ramp(24));
    tiff.AppendPage(TiffBytes::GreyPage(4, 3, 8, data));
    tiff.AppendPage(TiffBytes::GreyPage(2, 2, 16, data + 2));
    PictureFolder folder;
    Picture picture;
    const auto file = Read(folder.Write("differ.tif", tiff.Bytes()), 1, picture);
    QCOMPARE(file->Info().size, QSize(4, 3));
    QCOMPARE(file->Info().sampleType, SampleType::U8);
    QCOMPARE(picture.Size(), QSize(2, 2));
    QCOMPARE(SamplesOf(picture), QVector<double>({0x0302, 0x0504, 0x0706, 0x0908}));
    QString error;
    QVERIFY(file->ReadFrame(0, picture, error));
    QCOMPARE(SamplesOf(picture).mid(0, 3), QVector<double>({0, 1, 2}));
}

void TiffPictureFileTest::stripsMayLieAnywhere_data()
{
    QTest::addColumn<QVector<quint32>>("places");
    QTest::addColumn<quint32>("byteCount");
    QTest::newRow("one behind the other") << QVector<quint32>{0, 4, 8} << 4u;
    QTest::newRow("at an odd place") << QVector<quint32>{1, 5, 9} << 4u;
    QTest::newRow("with gaps") << QVector<quint32>{0, 6, 20} << 4u;
    QTest::newRow("backwards") << QVector<quint32>{8, 4, 0} << 4u;
    QTest::newRow("longer than their rows") << QVector<quint32>{0, 10, 20} << 10u;
    QTest::newRow("all the same") << QVector<quint32>{4, 4, 4} << 4u;
}

void TiffPictureFileTest::stripsMayLieAnywhere()
{
    QFETCH(QVector<quint32>, places);
    QFETCH(quint32, byteCount);
    for (const bool bigEndian : {false, true}) {
        TiffBytes tiff(bigEndian);
        const quint32 data = tiff.Append(Ramp(40));
        TiffTags tags = TiffBytes::GreyPage(2, 3, 16, data);
        tags[RowsPerStrip] = {1};
        tags[StripOffsets].clear();
        QVector<double> samples;
        for (const quint32 place : qAsConst(places)) {
            tags[StripOffsets] << data + place;
            for (quint32 byte = place; byte < place + 4; byte += 2) // the byte at a place is its number
                samples << (bigEndian ? byte * 256 + byte + 1 : (byte + 1) * 256 + byte);
        }
        tags[StripByteCounts] = {byteCount, byteCount, byteCount};
        tiff.AppendPage(tags);
        PictureFolder folder;
        Picture picture;
        Read(folder.Write("strips.tif", tiff.Bytes()), 0, picture);
        QCOMPARE(SamplesOf(picture), samples);
    }
}

void TiffPictureFileTest::greyRampPaletteStaysGrey()
{
    constexpr quint16 colourMap = 320;
    TiffBytes tiff;
    const quint32 data = tiff.Append(Ramp(12));
    TiffTags tags = TiffBytes::GreyPage(4, 3, 8, data);
    tags[Photometric] = {3};
    for (int channel = 0; channel < 3; ++channel) {
        for (quint32 i = 0; i < 256; ++i)
            tags[colourMap] << i * 257;
    }
    tiff.AppendPage(tags);
    PictureFolder folder;
    Picture picture;
    Read(folder.Write("ramp.tif", tiff.Bytes()), 0, picture);
    QCOMPARE(picture.Channels(), 1);
    QCOMPARE(SamplesOf(picture).last(), 11.0);
}

void TiffPictureFileTest::missingPhotometricIsBlackZero()
{
    TiffBytes tiff;
    const quint32 data = tiff.Append(Ramp(12));
    TiffTags tags = TiffBytes::GreyPage(4, 3, 8, data);
    tags.remove(Photometric);
    tiff.AppendPage(tags);
    PictureFolder folder;
    Picture picture;
    Read(folder.Write("bare.tif", tiff.Bytes()), 0, picture);
    QCOMPARE(SamplesOf(picture).mid(0, 3), QVector<double>({0, 1, 2}));
}

void TiffPictureFileTest::framesAreToldByTheStackTheyAreOf_data()
{
    QTest::addColumn<QByteArray>("description");
    QTest::addColumn<int>("frames");
    QTest::addColumn<QString>("last");
    const QByteArray ome = "<?xml version=\"1.0\"?><OME xmlns=\"http://www.openmicroscopy.org/Schemas/OME/2016-06\"><Image>"
                           "<Pixels DimensionOrder=\"XYZCT\" SizeC=\"2\" SizeZ=\"3\" SizeT=\"1\" Type=\"uint8\">"
                           "<Channel Name=\"DAPI\"/><Channel Name=\"GFP\"/></Pixels></Image></OME>";
    QTest::newRow("ImageJ: channels first") << QByteArray("ImageJ=1.53t\nimages=6\nchannels=3\nframes=2\n") << 6
                                            << "channel 3 of 3, time 2 of 2";
    QTest::newRow("ImageJ: other number of frames") << QByteArray("ImageJ=1.53t\nimages=6\nchannels=3\nframes=2\n") << 5 << QString();
    QTest::newRow("OME: order and names") << ome << 6 << "slice 3 of 3, channel 2 of 2 (GFP)";
    QTest::newRow("OME: other number of frames") << ome << 4 << QString();
    QTest::newRow("no stack") << QByteArray("cells") << 3 << QString();
}

void TiffPictureFileTest::framesAreToldByTheStackTheyAreOf()
{
    QFETCH(QByteArray, description);
    QFETCH(int, frames);
    QFETCH(QString, last);
    TiffBytes tiff;
    const quint32 data = tiff.Append(Ramp(12));
    for (int i = 0; i < frames; ++i)
        tiff.AppendPage(TiffBytes::GreyPage(4, 3, 8, data), i == 0 ? description : QByteArray());
    PictureFolder folder;
    Picture picture;
    const auto file = Read(folder.Write("stack.tif", tiff.Bytes()), frames - 1, picture);
    QCOMPARE(file->FrameDescription(frames - 1), last);
}

void TiffPictureFileTest::aStackCutShortShowsWhatIsThere()
{
    TiffBytes tiff;
    quint32 third = 0;
    for (int i = 0; i < 4; ++i) {
        const quint32 data = tiff.Append(Ramp(12));
        const quint32 page = tiff.AppendPage(TiffBytes::GreyPage(4, 3, 8, data));
        third = i == 2 ? page : third;
    }
    PictureFolder folder;
    Picture picture;
    const auto file = Read(folder.Write("cut.tif", tiff.Bytes().left(int(third) + 5)), 1, picture);
    QCOMPARE(file->Info().frames, 2);
    QVERIFY2(file->Info().warning.contains("cut.tif") && file->Info().warning.contains("first 2 pages"), qPrintable(file->Info().warning));

    TiffBytes one;
    const quint32 data = one.Append(Ramp(12));
    one.AppendPage(TiffBytes::GreyPage(4, 3, 8, data), "ImageJ=1.53t\nimages=9\n");
    const auto single = Read(folder.Write("single.tif", one.Bytes()), 0, picture);
    QVERIFY2(single->Info().warning.contains("of its 9 frames"), qPrintable(single->Info().warning));
}

void TiffPictureFileTest::aFileThatIsDeletedWhileOpenIsStillRead()
{
    TiffBytes tiff;
    const quint32 data = tiff.Append(Ramp(12));
    tiff.AppendPage(TiffBytes::GreyPage(4, 3, 8, data));
    tiff.AppendPage(TiffBytes::GreyPage(4, 3, 8, data));
    PictureFolder folder;
    const QString path = folder.Write("gone.tif", tiff.Bytes());
    Picture picture;
    const auto file = Read(path, 0, picture);
    QVERIFY(QFile::remove(path));
    QString error;
    QVERIFY2(file->ReadFrame(1, picture, error), qPrintable(error));
    QCOMPARE(SamplesOf(picture).last(), 11.0);

    const QString cut = folder.Write("cut.tif", tiff.Bytes());
    const auto other = Read(cut, 0, picture);
    QVERIFY(QFile::resize(cut, 10));
    QVERIFY(!other->ReadFrame(1, picture, error));
    QVERIFY2(error.contains("cut.tif"), qPrintable(error));
}

void TiffPictureFileTest::aStackOfManyGigabytesOpensAtOnce()
{
    // Frames of 2048 x 2048 samples of 16 bit behind one description, as a file with holes.
    constexpr int frames = 700;
    constexpr qint64 frameBytes = 2048 * 2048 * 2;
    TiffBytes tiff(true);
    tiff.AppendPage(TiffBytes::GreyPage(2048, 2048, 16, 4096), "ImageJ=1.53t\nimages=700\nslices=700\n");
    PictureFolder folder;
    const QString path = folder.Write("large.tif", tiff.Bytes());
    QFile writer(path);
    QVERIFY(writer.open(QIODevice::ReadWrite));
    QVERIFY(writer.resize(4096 + frames * frameBytes));
    writer.seek(4096 + (frames - 1) * frameBytes);
    writer.write(QByteArray::fromHex("beef"));
    writer.close();

    Picture picture;
    const auto file = Read(path, frames - 1, picture);
    QCOMPARE(file->Info().frames, frames);
    QCOMPARE(file->FrameDescription(frames - 1), QString("slice 700 of 700"));
    QCOMPARE(int(picture.Samples<quint16>(0)[0]), 0xbeef);
}

GUARDED_TEST_MAIN(TiffPictureFileTest)
#include "tiffpicturefiletest.moc"
