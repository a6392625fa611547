// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "picturefolder.h"
#include "spebytes.h"

#include <cmath>

/// Spectrum files of versions 2 and 3: samples, frames, regions, wavelengths, and what damaged ones tell.
class SpePictureFileTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void everyKindOfSampleIsRead_data();
    void everyKindOfSampleIsRead();
    void framesFollowEachOther();
    void coefficientsBeyondTheOrderAreLeftOut();
    void aRamanAxisCountsFromTheLaser();
    void withoutAValidCalibrationThereIsNoAxis();
    void anAxisThatTurnsIsSaidAndLeftOut_data();
    void anAxisThatTurnsIsSaidAndLeftOut();
    void regionsAreFramesOfTheirOwn();
    void regionsInOneRectangleAreSaid_data();
    void regionsInOneRectangleAreSaid();
    void aBinnedColumnHasTheMeanOfItsWavelengths();
    void everythingThatIsWrongIsTold();
    void factsAreTold();
    void fewerFramesThanPromisedAreTold();
    void noNumberOfFramesMeansThoseThatAreThere();
    void aWrongFileIsToldInWords_data();
    void aWrongFileIsToldInWords();
    void aLostFooterLeavesThePlainSamples_data();
    void aLostFooterLeavesThePlainSamples();
    void everyTruncationIsToldOrRead();
    void everyFlippedByteIsSurvived();
};

namespace {

std::unique_ptr<PictureFile> Opened(const PictureFolder &folder, const QByteArray &bytes)
{
    QString error;
    auto file = OpenPicture(folder.Write("spectrum.spe", bytes), error);
    if (!file)
        QTest::qFail(qPrintable(error), __FILE__, __LINE__);
    return file;
}

QVector<double> Frame(PictureFile &file, int index)
{
    Picture picture;
    QString error;
    if (!file.ReadFrame(index, picture, error)) {
        QTest::qFail(qPrintable(error), __FILE__, __LINE__);
        return {};
    }
    return SamplesOf(picture);
}

/// Two regions, 3 x 1 and 2 x 2 (binned 2 x 1), two frames with 4 bytes of other data behind each.
QByteArray TwoRegions(const QByteArray &replace = QByteArray(), const QByteArray &by = QByteArray())
{
    SpeBytes spe(0, 0, 3, 2, 3.0F);
    spe.AppendRamp(7, 10).Append("meta").AppendRamp(7, 20).Append("meta");
    QByteArray xml =
        "<SpeFormat version=\"3.0\" xmlns=\"urn:spe\"><DataFormat>"
        "<DataBlock type=\"Frame\" count=\"2\" pixelFormat=\"MonochromeUnsigned16\" size=\"14\" stride=\"18\" calibrations=\"1\">"
        "<DataBlock type=\"Region\" width=\"3\" height=\"1\" size=\"6\" stride=\"6\" calibrations=\"2\"/>"
        "<DataBlock type=\"Region\" width=\"2\" height=\"2\" size=\"8\" stride=\"8\" calibrations=\"3\"/>"
        "</DataBlock></DataFormat><Calibrations>"
        "<WavelengthMapping id=\"1\"><Wavelength>500,501,503,506,510,515</Wavelength></WavelengthMapping>"
        "<SensorMapping id=\"2\" x=\"1\" y=\"0\" width=\"3\" height=\"1\" xBinning=\"1\" yBinning=\"1\"/>"
        "<SensorMapping id=\"3\" x=\"2\" y=\"5\" width=\"4\" height=\"2\" xBinning=\"2\" yBinning=\"1\"/>"
        "</Calibrations></SpeFormat>";
    if (!replace.isEmpty())
        xml.replace(replace, by);
    return spe.AppendFooter(xml).Bytes();
}

} // namespace

