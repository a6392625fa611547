// SPDX-License-Identifier: GPL-3.0-or-later
#include "stackprojection.h"
#include "guardedtest.h"
#include "randompicture.h"

#include <algorithm>
#include <cmath>
#include <numeric>

using namespace RandomPicture;
using Method = ProjectionSettings::Method;

namespace {

bool Wanted() { return false; }

Picture Project(const QVector<Picture> &frames, const ProjectionSettings &settings, QString &error,
                qint64 medianBytes = MedianBytes)
{
    return Projected(
        settings, frames.size(),
        [&](int index, Picture &frame, QString &) {
            frame = frames.at(index);
            return true;
        },
        Wanted, error, medianBytes);
}

/// The value of a method for the numbers of one place.
double ValueOf(std::vector<double> values, Method method)
{
    values.erase(std::remove_if(values.begin(), values.end(), [](double value) { return !std::isfinite(value); }),
                 values.end());
    if (values.empty())
        return NAN;
    std::sort(values.begin(), values.end());
    const size_t count = values.size();
    const double sum = std::accumulate(values.begin(), values.end(), 0.0);
    double squares = 0;
    for (const double value : values)
        squares += (value - sum / double(count)) * (value - sum / double(count));
    switch (method) {
    case Method::Maximum:
        return values.back();
    case Method::Minimum:
        return values.front();
    case Method::Mean:
        return sum / double(count);
    case Method::Median:
        return (values[(count - 1) / 2] + values[count / 2]) / 2;
    case Method::Sum:
        return sum;
    case Method::StandardDeviation:
        break;
    }
    return count > 1 ? std::sqrt(squares / double(count - 1)) : 0;
}

QVector<Picture> Stack(int count)
{
    QFETCH(QSize, size);
    QFETCH(int, channels);
    QFETCH(int, type);
    QVector<Picture> frames;
    for (int i = 0; i < count; ++i)
        frames << Make(size, channels, SampleType(type), quint32(40 + i), 6);
    return frames;
}

} // namespace

class StackProjectionTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void everyMethodAgainstSortingEachPlace_data() { AddShapes(); }
    void everyMethodAgainstSortingEachPlace()
    {
        for (const int count : { 1, 2, 5, 8 }) {
            const QVector<Picture> frames = Stack(count);
            for (int method = 0; method <= int(Method::StandardDeviation); ++method) {
                for (const bool keepsFractions : { false, true }) {
                    const ProjectionSettings settings{ Method(method), keepsFractions };
                    QString error;
                    const Picture result = Project(frames, settings, error);
                    QCOMPARE(error, QString());
                    QCOMPARE(int(result.Type()), int(ProjectedType(frames.first().Type(), settings)));
                    const double room = IsFloat(result.Type()) ? 1e-3 : 0;
                    QCOMPARE(Difference(result,
                                        [&](int x, int y, int channel) {
                                            std::vector<double> values;
                                            for (const Picture &frame : frames)
                                                values.push_back(At(frame, x, y, channel));
                                            const double value = ValueOf(values, settings.method);
                                            return std::isnan(value) ? value : Stored(value, result.Type());
                                        },
                                        room),
                             QString());
                }
            }
        }
    }

    void fractionsAndDeviationsAreFloatingPoint()
    {
        QCOMPARE(int(ProjectedType(SampleType::U16, { Method::Mean, true })), int(SampleType::F32));
        QCOMPARE(int(ProjectedType(SampleType::S32, { Method::Median, true })), int(SampleType::F64));
        QCOMPARE(int(ProjectedType(SampleType::U8, { Method::StandardDeviation, false })), int(SampleType::F32));
        QCOMPARE(int(ProjectedType(SampleType::U8, { Method::Mean, false })), int(SampleType::U8));
        QCOMPARE(int(ProjectedType(SampleType::U8, { Method::Sum, false })), int(SampleType::U16));
    }

    /// With little memory the frames are read again for each part, with the same result.
    void aMedianInPartsIsTheSame_data() { AddShapes(); }
    void aMedianInPartsIsTheSame()
    {
        const QVector<Picture> frames = Stack(6);
        QString error;
        const Picture inParts = Project(frames, { Method::Median, true }, error, 1);
        const Picture atOnce = Project(frames, { Method::Median, true }, error);
        QCOMPARE(Difference(inParts, [&](int x, int y, int channel) { return At(atOnce, x, y, channel); }), QString());
    }

    void framesThatDiffer_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("channels");
        QTest::addColumn<int>("type");
        QTest::newRow("size") << QSize(4, 6) << 1 << int(SampleType::U8);
        QTest::newRow("colours") << QSize(5, 6) << 3 << int(SampleType::U8);
        QTest::newRow("samples") << QSize(5, 6) << 1 << int(SampleType::S8);
    }
    void framesThatDiffer()
    {
        QFETCH(QSize, size);
        QFETCH(int, channels);
        QFETCH(int, type);
        const Picture first = Make(QSize(5, 6), 1, SampleType::U8, 1);
        QString error;
        QVERIFY(Project({ first, Make(size, channels, SampleType(type), 1) }, ProjectionSettings(), error).IsNull());
        QCOMPARE(error, QString("Picture 2 is not like the first one: it needs the same size, as many colours and "
                                "samples of the same kind."));
    }

    void aFrameThatCannotBeReadEndsIt()
    {
        QString error;
        const auto read = [](int index, Picture &frame, QString &text) {
            frame = Make(QSize(2, 2), 1, SampleType::U8, 1);
            text = index == 3 ? "frame 4 is damaged" : "";
            return index != 3;
        };
        for (const Method method : { Method::Mean, Method::Median }) {
            QVERIFY(Projected({ method, false }, 6, read, Wanted, error).IsNull());
            QCOMPARE(error, QString("frame 4 is damaged"));
        }
    }

    void noFramesAreRefused()
    {
        QString error;
        QVERIFY(Project({}, ProjectionSettings(), error).IsNull());
        QCOMPARE(error, QString("There is no picture that could be projected."));
    }

    void oneThatIsNotWantedAnyMoreEnds()
    {
        QString error;
        int reads = 0;
        const auto read = [&](int, Picture &frame, QString &) {
            frame = Make(QSize(2, 2), 1, SampleType::U8, 1);
            ++reads;
            return true;
        };
        QVERIFY(Projected(ProjectionSettings(), 100, read, [&] { return reads == 10; }, error).IsNull());
        QCOMPARE(reads, 10);
        QCOMPARE(error, QString());
    }
};

GUARDED_TEST_MAIN(StackProjectionTest)
#include "stackprojectiontest.moc"
