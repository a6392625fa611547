// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "picturefolder.h"

#include <cmath>

namespace {

/// As it stands in the header: first, last and group of the columns, then of the rows.
using Told = std::array<quint16, 6>;

constexpr quint16 Filler = 60000;
constexpr int Frames = 2;

void Put16(QByteArray &bytes, int offset, int value)
{
    bytes[offset] = char(value & 0xff);
    bytes[offset + 1] = char((value >> 8) & 0xff);
}

/// A file of version 2.2 without samples, at the places that the description of the format gives.
QByteArray Header(const QSize &rectangle, const QVector<Told> &regions)
{
    QByteArray bytes(4100, '\0');
    Put16(bytes, 6, 1024); // detector
    Put16(bytes, 18, 256);
    Put16(bytes, 42, rectangle.width());
    Put16(bytes, 108, 3); // unsigned, 16 bit
    Put16(bytes, 656, rectangle.height());
    Put16(bytes, 1446, Frames);
    Put16(bytes, 1488, regions.size());
    Put16(bytes, 1510, regions.size());
    for (int i = 0; i < regions.size(); ++i) {
        for (int k = 0; k < 6; ++k)
            Put16(bytes, 1512 + 12 * i + 2 * k, regions[i][size_t(k)]);
    }
    bytes.replace(1992, 4, QByteArray::fromHex("cdcc0c40"));
    bytes.replace(2996, 4, QByteArray::fromHex("67452301"));
    return bytes;
}

int Value(int frame, int region, int x, int y) { return 20000 * frame + 1000 * region + 100 * y + x; }

/// Regions painted over filler.
QByteArray Samples(const QSize &rectangle, const QVector<QRect> &places, int frame)
{
    QByteArray bytes(rectangle.width() * rectangle.height() * 2, '\0');
    for (int i = 0; i < bytes.size(); i += 2)
        Put16(bytes, i, Filler);
    for (int region = 0; region < places.size(); ++region) {
        const QRect &place = places[region];
        for (int y = 0; y < place.height(); ++y) {
            for (int x = 0; x < place.width(); ++x)
                Put16(bytes, 2 * ((place.y() + y) * rectangle.width() + place.x() + x),
                      Value(frame, region, x, y));
        }
    }
    return bytes;
}

QByteArray File(const QSize &rectangle, const QVector<Told> &regions, const QVector<QRect> &places)
{
    QByteArray bytes = Header(rectangle, regions);
    for (int frame = 0; frame < Frames; ++frame)
        bytes += Samples(rectangle, places, frame);
    return bytes;
}

QStringList Facts(const PictureFile &file)
{
    QStringList facts;
    for (const MetadataEntry &entry : file.Info().metadata)
        facts << entry.key + '=' + entry.value;
    return facts;
}

QVector<double> FrameOf(PictureFile &file, int index)
{
    Picture picture;
    QString error;
    if (!file.ReadFrame(index, picture, error))
        QTest::qFail(qPrintable(error), __FILE__, __LINE__);
    return SamplesOf(picture);
}

std::unique_ptr<PictureFile> Opened(const PictureFolder &folder, const QByteArray &bytes)
{
    QString error;
    auto file = OpenPicture(folder.Write("regions.spe", bytes), error);
    if (!file)
        QTest::qFail(qPrintable(error), __FILE__, __LINE__);
    return file;
}

const QVector<Told> Tracks{ Told{ 1, 6, 1, 11, 20, 10 }, Told{ 1, 6, 1, 31, 40, 10 },
                            Told{ 1, 6, 1, 51, 70, 20 } };
const QVector<QRect> TrackPlaces{ QRect(0, 0, 6, 1), QRect(0, 1, 6, 1), QRect(0, 2, 6, 1) };
const QSize TrackRectangle(6, 3);

} // namespace

Q_DECLARE_METATYPE(QVector<Told>)