void SpePictureFileTest::everyKindOfSampleIsRead_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("sample");
    QTest::addColumn<int>("type");
    QTest::addColumn<double>("value");
    QTest::newRow("float") << 0 << QByteArray::fromHex("0000c0bf") << int(SampleType::F32) << -1.5;
    QTest::newRow("signed 32") << 1 << QByteArray::fromHex("feffffff") << int(SampleType::S32) << -2.0;
    QTest::newRow("signed 16") << 2 << QByteArray::fromHex("fdff") << int(SampleType::S16) << -3.0;
    QTest::newRow("unsigned 16") << 3 << QByteArray::fromHex("ffff") << int(SampleType::U16) << 65535.0;
    QTest::newRow("double") << 5 << QByteArray::fromHex("000000000000f83f") << int(SampleType::F64) << 1.5;
    QTest::newRow("unsigned 8") << 6 << QByteArray::fromHex("c8") << int(SampleType::U8) << 200.0;
    QTest::newRow("unsigned 32") << 8 << QByteArray::fromHex("00ca9a3b") << int(SampleType::U32) << 1e9;
}

void SpePictureFileTest::everyKindOfSampleIsRead()
{
    QFETCH(int, code);
    QFETCH(QByteArray, sample);
    QFETCH(int, type);
    QFETCH(double, value);
    PictureFolder folder;
    const auto file = Opened(folder, SpeBytes(2, 3, code, 1).Append(sample.repeated(6)).Bytes());
    QVERIFY(file);
    QCOMPARE(file->Info().format, PictureFormat::Spe);
    QCOMPARE(file->Info().size, QSize(2, 3));
    QCOMPARE(int(file->Info().sampleType), type);
    QCOMPARE(Frame(*file, 0), QVector<double>(6, value));
    QCOMPARE(file->Info().warning, QString());
}

void SpePictureFileTest::framesFollowEachOther()
{
    PictureFolder folder;
    const auto file = Opened(folder, SpeBytes(3, 2, 3, 2).AppendRamp(6, 100).AppendRamp(6, 200).Bytes());
    QVERIFY(file);
    QCOMPARE(file->Info().frames, 2);
    QCOMPARE(Frame(*file, 0), QVector<double>({100, 101, 102, 103, 104, 105}));
    QCOMPARE(Frame(*file, 1), QVector<double>({200, 201, 202, 203, 204, 205}));
}

void SpePictureFileTest::coefficientsBeyondTheOrderAreLeftOut()
{
    PictureFolder folder;
    const auto file = Opened(folder, SpeBytes(3, 1, 3, 1).Calibrate(4, 4, 2, {500, 2, 0.5, 1000}).AppendRamp(3).Bytes());
    QVERIFY(file);
    const SpectralAxis axis = file->AxisOf(0);
    QCOMPARE(int(axis.unit), int(SpectralUnit::Nanometre));
    QCOMPARE(axis.values, QVector<double>({502.5, 506, 510.5})); // pixels count from 1
}

void SpePictureFileTest::aRamanAxisCountsFromTheLaser()
{
    PictureFolder folder;
    SpeBytes spe(2, 1, 3, 1);
    spe.Calibrate(4, 6, 1, {790, 10}).SetDouble(3311, 785.0).AppendRamp(2);
    const auto file = Opened(folder, spe.Bytes());
    QVERIFY(file);
    const SpectralAxis axis = file->AxisOf(0);
    QCOMPARE(int(axis.unit), int(SpectralUnit::RamanShift));
    QCOMPARE(QString::number(axis.values[0], 'f', 4), QString("238.8535")); // 1e7 (1/785 - 1/800)
    QCOMPARE(axis.laserNm, 785.0);
}

void SpePictureFileTest::withoutAValidCalibrationThereIsNoAxis()
{
    PictureFolder folder;
    SpeBytes spe(3, 1, 3, 1);
    spe.Calibrate(4, 4, 1, {500, 2}).AppendRamp(3);
    QVERIFY(!Opened(folder, spe.Bytes())->AxisOf(0).IsEmpty());
    QVERIFY(Opened(folder, SpeBytes(spe).Set<quint8>(3098, 0).Bytes())->AxisOf(0).IsEmpty());
    QVERIFY(Opened(folder, SpeBytes(spe).Set<quint8>(3101, 200).Bytes())->AxisOf(0).IsEmpty());
    QVERIFY(Opened(folder, SpeBytes(spe).Set<quint8>(3100, 1).Bytes())->AxisOf(0).IsEmpty());
    QVERIFY(Opened(folder, SpeBytes(spe).SetDouble(3263, NAN).Bytes())->AxisOf(0).IsEmpty());
}

