// SPDX-License-Identifier: GPL-3.0-or-later
#include "pickedprofiles.h"
#include "guardedtest.h"
#include "sampleview.h"

#include <cmath>
#include <random>

namespace {

/// A picture of chance, with room behind each row that holds full scale.
struct ChancePicture
{
    ChancePicture(int width, int height, int bitDepth, bool isColour)
        : bytesPerSample(bitDepth > 8 ? 2 : 1)
    {
        view.width = width;
        view.height = height;
        view.bitDepth = bitDepth;
        view.isColour = isColour;
        view.strideBytes = (view.SamplesPerRow() + 5) * bytesPerSample;
        bytes.assign(size_t(view.strideBytes) * size_t(height), 0xFF);
        std::mt19937 random(quint32(width * 31 + height * 7 + bitDepth));
        for (int y = 0; y < height; ++y) {
            for (int i = 0; i < view.SamplesPerRow(); ++i) {
                const quint32 sample = random() % (1U << bitDepth);
                uchar *place = bytes.data() + size_t(y) * size_t(view.strideBytes) + size_t(i * bytesPerSample);
                if (bytesPerSample == 2)
                    *reinterpret_cast<quint16 *>(place) = quint16(sample);
                else
                    *place = uchar(sample);
            }
        }
        view.samples = bytes.data();
    }

    /// The mean of a pixel's channels.
    double Pixel(int x, int y) const
    {
        const int channels = view.isColour ? 3 : 1;
        double sum = 0;
        for (int channel = 0; channel < channels; ++channel) {
            const int i = x * channels + channel;
            sum += bytesPerSample == 2 ? view.Row16(y)[i] : view.Row8(y)[i];
        }
        return sum / channels;
    }

    int bytesPerSample;
    std::vector<uchar> bytes;
    SampleView view;
};

/// Straightforward: the mean over all pixels at most half a band away.
std::vector<int> ExpectedRow(const ChancePicture &picture, int centre, int lines)
{
    std::vector<int> row;
    for (int x = 0; x < picture.view.width; ++x) {
        double sum = 0;
        int count = 0;
        for (int y = 0; y < picture.view.height; ++y) {
            if (std::abs(y - centre) <= lines / 2) {
                sum += picture.Pixel(x, y);
                ++count;
            }
        }
        row.push_back(int(std::floor(sum / count + 0.5 + 1e-9)));
    }
    return row;
}

std::vector<int> ExpectedColumn(const ChancePicture &picture, int centre, int lines)
{
    std::vector<int> column;
    for (int y = 0; y < picture.view.height; ++y) {
        double sum = 0;
        int count = 0;
        for (int x = 0; x < picture.view.width; ++x) {
            if (std::abs(x - centre) <= lines / 2) {
                sum += picture.Pixel(x, y);
                ++count;
            }
        }
        column.push_back(int(std::floor(sum / count + 0.5 + 1e-9)));
    }
    return column;
}

} // namespace

class PickedProfilesTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void isTheMeanOfTheBand_data();
    void isTheMeanOfTheBand();
    void pointsAndBandsOfNoSense_data();
    void pointsAndBandsOfNoSense();
    void pictureWithoutSamplesHasNoProfile();
    void bands_data();
    void bands();
    void fullScaleDoesNotOverflow();
    void keepsItsMemory();
};

void PickedProfilesTest::isTheMeanOfTheBand_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("bitDepth");
    QTest::addColumn<bool>("isColour");
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<int>("lines");
    std::mt19937 random(1);
    for (int i = 0; i < 60; ++i) {
        const QSize size(1 + int(random() % 300), 1 + int(random() % 200));
        const int bitDepth = i % 3 == 0 ? 8 : i % 3 == 1 ? 12 : 16;
        const bool isColour = i % 4 == 3;
        const QPoint point(int(random()) % size.width(), int(random()) % size.height());
        const int lines = 1 + 2 * int(random() % 51);
        QTest::newRow(qPrintable(QString("%1x%2, %3 bit%4, %5").arg(size.width()).arg(size.height()).arg(bitDepth)
                                     .arg(isColour ? " RGB" : "").arg(lines)))
            << size << bitDepth << isColour << QPoint(qAbs(point.x()), qAbs(point.y())) << lines;
    }
}

void PickedProfilesTest::isTheMeanOfTheBand()
{
    QFETCH(QSize, size);
    QFETCH(int, bitDepth);
    QFETCH(bool, isColour);
    QFETCH(QPoint, point);
    QFETCH(int, lines);
    // A band is never wider than the picture; then it lies around the point as far as the picture goes.
    if (lines > size.height() || lines > size.width())
        lines = 1;
    const ChancePicture picture(size.width(), size.height(), bitDepth, isColour);
    PickedProfiles profiles;
    QVERIFY(profiles.Extract(picture.view, point, lines));
    QCOMPARE(profiles.Row(), ExpectedRow(picture, point.y(), lines));
    QCOMPARE(profiles.Column(), ExpectedColumn(picture, point.x(), lines));
}

