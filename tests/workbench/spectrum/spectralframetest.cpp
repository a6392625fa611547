// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "spectralframe.h"

#include <QRandomGenerator>

#include <algorithm>
#include <vector>

namespace {

/// What is seen of a sensor, pixel by pixel: which of the sensor's are in each.
class Seen
{
public:
    using Pixels = std::vector<QPoint>;

    /// As the camera reads it out: the region, and a pixel for each whole square of `binning`.
    Seen(const QRect &region, int binning)
        : m_width(region.width() / binning)
    {
        for (int y = 0; y < region.height() / binning; ++y) {
            for (int x = 0; x < m_width; ++x) {
                Pixels joined;
                for (int i = 0; i < binning * binning; ++i)
                    joined.emplace_back(region.x() + x * binning + i % binning, region.y() + y * binning + i / binning);
                m_pixels.push_back(joined);
            }
        }
    }

    int Width() const { return m_width; }
    int Height() const { return int(m_pixels.size()) / m_width; }
    const Pixels &At(int x, int y) const { return m_pixels[size_t(y * m_width + x)]; }

    /// Left becomes right.
    void Flip()
    {
        const Seen before = *this;
        for (int y = 0; y < Height(); ++y) {
            for (int x = 0; x < Width(); ++x)
                m_pixels[size_t(y * m_width + x)] = before.At(Width() - 1 - x, y);
        }
    }

    /// Clockwise.
    void Turn()
    {
        const Seen before = *this;
        m_width = before.Height();
        for (int y = 0; y < Height(); ++y) {
            for (int x = 0; x < Width(); ++x)
                m_pixels[size_t(y * m_width + x)] = before.At(y, before.Height() - 1 - x);
        }
    }

    /// All pixels of the sensor in a sample of the spectrum along its rows, or its columns.
    Pixels Sample(int index, bool isHorizontal) const
    {
        Pixels all;
        for (int across = 0; across < (isHorizontal ? Height() : Width()); ++across) {
            const Pixels &pixels = isHorizontal ? At(index, across) : At(across, index);
            all.insert(all.end(), pixels.begin(), pixels.end());
        }
        return all;
    }

private:
    int m_width;
    std::vector<Pixels> m_pixels;
};

struct Setup
{
    SensorFrame frame;
    bool isHorizontal = true;
};

constexpr int setups = 400;

Setup RandomSetup(QRandomGenerator *random)
{
    Setup setup;
    setup.frame.binning = random->bounded(1, 5);
    setup.frame.region = QRect(random->bounded(20), random->bounded(20), setup.frame.binning + random->bounded(24),
                               setup.frame.binning + random->bounded(24));
    setup.frame.orientation = Orientation(random->bounded(2) == 1, random->bounded(4));
    setup.isHorizontal = random->bounded(2) == 1;
    return setup;
}

Seen SeenOf(const SensorFrame &frame)
{
    Seen seen(frame.region, frame.binning);
    if (frame.orientation.IsFlipped())
        seen.Flip();
    for (int turn = 0; turn < frame.orientation.QuarterTurns(); ++turn)
        seen.Turn();
    return seen;
}

int Count(const Seen &seen, bool isHorizontal) { return isHorizontal ? seen.Width() : seen.Height(); }

/// The sensor's columns, or rows, that a sample is made of.
std::vector<int> Places(const Seen::Pixels &pixels, bool alongRows)
{
    std::vector<int> places;
    for (const QPoint &pixel : pixels)
        places.push_back(alongRows ? pixel.x() : pixel.y());
    std::sort(places.begin(), places.end());
    places.erase(std::unique(places.begin(), places.end()), places.end());
    return places;
}

double Middle(const std::vector<int> &places) { return (places.front() + places.back()) / 2.0; }

QByteArray Text(const Setup &setup)
{
    const SensorFrame &frame = setup.frame;
    return QString("region %1 %2 %3 x %4, binned %5, flipped %6, %7 turns, horizontal %8")
        .arg(frame.region.x()).arg(frame.region.y()).arg(frame.region.width()).arg(frame.region.height()).arg(frame.binning)
        .arg(frame.orientation.IsFlipped()).arg(frame.orientation.QuarterTurns()).arg(setup.isHorizontal).toLatin1();
}

} // namespace

