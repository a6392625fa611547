// SPDX-License-Identifier: GPL-3.0-or-later
#include "objectcount.h"
#include "guardedtest.h"
#include "randompicture.h"

#include <cmath>
#include <functional>

using namespace RandomPicture;

namespace {

constexpr double Pi = 3.14159265358979323846;
constexpr int Dark = 10;
constexpr int Bright = 200;

Picture Drawn(const QSize &size, const std::function<bool(double x, double y)> &isBright)
{
    Picture picture(size.width(), size.height(), 1, SampleType::U8);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            Set(picture, x, y, 0, isBright(x + 0.5, y + 0.5) ? Bright : Dark);
    }
    return picture;
}

/// '#' is bright.
Picture Drawn(const QStringList &rows)
{
    return Drawn(QSize(rows.first().size(), rows.size()),
                 [&](double x, double y) { return rows.at(int(y)).at(int(x)) == '#'; });
}

bool InDisc(double x, double y, double middleX, double middleY, double radius)
{
    return std::hypot(x - middleX, y - middleY) <= radius;
}

/// Every object counts, as it is.
CountSettings Plain()
{
    CountSettings settings;
    settings.leastArea = 0;
    settings.splits = false;
    settings.fillsHoles = false;
    return settings;
}

ObjectCount Count(const Picture &picture, const CountSettings &settings)
{
    QString error;
    const ObjectCount count = CountObjects(picture, settings, error);
    if (!error.isEmpty())
        qWarning("%s", qPrintable(error));
    return count;
}

QVector<int> Areas(const ObjectCount &count)
{
    QVector<int> areas;
    for (const CountedObject &object : count.objects)
        areas << object.area;
    return areas;
}

/// Objects by filling each from its first pixel on, and what is known of them.
class FloodFill
{
public:
    FloodFill(const Picture &picture, double level)
        : m_picture(picture)
        , m_level(level)
        , m_labels(picture.Width() * picture.Height(), 0)
    {
        for (int y = 0; y < picture.Height(); ++y) {
            for (int x = 0; x < picture.Width(); ++x) {
                if (!IsFree(x, y))
                    continue;
                m_objects << CountedObject();
                Fill(x, y);
                CountedObject &object = m_objects.last();
                object.centroid /= object.area;
                object.meanIntensity /= object.area;
            }
        }
    }
    const QVector<CountedObject> &Objects() const { return m_objects; }
    int Label(int x, int y) const { return m_labels.at(y * m_picture.Width() + x); }

private:
    bool IsFree(int x, int y) const
    {
        return x >= 0 && y >= 0 && x < m_picture.Width() && y < m_picture.Height() && Label(x, y) == 0
               && At(m_picture, x, y, 0) >= m_level;
    }
    void Fill(int x, int y)
    {
        m_labels[y * m_picture.Width() + x] = m_objects.size();
        CountedObject &object = m_objects.last();
        ++object.area;
        object.centroid += QPointF(x + 0.5, y + 0.5);
        object.meanIntensity += At(m_picture, x, y, 0);
        for (int i = 0; i < 9; ++i) {
            if (IsFree(x + i % 3 - 1, y + i / 3 - 1))
                Fill(x + i % 3 - 1, y + i / 3 - 1);
        }
    }

    const Picture &m_picture;
    const double m_level;
    QVector<int> m_labels;
    QVector<CountedObject> m_objects;
};

} // namespace

class ObjectCountTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void objectsAgainstFillingThem_data() { AddShapes(); }
    void objectsAgainstFillingThem()
    {
        QFETCH(QSize, size);
        QFETCH(int, type);
        for (quint32 seed = 1; seed < 20; ++seed) {
            const Picture picture = Make(size * 2, 1, SampleType(type), seed);
            CountSettings settings = Plain();
            settings.isAutomatic = false;
            settings.level = SampleType(type) == SampleType::U32 || SampleType(type) == SampleType::S32 ? 1.2e7
                             : SampleType(type) == SampleType::U16                                      ? 45000
                             : SampleType(type) == SampleType::U8                                       ? 180
                                                                                                        : 40;
            const ObjectCount count = Count(picture, settings);
            const FloodFill expected(picture, settings.level);
            QCOMPARE(count.objects.size(), expected.Objects().size());
            for (int i = 0; i < count.objects.size(); ++i) {
                const CountedObject &is = count.objects.at(i);
                const CountedObject &wanted = expected.Objects().at(i);
                QCOMPARE(is.area, wanted.area);
                QCOMPARE(is.centroid, wanted.centroid);
                QCOMPARE(is.meanIntensity, wanted.meanIntensity);
                QCOMPARE(is.equivalentDiameter, std::sqrt(4 * wanted.area / Pi));
            }
            QCOMPARE(Difference(count.labels, [&](int x, int y, int) { return expected.Label(x, y); }), QString());
        }
    }

    void theLevelIsFoundOrSet()
    {
        const Picture picture = Drawn({ "....", ".##.", "...." });
        QCOMPARE(Count(picture, Plain()).level, 106.0); // midway: 11 to 200 separate them alike
        QCOMPARE(Areas(Count(picture, Plain())), QVector<int>{ 2 });
        CountSettings dark = Plain();
        dark.takesDark = true;
        QCOMPARE(Areas(Count(picture, dark)), QVector<int>{ 10 });
        CountSettings high = Plain();
        high.isAutomatic = false;
        high.level = 201;
        QCOMPARE(Areas(Count(picture, high)), QVector<int>());
    }

    void holesAreFilled()
    {
        const Picture picture = Drawn({ "#####..", "#...#..", "#.#.#..", "#...#..", "#####.#", "......#" });
        QCOMPARE(Areas(Count(picture, Plain())), (QVector<int>{ 16, 1, 2 }));
        CountSettings filled = Plain();
        filled.fillsHoles = true;
        QCOMPARE(Areas(Count(picture, filled)), (QVector<int>{ 25, 2 }));
    }

    /// A ring that is open at a corner holds water: steps out of it would be diagonal.
    void aHoleEndsAtACorner()
    {
        CountSettings filled = Plain();
        filled.fillsHoles = true;
        QCOMPARE(Areas(Count(Drawn({ ".....", "..#..", ".#.#.", "..#..", "....." }), filled)), QVector<int>{ 5 });
        QCOMPARE(Areas(Count(Drawn({ "..#..", ".#.#.", ".#.#." }), filled)), QVector<int>{ 5 });
    }

    void objectsAtTheEdgeMayBeLeftOut()
    {
        CountSettings settings = Plain();
        settings.leavesOutEdge = true;
        const Picture picture = Drawn({ "#....", "..#..", "..#.#", ".....", ".#..." });
        QCOMPARE(Areas(Count(picture, Plain())), (QVector<int>{ 1, 2, 1, 1 }));
        QCOMPARE(Areas(Count(picture, settings)), QVector<int>{ 2 });
    }

    void sizesAndShapesAreChosen()
    {
        const Picture picture = Drawn({ "#........", "...##....", "...##....", ".........", "#########" });
        CountSettings settings = Plain();
        settings.leastArea = 2;
        QCOMPARE(Areas(Count(picture, settings)), (QVector<int>{ 4, 9 }));
        settings.mostArea = 8;
        QCOMPARE(Areas(Count(picture, settings)), QVector<int>{ 4 });
        settings.mostArea = CountSettings::MostArea;
        settings.mostCircularity = 0.6;
        QCOMPARE(Areas(Count(picture, settings)), QVector<int>{ 9 });
        settings.mostCircularity = 1;
        settings.leastCircularity = 0.6;
        const ObjectCount round = Count(picture, settings);
        QCOMPARE(Areas(round), QVector<int>{ 4 });
        // What does not count has no number in the labels either.
        QCOMPARE(At(round.labels, 0, 0, 0), 0.0);
        QCOMPARE(At(round.labels, 4, 2, 0), 1.0);
        QCOMPARE(At(round.labels, 4, 4, 0), 0.0);
    }

    void aDiscIsRoundAndABarIsNot()
    {
        for (const double radius : { 6.0, 15.0, 40.0 }) {
            const Picture disc =
                Drawn(QSize(100, 90), [&](double x, double y) { return InDisc(x, y, 48, 45, radius); });
            const CountedObject object = Count(disc, Plain()).objects.value(0);
            QVERIFY2(std::abs(object.perimeter / (2 * Pi * radius) - 1) < 0.03,
                     qPrintable(QString::number(object.perimeter)));
            QVERIFY2(object.circularity > 0.94, qPrintable(QString::number(object.circularity)));
            QVERIFY(std::abs(object.equivalentDiameter - 2 * radius) < 0.3);
            QVERIFY(std::abs(object.centroid.x() - 48) < 0.1 && std::abs(object.centroid.y() - 45) < 0.1);
        }
        // 60 x 4: 122 crossings of straight lines each way would be 2 (60 + 4), of diagonal ones 2 (60 + 4 - 1) each.
        const Picture bar = Drawn(QSize(80, 20), [](double x, double y) { return x > 5 && x < 65 && y > 8 && y < 12; });
        const CountedObject object = Count(bar, Plain()).objects.value(0);
        const double perimeter = Pi / 8 * (2 * (60 + 4) + 2 * 2 * (60 + 4 - 1) / std::sqrt(2.0));
        QVERIFY(std::abs(object.perimeter - perimeter) < 1e-9);
        QVERIFY(std::abs(object.circularity - 4 * Pi * 240 / (perimeter * perimeter)) < 1e-9);
    }

    void discsThatTouchAreSplit()
    {
        const Picture picture = Drawn(QSize(120, 60), [](double x, double y) {
            return InDisc(x, y, 30, 30, 15) || InDisc(x, y, 54, 30, 15) || InDisc(x, y, 78, 30, 15);
        });
        CountSettings settings = Plain();
        QCOMPARE(Count(picture, settings).objects.size(), 1);
        const int area = Count(picture, settings).objects.first().area;
        settings.splits = true;
        const ObjectCount count = Count(picture, settings);
        QCOMPARE(count.objects.size(), 3);
        int sum = 0;
        for (const CountedObject &object : count.objects)
            sum += object.area;
        QCOMPARE(sum, area); // no pixel is lost to a line between them
        // Each pixel is with the disc whose middle is nearest, give or take the waist.
        QCOMPARE(Difference(count.labels,
                            [&](int x, int y, int) {
                                if (At(picture, x, y, 0) == Dark || std::abs(x + 0.5 - 42) < 2 || std::abs(x + 0.5 - 66) < 2)
                                    return At(count.labels, x, y, 0);
                                const int nearest = x + 0.5 < 42 ? 30 : x + 0.5 < 66 ? 54 : 78;
                                return At(count.labels, nearest, 30, 0);
                            }),
                 QString());
        QVERIFY(At(count.labels, 30, 30, 0) != At(count.labels, 54, 30, 0));
        QVERIFY(At(count.labels, 54, 30, 0) != At(count.labels, 78, 30, 0));
    }

    void oneObjectIsNotSplit()
    {
        CountSettings settings = Plain();
        settings.splits = true;
        const Picture ellipse =
            Drawn(QSize(120, 60), [](double x, double y) { return std::hypot((x - 60) / 50, (y - 30) / 17) <= 1; });
        QCOMPARE(Count(ellipse, settings).objects.size(), 1);
        const Picture square = Drawn(QSize(40, 40), [](double x, double y) { return qMax(x, y) < 35 && qMin(x, y) > 4; });
        QCOMPARE(Count(square, settings).objects.size(), 1);
        QCOMPARE(Count(Drawn(QSize(9, 9), [](double, double) { return true; }), settings).objects.size(), 1);
    }

    void howDeepAWaistIsDecides()
    {
        // Two discs of radius 15 whose waist is 10.6 to each side: 4.4 less deep.
        const Picture picture = Drawn(QSize(90, 60), [](double x, double y) {
            return InDisc(x, y, 30, 30, 15) || InDisc(x, y, 51.2, 30, 15);
        });
        CountSettings settings = Plain();
        settings.splits = true;
        settings.splitDepthPx = 3;
        QCOMPARE(Count(picture, settings).objects.size(), 2);
        settings.splitDepthPx = 6;
        QCOMPARE(Count(picture, settings).objects.size(), 1);
    }

    void ofColourTheMeanOfTheChannelsCounts()
    {
        Picture picture(6, 3, 3, SampleType::U8);
        for (int i = 0; i < 18; ++i) {
            const bool bright = i % 6 > 3;
            Set(picture, i % 6, i / 6, 0, bright ? 240 : 10);
            Set(picture, i % 6, i / 6, 1, 30);
            Set(picture, i % 6, i / 6, 2, 0);
        }
        const ObjectCount count = Count(picture, Plain());
        QCOMPARE(Areas(count), QVector<int>{ 6 });
        QCOMPARE(count.objects.first().meanIntensity, 90.0);
    }

    void whatIsNoNumberIsNoObjectAndHasNoPartInAMean()
    {
        Picture picture(5, 5, 1, SampleType::F32);
        for (int i = 0; i < 25; ++i)
            Set(picture, i % 5, i / 5, 0, i % 5 > 0 && i % 5 < 4 && i / 5 > 0 && i / 5 < 4 ? 8 : 1);
        Set(picture, 2, 2, 0, NAN);
        Set(picture, 0, 4, 0, INFINITY);
        CountSettings settings = Plain();
        QCOMPARE(Areas(Count(picture, settings)), QVector<int>{ 8 });
        settings.fillsHoles = true;
        QCOMPARE(Areas(Count(picture, settings)), QVector<int>{ 9 });
        QCOMPARE(Count(picture, settings).objects.first().meanIntensity, 8.0);
    }

    void anEmptyPictureIsRefused()
    {
        QString error;
        QVERIFY(CountObjects(Picture(), Plain(), error).labels.IsNull());
        QCOMPARE(error, QString("There is no picture whose objects could be counted."));
    }
};

GUARDED_TEST_MAIN(ObjectCountTest)
#include "objectcounttest.moc"
