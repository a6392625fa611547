// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "linetilt.h"
#include "sampleview.h"

#include <cmath>

class LineTiltTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void tiltAndWidthAreThoseOfThePicture_data();
    void tiltAndWidthAreThoseOfThePicture();
    void fewRowsOrNoLightGiveNothing();
};

namespace {

struct TiltedLine
{
    TiltedLine(double tiltDegrees, double sigma)
        : samples(size_t(400) * 300)
    {
        for (int y = 0; y < 300; ++y) {
            const double place = 200.3 + std::tan(tiltDegrees * M_PI / 180) * (y - 149.5);
            for (int x = 0; x < 400; ++x)
                samples[size_t(y) * 400 + size_t(x)] = quint16(std::lround(500 + 7 * ((x * 31 + y * 17) % 5)
                                                              + 20000 * std::exp(-0.5 * std::pow((x - place) / sigma, 2))));
        }
        view.samples = reinterpret_cast<const uchar *>(samples.data());
        view.width = 400;
        view.height = 300;
        view.strideBytes = 800;
        view.bitDepth = 16;
    }

    std::vector<quint16> samples;
    SampleView view;
};

} // namespace

void LineTiltTest::tiltAndWidthAreThoseOfThePicture_data()
{
    QTest::addColumn<double>("tilt");
    QTest::addColumn<double>("sigma");
    QTest::newRow("upright, sharp") << 0.0 << 1.2;
    QTest::newRow("leans right") << 0.8 << 2.0;
    QTest::newRow("leans left, wide") << -1.5 << 4.0;
}

void LineTiltTest::tiltAndWidthAreThoseOfThePicture()
{
    QFETCH(double, tilt);
    QFETCH(double, sigma);
    const TiltedLine picture(tilt, sigma);
    const std::vector<LineFocus> lines = MeasureLines(picture.view, 0, 300, 5);
    QCOMPARE(int(lines.size()), 1);
    QVERIFY2(std::abs(lines[0].tiltDegrees - tilt) < 0.02, qPrintable(QString::number(lines[0].tiltDegrees)));
    QVERIFY2(std::abs(lines[0].column - 200.3) < 0.05, qPrintable(QString::number(lines[0].column)));
    // The line leans by some tenths of a pixel within a slice.
    QVERIFY2(std::abs(lines[0].width / (2.3548 * sigma) - 1) < 0.06, qPrintable(QString::number(lines[0].width)));
    QVERIFY(lines[0].area.contains(200, 150));
    QCOMPARE(lines[0].area.height(), 300);
}

void LineTiltTest::fewRowsOrNoLightGiveNothing()
{
    const TiltedLine picture(0, 2);
    QVERIFY(MeasureLines(picture.view, 10, 12, 5).empty());
    QVERIFY(MeasureLines(picture.view, 0, 300, 0).empty());
    QVERIFY(MeasureLines(SampleView(), 0, 300, 5).empty());
}

GUARDED_TEST_MAIN(LineTiltTest)
#include "linetilttest.moc"