/// Which pixels of the sensor a spectrum is made of, however the picture is cut, binned, mirrored and turned.
class SpectralFrameTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void samplesLieWhereTheirPixelsAre();
    void aFrameIsWithinOneThatHasItsPixels();
    void ofNothingNothingIsKnown();
};

void SpectralFrameTest::samplesLieWhereTheirPixelsAre()
{
    QRandomGenerator random(7);
    for (int i = 0; i < setups; ++i) {
        const Setup setup = RandomSetup(&random);
        const Seen seen = SeenOf(setup.frame);
        const SpectralFrame frame = SpectralFrame::Of(setup.frame, setup.isHorizontal);
        QVERIFY2(frame.count == Count(seen, setup.isHorizontal), Text(setup));
        for (int sample = 0; sample < frame.count; ++sample) {
            const Seen::Pixels pixels = seen.Sample(sample, setup.isHorizontal);
            const std::vector<int> places = Places(pixels, frame.isAlongRows);
            QVERIFY2(int(places.size()) == frame.binning, Text(setup)); // across, a sample has them all
            QVERIFY2(std::abs(frame.OnSensor(sample) - Middle(places)) < 1e-9, Text(setup));
            QVERIFY2(std::abs(frame.SampleAt(Middle(places)) - sample) < 1e-9, Text(setup));
        }
    }
}

/// It may reach half a sample beyond.
void SpectralFrameTest::aFrameIsWithinOneThatHasItsPixels()
{
    QRandomGenerator random(11);
    int within = 0;
    for (int i = 0; i < 10 * setups; ++i) {
        const Setup inner = RandomSetup(&random);
        const Setup outer = RandomSetup(&random);
        const SpectralFrame a = SpectralFrame::Of(inner.frame, inner.isHorizontal);
        const SpectralFrame b = SpectralFrame::Of(outer.frame, outer.isHorizontal);
        bool isWithin = a.isAlongRows == b.isAlongRows;
        if (isWithin) {
            std::vector<int> places;
            for (int sample = 0; sample < b.count; ++sample) {
                const std::vector<int> more = Places(SeenOf(outer.frame).Sample(sample, outer.isHorizontal), b.isAlongRows);
                places.insert(places.end(), more.begin(), more.end());
            }
            const auto ends = std::minmax_element(places.begin(), places.end());
            for (int sample = 0; sample < a.count; ++sample) {
                const double middle = Middle(Places(SeenOf(inner.frame).Sample(sample, inner.isHorizontal), a.isAlongRows));
                isWithin = isWithin && middle >= *ends.first - 0.5 && middle <= *ends.second + 0.5;
            }
        }
        QVERIFY2(a.IsWithin(b) == isWithin, Text(inner) + " in " + Text(outer));
        within += isWithin;
    }
    QVERIFY2(within > setups / 4, QByteArray::number(within)); // both answers were asked for
}

void SpectralFrameTest::ofNothingNothingIsKnown()
{
    const SpectralFrame nothing = SpectralFrame::Of(SensorFrame(), true);
    const SpectralFrame known = SpectralFrame::Of({QRect(0, 0, 8, 8), 1, Orientation()}, true);
    QVERIFY(nothing.IsNull() && !known.IsNull());
    QVERIFY(!nothing.IsWithin(known) && !known.IsWithin(nothing) && !nothing.IsWithin(nothing));
    QVERIFY(known.IsWithin(known));
    SpectralFrame ofFile = known; // the same pixels, but of a file
    ofFile.fileExtent = 8;
    QVERIFY(!ofFile.IsWithin(known) && !known.IsWithin(ofFile) && ofFile.IsWithin(ofFile));
    // A region smaller than a binned pixel gives none.
    QVERIFY(SpectralFrame::Of({QRect(0, 0, 3, 8), 4, Orientation()}, true).IsNull());
}

GUARDED_TEST_MAIN(SpectralFrameTest)
#include "spectralframetest.moc"