/// Several regions of the sensor in one file of version 2.
class SpeRegionsTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void eachIsAFrameOfItsOwn_data()
    {
        QTest::addColumn<QSize>("rectangle");
        QTest::addColumn<QVector<Told>>("told");
        QTest::addColumn<QVector<QRect>>("places");
        QTest::newRow("tracks of one row each") << TrackRectangle << Tracks << TrackPlaces;
        QTest::newRow("of some rows each, without filler")
            << QSize(6, 5) << QVector<Told>{ Told{ 1, 6, 1, 11, 12, 1 }, Told{ 1, 6, 1, 20, 22, 1 } }
            << QVector<QRect>{ QRect(0, 0, 6, 2), QRect(0, 2, 6, 3) };
        QTest::newRow("with filler")
            << QSize(6, 5) << QVector<Told>{ Told{ 1, 6, 1, 11, 12, 1 }, Told{ 1, 6, 1, 15, 15, 1 } }
            << QVector<QRect>{ QRect(0, 0, 6, 2), QRect(0, 4, 6, 1) };
        QTest::newRow("with filler, in the other order")
            << QSize(6, 5) << QVector<Told>{ Told{ 1, 6, 1, 15, 15, 1 }, Told{ 1, 6, 1, 11, 12, 1 } }
            << QVector<QRect>{ QRect(0, 4, 6, 1), QRect(0, 0, 6, 2) };
        QTest::newRow("apart to both sides")
            << QSize(6, 4) << QVector<Told>{ Told{ 3, 4, 1, 11, 12, 1 }, Told{ 7, 8, 1, 13, 14, 1 } }
            << QVector<QRect>{ QRect(0, 0, 2, 2), QRect(4, 2, 2, 2) };
        QTest::newRow("binned, apart to both sides")
            << QSize(4, 5) << QVector<Told>{ Told{ 1, 4, 2, 1, 6, 3 }, Told{ 5, 8, 2, 10, 15, 3 } }
            << QVector<QRect>{ QRect(0, 0, 2, 2), QRect(2, 3, 2, 2) };
        QTest::newRow("side by side")
            << QSize(7, 2) << QVector<Told>{ Told{ 1, 2, 1, 11, 12, 1 }, Told{ 5, 7, 1, 11, 12, 1 } }
            << QVector<QRect>{ QRect(0, 0, 2, 2), QRect(4, 0, 3, 2) };
    }

    void eachIsAFrameOfItsOwn()
    {
        QFETCH(QSize, rectangle);
        QFETCH(QVector<Told>, told);
        QFETCH(QVector<QRect>, places);
        PictureFolder folder;
        QByteArray bytes = File(rectangle, told, places);
        bytes[3098] = 1; // calibrated: 500 nm, and a quarter more in each column, which count from 1
        bytes[3100] = 4;
        bytes[3101] = 1;
        bytes.replace(3263, 16, QByteArray::fromHex("0000000000407f40000000000000d03f"));
        const auto file = Opened(folder, bytes);
        QVERIFY(file);
        QCOMPARE(file->Info().warning, QString());
        QCOMPARE(file->Info().frames, Frames * places.size());
        for (int frame = 0; frame < Frames; ++frame) {
            for (int region = 0; region < places.size(); ++region) {
                QVector<double> expected;
                for (int y = 0; y < places[region].height(); ++y) {
                    for (int x = 0; x < places[region].width(); ++x)
                        expected << Value(frame, region, x, y);
                }
                const int index = frame * places.size() + region;
                QCOMPARE(FrameOf(*file, index), expected);
                QCOMPARE(
                    file->FrameDescription(index),
                    QString("exposure %1 of %2, region %3 of %4, from column %5 and row %6 of the sensor")
                        .arg(frame + 1)
                        .arg(Frames)
                        .arg(region + 1)
                        .arg(places.size())
                        .arg(told[region][0] - 1)
                        .arg(told[region][3] - 1));
                const SpectralAxis axis = file->AxisOf(index);
                QCOMPARE(axis.values.size(), places[region].width());
                QCOMPARE(axis.values.first(), 500 + 0.25 * (places[region].x() + 1));
                QCOMPARE(axis.values.last(), 500 + 0.25 * (places[region].right() + 1));
            }
        }
    }

    /// That stands 489 bytes behind the one of the columns.
    void theyHaveTheirRowsOfACalibrationOfTheRows()
    {
        PictureFolder folder;
        QByteArray bytes = File(QSize(6, 5), { Told{ 1, 6, 1, 11, 12, 1 }, Told{ 1, 6, 1, 15, 15, 1 } },
                                { QRect(0, 0, 6, 2), QRect(0, 4, 6, 1) });
        bytes[3587] = 1; // calibrated: 500 nm, and a quarter more in each row, which count from 1
        bytes[3589] = 4;
        bytes[3590] = 1;
        bytes.replace(3752, 16, QByteArray::fromHex("0000000000407f40000000000000d03f"));
        const auto file = Opened(folder, bytes);
        QCOMPARE(int(file->AxisOf(0).side), int(SpectralSide::Rows));
        QCOMPARE(file->AxisOf(0).values, QVector<double>({ 500.25, 500.5 }));
        QCOMPARE(file->AxisOf(1).values, QVector<double>({ 501.25 }));
    }

    void whereTheyLieOnTheSensorIsTold()
    {
        PictureFolder folder;
        QCOMPARE(Facts(*Opened(folder, File(TrackRectangle, Tracks, TrackPlaces))),
                 QStringList({ "Region1=columns 0 to 5, rows 10 to 19 of the sensor, binned by 1 x 10",
                               "Region2=columns 0 to 5, rows 30 to 39 of the sensor, binned by 1 x 10",
                               "Region3=columns 0 to 5, rows 50 to 69 of the sensor, binned by 1 x 20" }));
        const QVector<QRect> place{ QRect(0, 0, 6, 1) };
        const QString one = "Region=columns 2 to 7, rows 10 to 19 of the sensor, binned by 1 x 10";
        QCOMPARE(Facts(*Opened(folder, File(QSize(6, 1), { Told{ 3, 8, 1, 11, 20, 10 } }, place))),
                 QStringList(one));
        // That of another picture, as some programs leave it.
        QCOMPARE(Facts(*Opened(folder, File(QSize(6, 1), { Told{ 3, 9, 1, 11, 20, 10 } }, place))),
                 QStringList());
        QCOMPARE(Facts(*Opened(folder, File(QSize(6, 1), { Told{ 0, 0, 0, 0, 0, 0 } }, place))),
                 QStringList());
    }

    void whereNobodyKnowsTheyAreOnePicture_data()
    {
        QTest::addColumn<QVector<Told>>("told");
        QTest::addColumn<QByteArray>("offset");
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("said");
        QTest::addColumn<int>("facts");
        const auto row = [](const char *name, const QVector<Told> &told, const QString &said, int facts,
                            int offset = 0, int value = 0) {
            QTest::newRow(name) << told << QByteArray::number(offset) << value << said << facts;
        };
        const auto second = [](const Told &region) { return QVector<Told>{ Tracks[0], region, Tracks[2] }; };
        row("nothing is told", QVector<Told>(3, Told{ 0, 0, 0, 0, 0, 0 }),
            "its 3 regions are shown as one picture, with the filler that lies "
            "between them, as what it says of region 1 makes no sense",
            0);
        row("it ends before it begins", second({ 6, 1, 1, 31, 40, 10 }), "region 2 makes no sense", 2);
        row("from row 0", second({ 1, 6, 1, 0, 40, 10 }), "region 2 makes no sense", 2);
        row("no columns become one", second({ 1, 6, 0, 31, 40, 10 }), "region 2 makes no sense", 2);
        row("no rows become one", second({ 1, 6, 1, 31, 40, 0 }), "region 2 makes no sense", 2);
        row("more rows become one than there are", second({ 1, 6, 1, 31, 40, 65535 }),
            "region 2 makes no sense", 3);
        row("beyond the detector", second({ 1, 6, 1, 300, 309, 10 }), "region 2 makes no sense", 2);
        row("beyond all", second({ 65535, 65535, 65535, 65535, 65535, 65535 }), "region 2 makes no sense", 2);
        row("overlapping", second({ 1, 6, 1, 20, 29, 10 }), "it says that regions 1 and 2 overlap", 3);
        row("the same twice", second({ 1, 6, 1, 51, 70, 20 }), "it says that regions 2 and 3 overlap", 3);
        row("too many rows", second({ 1, 6, 1, 31, 40, 5 }),
            "they neither fill its frames of 6 x 3 pixels nor lie in them as on the sensor", 3);
        row("of other widths", second({ 1, 5, 1, 31, 40, 10 }),
            "they neither fill its frames of 6 x 3 pixels", 3);
        row("not in the order of the sensor", { Tracks[0], Tracks[2], Tracks[1] },
            "in the order of their numbers or in that of the sensor", 3);
        row("turned", Tracks, "its frames were turned or mirrored after they had been read out", 3, 600, 1);
        row("more than the list has room for", Tracks, "its header has room for 10 of them", 3, 1510, 11);
        row("more than any experiment has", Tracks, "its 32767 regions are", 3, 1510, 32767);
    }

    void whereNobodyKnowsTheyAreOnePicture()
    {
        QFETCH(QVector<Told>, told);
        QFETCH(QByteArray, offset);
        QFETCH(int, value);
        QFETCH(QString, said);
        QFETCH(int, facts);
        PictureFolder folder;
        QByteArray bytes = File(TrackRectangle, told, TrackPlaces);
        if (offset != "0")
            Put16(bytes, offset.toInt(), value);
        const auto file = Opened(folder, bytes);
        QVERIFY(file);
        QVERIFY2(file->Info().warning.contains("regions.spe") && file->Info().warning.contains(said),
                 qPrintable(file->Info().warning));
        QCOMPARE(file->Info().frames, Frames);
        QCOMPARE(file->Info().size, TrackRectangle);
        QCOMPARE(FrameOf(*file, 1).value(7), double(Value(1, 1, 1, 0)));
        QCOMPARE(Facts(*file).size(), facts);
    }

    /// The list holds the first ten of them.
    void anExperimentOfMoreThanTheListHasRoomForIsSaid()
    {
        QVector<Told> told;
        QVector<QRect> places;
        for (int i = 0; i < 10; ++i) {
            told << Told{ 1, 4, 1, quint16(1 + 20 * i), quint16(10 + 20 * i), 10 };
            places << QRect(0, i, 4, 1);
        }
        PictureFolder folder;
        QByteArray bytes = File(QSize(4, 10), told, places);
        QCOMPARE(Opened(folder, bytes)->Info().frames, 10 * Frames);
        Put16(bytes, 1488, 12);
        const auto file = Opened(folder, bytes);
        QCOMPARE(file->Info().frames, Frames);
        QVERIFY2(file->Info().warning.contains("its 12 regions are shown as one picture"),
                 qPrintable(file->Info().warning));
    }

    /// Also without the filler behind the last region.
    void framesThatAreWholeCount()
    {
        PictureFolder folder;
        const QVector<Told> told{ Told{ 7, 8, 1, 13, 14, 1 },
                                  Told{ 3, 4, 1, 11, 12, 1 } }; // the first one ends the frame
        const QByteArray bytes = File(QSize(6, 4), told, { QRect(4, 2, 2, 2), QRect(0, 0, 2, 2) });
        QCOMPARE(Opened(folder, bytes)->Info().frames, 4);
        const auto cut = Opened(folder, bytes.left(bytes.size() - 1));
        QCOMPARE(cut->Info().frames, 2);
        QVERIFY2(cut->Info().warning.contains("only the first 1 of its 2 frames are there"),
                 qPrintable(cut->Info().warning));
        QVERIFY(PictureFolder::ErrorOf(folder.Write("cut.spe", bytes.left(4100 + 47)))
                    .contains("not even its first frame"));
    }

    void everyByteOfTheListMayBeWrong()
    {
        PictureFolder folder;
        const QByteArray whole = File(QSize(6, 4), { Told{ 3, 4, 1, 11, 12, 1 }, Told{ 7, 8, 1, 13, 14, 1 } },
                                      { QRect(0, 0, 2, 2), QRect(4, 2, 2, 2) });
        for (int at = 1510; at < 1512 + 24; ++at) {
            for (const char bits : { '\x01', '\x02', '\x80', '\xff' }) {
                QByteArray bytes = whole;
                bytes[at] = char(bytes[at] ^ bits);
                const auto file = Opened(folder, bytes);
                QVERIFY(file);
                QVERIFY(!FrameOf(*file, file->Info().frames - 1).isEmpty());
                // Regions of their own, one region, or one picture and a word.
                const bool isSaid = file->Info().warning.contains("shown as one picture");
                QVERIFY(file->Info().frames == 2 * Frames || isSaid || at < 1512);
            }
        }
    }
};

GUARDED_TEST_MAIN(SpeRegionsTest)
#include "speregionstest.moc"