void PickedProfilesTest::pointsAndBandsOfNoSense_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<int>("lines");
    QTest::addColumn<QPoint>("asPoint");
    QTest::addColumn<int>("asLines");
    QTest::newRow("left of it") << QPoint(-3, 5) << 3 << QPoint(0, 5) << 3;
    QTest::newRow("far below") << QPoint(4, 2000000000) << 1 << QPoint(4, 29) << 1;
    QTest::newRow("far above") << QPoint(4, -2000000000) << 5 << QPoint(4, 0) << 5;
    QTest::newRow("no line") << QPoint(4, 5) << 0 << QPoint(4, 5) << 1;
    QTest::newRow("less than no line") << QPoint(4, 5) << -7 << QPoint(4, 5) << 1;
}

void PickedProfilesTest::pointsAndBandsOfNoSense()
{
    QFETCH(QPoint, point);
    QFETCH(int, lines);
    QFETCH(QPoint, asPoint);
    QFETCH(int, asLines);
    const ChancePicture picture(40, 30, 16, false);
    PickedProfiles profiles;
    QVERIFY(profiles.Extract(picture.view, point, lines));
    QCOMPARE(profiles.Row(), ExpectedRow(picture, asPoint.y(), asLines));
    QCOMPARE(profiles.Column(), ExpectedColumn(picture, asPoint.x(), asLines));
}

void PickedProfilesTest::pictureWithoutSamplesHasNoProfile()
{
    const ChancePicture picture(40, 30, 16, false);
    PickedProfiles profiles;
    QVERIFY(profiles.Extract(picture.view, QPoint(0, 0), 1));
    QVERIFY(!profiles.Extract(SampleView(), QPoint(0, 0), 1));
    QVERIFY(profiles.Row().empty() && profiles.Column().empty());
    SampleView flat = picture.view;
    flat.height = 0;
    QVERIFY(!profiles.Extract(flat, QPoint(0, 0), 1));
}

void PickedProfilesTest::bands_data()
{
    QTest::addColumn<int>("centre");
    QTest::addColumn<int>("lines");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("end");
    QTest::newRow("one") << 5 << 1 << 10 << 5 << 6;
    QTest::newRow("three") << 5 << 3 << 10 << 4 << 7;
    QTest::newRow("two") << 5 << 2 << 10 << 4 << 6;
    QTest::newRow("cut off at the start") << 0 << 5 << 10 << 0 << 3;
    QTest::newRow("cut off at the end") << 9 << 5 << 10 << 7 << 10;
    QTest::newRow("all") << 5 << 11 << 10 << 0 << 10;
    QTest::newRow("a side of one") << 3 << 101 << 1 << 0 << 1;
}

void PickedProfilesTest::bands()
{
    QFETCH(int, centre);
    QFETCH(int, lines);
    QFETCH(int, size);
    const ProfileBand band = BandAround(centre, lines, size);
    QTEST(band.first, "first");
    QTEST(band.end, "end");
}

void PickedProfilesTest::fullScaleDoesNotOverflow()
{
    SampleView white;
    const std::vector<quint16> samples(size_t(4096) * 3 * 101, 65535);
    white.samples = reinterpret_cast<const uchar *>(samples.data());
    white.width = 4096;
    white.height = 101;
    white.strideBytes = 4096 * 6;
    white.bitDepth = 16;
    white.isColour = true;
    PickedProfiles profiles;
    QVERIFY(profiles.Extract(white, QPoint(2000, 50), 101));
    QCOMPARE(profiles.Row(), std::vector<int>(4096, 65535));
    QCOMPARE(profiles.Column(), std::vector<int>(101, 65535));
}

void PickedProfilesTest::keepsItsMemory()
{
    const ChancePicture picture(640, 480, 16, false);
    PickedProfiles profiles;
    QVERIFY(profiles.Extract(picture.view, QPoint(10, 10), 3));
    const int *row = profiles.Row().data();
    const int *column = profiles.Column().data();
    QVERIFY(profiles.Extract(picture.view, QPoint(300, 200), 11));
    QCOMPARE(profiles.Row().data(), row);
    QCOMPARE(profiles.Column().data(), column);
}

GUARDED_TEST_MAIN(PickedProfilesTest)
#include "pickedprofilestest.moc"