void SpePictureFileTest::anAxisThatTurnsIsSaidAndLeftOut_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("pixel");
    SpeBytes plain(6, 1, 3, 1);
    plain.AppendRamp(6);
    // 500 + 4 n - 0.5 n²: 503.5, 506, 507.5, 508, 507.5, 506
    QTest::newRow("polynomial that turns") << SpeBytes(plain).Calibrate(4, 4, 2, {500, 4, -0.5}).Bytes() << 4;
    QTest::newRow("turns near its end") << SpeBytes(plain).Calibrate(4, 4, 2, {500, 5.5, -0.5}).Bytes() << 5;
    QTest::newRow("stands still") << SpeBytes(plain).Calibrate(4, 4, 1, {500, 0}).Bytes() << 1;
    QTest::newRow("no numbers") << SpeBytes(plain).Calibrate(4, 4, 1, {NAN, 1}).Bytes() << 0;
    QTest::newRow("list with two swapped") << TwoRegions("501,503,506", "501,506,503") << 2;
    QTest::newRow("list with one twice") << TwoRegions("501,503,506", "501,503,503") << 2;
}

void SpePictureFileTest::anAxisThatTurnsIsSaidAndLeftOut()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, pixel);
    PictureFolder folder;
    const auto file = Opened(folder, bytes);
    QVERIFY(file);
    QVERIFY(file->AxisOf(0).IsEmpty());
    const QString said = QString("does not rise or fall steadily (it turns at pixel %1) and is left out").arg(pixel);
    QVERIFY2(file->Info().warning.contains(said), qPrintable(file->Info().warning));
}

void SpePictureFileTest::regionsAreFramesOfTheirOwn()
{
    PictureFolder folder;
    const auto file = Opened(folder, TwoRegions());
    QVERIFY(file);
    QCOMPARE(file->Info().frames, 4);
    QCOMPARE(file->Info().kinds, 2);
    QCOMPARE(Frame(*file, 0), QVector<double>({10, 11, 12}));
    QCOMPARE(Frame(*file, 1), QVector<double>({13, 14, 15, 16}));
    QCOMPARE(Frame(*file, 2), QVector<double>({20, 21, 22}));
    QCOMPARE(Frame(*file, 3), QVector<double>({23, 24, 25, 26}));
    QCOMPARE(file->FrameDescription(3), QString("exposure 2 of 2, region 2 of 2, from column 2 and row 5 of the sensor"));
    QStringList facts;
    for (const MetadataEntry &entry : file->Info().metadata)
        facts << entry.key + '=' + entry.value;
    QCOMPARE(facts, QStringList({ "Region1=columns 1 to 3, rows 0 to 0 of the sensor, binned by 1 x 1",
                                  "Region2=columns 2 to 5, rows 5 to 6 of the sensor, binned by 2 x 1" }));
}

void SpePictureFileTest::regionsInOneRectangleAreSaid_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("regions");
    QTest::addColumn<QString>("warning");
    QTest::newRow("not told") << "rectangle.spe" << 0 << "";
    QTest::newRow("one") << "rectangle.spe" << 1 << "";
    QTest::newRow("less than none") << "rectangle.spe" << -5 << "";
    QTest::newRow("a name with a place marker")
        << "a%2.spe" << 3
        << "\u201ca%2.spe\u201d: its 3 regions are shown as one picture, with the filler that lies between them, as what it says of region 1 makes no sense.";
    QTest::newRow("a name of two lines")
        << "a\nb.spe" << 3
        << "\u201ca\u23ceb.spe\u201d: its 3 regions are shown as one picture, with the filler that lies between them, as what it says of region 1 makes no sense.";
    QTest::newRow("three")
        << "rectangle.spe" << 3
        << "\u201crectangle.spe\u201d: its 3 regions are shown as one picture, with the filler that lies between them, as what it says of region 1 makes no sense.";
}

void SpePictureFileTest::regionsInOneRectangleAreSaid()
{
    QFETCH(QString, name);
    QFETCH(int, regions);
    PictureFolder folder;
    QString error;
    const auto file = OpenPicture(folder.Write(name, SpeBytes(2, 3, 3, 1).Set<qint16>(1510, qint16(regions)).AppendRamp(6).Bytes()), error);
    QVERIFY2(file, qPrintable(error));
    QTEST(file->Info().warning, "warning");
    QCOMPARE(file->Info().frames, 1);
}

void SpePictureFileTest::aBinnedColumnHasTheMeanOfItsWavelengths()
{
    PictureFolder folder;
    const auto file = Opened(folder, TwoRegions());
    QVERIFY(file);
    QCOMPARE(file->AxisOf(0).values, QVector<double>({501, 503, 506}));
    QCOMPARE(file->AxisOf(1).values, QVector<double>({504.5, 512.5}));
    // A list that is too short for the region is no axis, and that is said.
    const auto cut = Opened(folder, TwoRegions(",510,515", ""));
    QCOMPARE(cut->AxisOf(0).values, QVector<double>({501, 503, 506}));
    QVERIFY(cut->AxisOf(1).IsEmpty());
    QVERIFY2(cut->Info().warning.contains("its list of wavelengths does not fit its columns"), qPrintable(cut->Info().warning));
}

void SpePictureFileTest::everythingThatIsWrongIsTold()
{
    PictureFolder folder;
    // The first region's wavelengths turn, the second one's are too few.
    const QString warning = Opened(folder, TwoRegions("501,503,506,510,515", "501,506,503"))->Info().warning;
    QVERIFY2(warning.contains("it turns at pixel 2"), qPrintable(warning));
    QVERIFY2(warning.contains("its list of wavelengths does not fit its columns"), qPrintable(warning));
    // What is wrong with both is told once.
    const QString once = Opened(folder, TwoRegions("500,501,503,506,510,515", "500"))->Info().warning;
    QCOMPARE(once.count("does not fit its columns"), 1);
}

void SpePictureFileTest::factsAreTold()
{
    PictureFolder folder;
    SpeBytes spe(2, 1, 3, 1);
    spe.SetFloat(10, 4.0F).SetFloat(36, -70.0F).AppendRamp(2);
    const auto file = Opened(folder, spe.Bytes());
    QVERIFY(file);
    QStringList facts;
    for (const MetadataEntry &entry : file->Info().metadata)
        facts << entry.key + "=" + entry.value + entry.comment;
    QCOMPARE(facts, QStringList({"ExposureTime=4s", "DetectorTemperature=-70°C"}));
}

void SpePictureFileTest::fewerFramesThanPromisedAreTold()
{
    PictureFolder folder;
    const auto file = Opened(folder, SpeBytes(3, 2, 3, 5).AppendRamp(6 * 2 + 3).Bytes());
    QVERIFY(file);
    QCOMPARE(file->Info().frames, 2);
    QVERIFY2(file->Info().warning.contains("only the first 2 of its 5 frames are there"), qPrintable(file->Info().warning));
}

void SpePictureFileTest::noNumberOfFramesMeansThoseThatAreThere()
{
    PictureFolder folder;
    const auto file = Opened(folder, SpeBytes(3, 2, 3, 0).AppendRamp(6 * 4).Bytes());
    QVERIFY(file);
    QCOMPARE(file->Info().frames, 4);
}

void SpePictureFileTest::aWrongFileIsToldInWords_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("part");
    QTest::newRow("header cut short") << SpeBytes(2, 1, 3, 1).Bytes().left(3500) << "its header is cut short";
    QTest::newRow("no samples") << SpeBytes(2, 1, 3, 1).Bytes() << "not even its first frame of 2 x 1 pixels is whole";
    QTest::newRow("no width") << SpeBytes(0, 7, 3, 1).AppendRamp(9).Bytes() << "its header gives a size of 0 x 7 pixels";
    QTest::newRow("unknown samples") << SpeBytes(2, 1, 4, 1).AppendRamp(9).Bytes() << "its samples are of an unknown kind (code 4)";
    QTest::newRow("gigantic") << SpeBytes(65535, 65535, 5, 2147483647).AppendRamp(9).Bytes()
                              << "not even its first frame of 65535 x 65535 pixels is whole";
    QTest::newRow("damaged description") << TwoRegions("</DataFormat>", "</Data") << "its description (XML at the end) breaks off or is damaged in line 1";
    QTest::newRow("no region") << SpeBytes(0, 0, 3, 1, 3.0F).AppendRamp(4).AppendFooter("<SpeFormat/>").Bytes() << "tells of no frames";
    QTest::newRow("region without rows") << TwoRegions("height=\"1\"", "height=\"0\"") << "region 1 of 2 has a size of 3 x 0 pixels";
    QTest::newRow("gigantic region") << TwoRegions("width=\"3\"", "width=\"2147483647\"") << "region 1 of 2 does not fit into its frame";
    QTest::newRow("gigantic stride") << TwoRegions("stride=\"18\"", "stride=\"9223372036854775807\"") << "";
    QTest::newRow("stride below nothing") << TwoRegions("stride=\"6\"", "stride=\"-99\"") << "region 2 of 2 does not fit into its frame";
    QTest::newRow("regions over each other") << TwoRegions("stride=\"6\"", "stride=\"0\"") << "region 2 of 2 does not fit into its frame";
    QTest::newRow("regions that overlap") << TwoRegions("stride=\"6\"", "stride=\"4\"") << "region 2 of 2 does not fit into its frame";
    QTest::newRow("stride of no number") << TwoRegions("stride=\"18\"", "stride=\"x\"") << "tells of no frames";
    QTest::newRow("samples of another kind") << TwoRegions("Unsigned16", "Complex64") << "its samples (MonochromeComplex64) are of a kind that is not supported";
    QTest::newRow("description is gone") << TwoRegions().left(4120) << "its description (XML at the end) is missing";
}

void SpePictureFileTest::aWrongFileIsToldInWords()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, part);
    PictureFolder folder;
    const QString error = PictureFolder::ErrorOf(folder.Write("wrong.spe", bytes));
    if (part.isEmpty()) { // one frame is whole whatever follows
        QCOMPARE(error, QString());
        return;
    }
    QVERIFY2(error.contains("\u201cwrong.spe\u201d cannot be read"), qPrintable(error));
    QVERIFY2(error.contains(part), qPrintable(error));
    QVERIFY2(error.endsWith('.'), qPrintable(error)); // the advice
}

void SpePictureFileTest::aLostFooterLeavesThePlainSamples_data()
{
    QTest::addColumn<quint64>("place");
    QTest::newRow("behind the end") << quint64(1000000);
    QTest::newRow("within the header") << quint64(100);
}

void SpePictureFileTest::aLostFooterLeavesThePlainSamples()
{
    QFETCH(quint64, place);
    PictureFolder folder;
    SpeBytes spe(2, 1, 3, 1, 3.0F);
    spe.AppendRamp(2, 5).Set<quint64>(678, place);
    const auto file = Opened(folder, spe.Bytes());
    QVERIFY(file);
    QCOMPARE(Frame(*file, 0), QVector<double>({5, 6}));
    QVERIFY2(file->Info().warning.contains("is missing, and with it the wavelengths"), qPrintable(file->Info().warning));
}

void SpePictureFileTest::everyTruncationIsToldOrRead()
{
    PictureFolder folder;
    const QByteArray whole = TwoRegions();
    for (int size = 1; size < whole.size(); size += size < SpeBytes::HeaderBytes ? 97 : 1) {
        QString error;
        const auto file = OpenPicture(folder.Write("cut.spe", whole.left(size)), error);
        QVERIFY2(file || error.contains("cannot be read"), qPrintable(QString::number(size)));
    }
}

void SpePictureFileTest::everyFlippedByteIsSurvived()
{
    PictureFolder folder;
    const QByteArray whole = TwoRegions();
    for (const int at : {42, 108, 656, 678, 679, 684, 1446, 1449, 1992, 1995}) {
        for (const char bits : {'\x01', '\x80', '\xff'}) {
            QByteArray bytes = whole;
            bytes[at] = char(bytes[at] ^ bits);
            const QString error = PictureFolder::ErrorOf(folder.Write("flipped.spe", bytes));
            QVERIFY2(error.isEmpty() || error.endsWith('.'), qPrintable(error));
        }
    }
    for (int at = SpeBytes::HeaderBytes + 36; at < whole.size(); ++at) {
        QByteArray bytes = whole;
        bytes[at] = char(bytes[at] ^ 1);
        const QString error = PictureFolder::ErrorOf(folder.Write("flipped.spe", bytes));
        QVERIFY2(error.isEmpty() || error.endsWith('.'), qPrintable(error));
    }
}

GUARDED_TEST_MAIN(SpePictureFileTest)
#include "spepicturefiletest.moc"
