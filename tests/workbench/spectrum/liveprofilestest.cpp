// SPDX-License-Identifier: GPL-3.0-or-later
#include "liveprofiles.h"
#include "guardedtest.h"
#include "payloadlocker.h"
#include "profileexchange.h"

#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <atomic>
#include <limits>
#include <thread>

namespace {

/// 16-bit samples in memory of their own; sample (x, y) is 1000 y + x.
struct MadeFrame
{
    MadeFrame(int width, int height)
        : samples(size_t(width) * size_t(height))
    {
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x)
                samples[size_t(y) * size_t(width) + size_t(x)] = quint16(1000 * y + x);
        }
        frame.samples.samples = reinterpret_cast<const uchar *>(samples.data());
        frame.samples.width = width;
        frame.samples.height = height;
        frame.samples.strideBytes = width * 2;
        frame.samples.bitDepth = 16;
        frame.levels = {100, 40000, 1.0};
    }

    std::vector<quint16> samples;
    AnalysedFrame frame;
};

/// What the receiver of the signal does: the buffers that were filled become those that are shown.
struct Shown
{
    explicit Shown(SpectrumCurvePayload *payload)
    {
        const PayloadLocker locker(payload->lock);
        std::swap(payload->horizontalFill, payload->horizontalShow);
        std::swap(payload->verticalFill, payload->verticalShow);
        row.assign(payload->horizontalShow, payload->horizontalShow + payload->horizontalSize);
        column.assign(payload->verticalShow, payload->verticalShow + payload->verticalSize);
        region = payload->region;
        left = payload->leftLevel;
        right = payload->rightLevel;
    }

    std::vector<int> row;
    std::vector<int> column;
    QRectF region;
    int left;
    int right;
};

std::vector<int> Line(int count, int first, int step)
{
    std::vector<int> line;
    for (int i = 0; i < count; ++i)
        line.push_back(first + i * step);
    return line;
}

} // namespace

class LiveProfilesTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        m_settings.clear();
        StartGuard();
    }

    void profilesGoThroughThePickedPoint();
    void turnedPictures_data();
    void turnedPictures();
    void nothingIsWorkedOutUnlessWanted();
    void whatComesTooLateIsDropped();
    void regionIsKeptWithinThePicture_data();
    void regionIsKeptWithinThePicture();
    void pointBeyondThePicture_data();
    void pointBeyondThePicture();
    void frameWithoutSamplesIsLeftAlone();
    void linesAreKept();
    void framesOfAnotherSize();
    void exchangeAtFullSpeed();

private:
    /// Analyses a frame as it would be in the preview's thread and gives what was announced.
    static SpectrumCurvePayload *Payload(LiveProfiles *profiles, const AnalysedFrame &frame)
    {
        void *payload = nullptr;
        const auto connection = connect(profiles, &IntensityManager::SignalUpdateCurve, profiles,
                                        [&payload](void *announced) { payload = announced; }, Qt::DirectConnection);
        profiles->Analyse(frame);
        QCoreApplication::sendPostedEvents(profiles);
        disconnect(connection);
        return static_cast<SpectrumCurvePayload *>(payload);
    }

    QTemporaryDir m_folder;
    QSettings m_settings{m_folder.filePath("settings.ini"), QSettings::IniFormat};
};

void LiveProfilesTest::profilesGoThroughThePickedPoint()
{
    LiveProfiles profiles(&m_settings);
    profiles.SetWanted(true);
    profiles.SetAnchorPoint(7, 3, QRectF(0.25, 0, 0.75, 1));
    const MadeFrame made(20, 10);
    const Shown shown(Payload(&profiles, made.frame));
    QCOMPARE(shown.row, Line(20, 3000, 1));
    QCOMPARE(shown.column, Line(10, 7, 1000));
    QCOMPARE(shown.region, QRectF(0.25, 0, 0.75, 1));
    QCOMPARE(shown.left, 100);
    QCOMPARE(shown.right, 40000);

    profiles.SetLines(3); // the mean of three lines on a slope is the one in the middle
    const Shown banded(Payload(&profiles, made.frame));
    QCOMPARE(banded.row, Line(20, 3000, 1));
    profiles.SetAnchorPoint(0, 0, QRectF(0, 0, 1, 1));
    const Shown cut(Payload(&profiles, made.frame)); // rows 0 and 1
    QCOMPARE(cut.row, Line(20, 500, 1));
}

void LiveProfilesTest::turnedPictures_data()
{
    QTest::addColumn<bool>("isFlipped");
    QTest::addColumn<int>("quarterTurns");
    for (int way = 0; way < 8; ++way)
        QTest::newRow(qPrintable(QString("%1%2").arg(way % 4 * 90).arg(way < 4 ? "" : " flipped"))) << (way >= 4) << way % 4;
}

/// Held against the picture turned pixel by pixel.
void LiveProfilesTest::turnedPictures()
{
    QFETCH(bool, isFlipped);
    QFETCH(int, quarterTurns);
    LiveProfiles profiles(&m_settings);
    profiles.SetWanted(true);
    MadeFrame made(20, 10);
    const Orientation orientation(isFlipped, quarterTurns);
    made.frame.orientation = orientation;
    const QSize seenSize = orientation.Map(QSize(20, 10));
    const QPoint point(seenSize.width() / 3, seenSize.height() / 4);
    std::vector<int> row(size_t(seenSize.width()));
    std::vector<int> column(size_t(seenSize.height()));
    for (int y = 0; y < 10; ++y) {
        for (int x = 0; x < 20; ++x) {
            const QPoint seen = orientation.Map(QPoint(x, y), QSize(20, 10));
            if (seen.y() == point.y())
                row[size_t(seen.x())] = 1000 * y + x;
            if (seen.x() == point.x())
                column[size_t(seen.y())] = 1000 * y + x;
        }
    }
    profiles.SetAnchorPoint(point.x(), point.y(), QRectF(0, 0, 1, 1));
    const Shown shown(Payload(&profiles, made.frame));
    QCOMPARE(shown.row, row);
    QCOMPARE(shown.column, column);
}

void LiveProfilesTest::nothingIsWorkedOutUnlessWanted()
{
    LiveProfiles profiles(&m_settings);
    const MadeFrame made(20, 10);
    QVERIFY(!Payload(&profiles, made.frame));
    profiles.SetWanted(true);
    QVERIFY(Payload(&profiles, made.frame));
    profiles.SetWanted(false);
    QVERIFY(!Payload(&profiles, made.frame));
}

/// A spectrum was asked for between the frame and its profile.
void LiveProfilesTest::whatComesTooLateIsDropped()
{
    LiveProfiles profiles(&m_settings);
    profiles.SetWanted(true);
    QSignalSpy announced(&profiles, SIGNAL(SignalUpdateCurve(void *)));
    const MadeFrame made(20, 10);
    profiles.Analyse(made.frame);
    profiles.SetWanted(false);
    QCoreApplication::sendPostedEvents(&profiles);
    QVERIFY(announced.isEmpty());
    profiles.SetWanted(true);
    profiles.Analyse(made.frame);
    QCoreApplication::sendPostedEvents(&profiles);
    QCOMPARE(announced.count(), 1);
}

void LiveProfilesTest::regionIsKeptWithinThePicture_data()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double endless = std::numeric_limits<double>::infinity();
    const QRectF whole(0, 0, 1, 1);
    QTest::addColumn<QRectF>("region");
    QTest::addColumn<QRectF>("kept");
    QTest::newRow("part") << QRectF(0.1, 0.2, 0.5, 0.9) << QRectF(0.1, 0.2, 0.5, 0.9);
    QTest::newRow("a little beyond") << QRectF(-0.01, 0.2, 1.02, 1.5) << QRectF(0, 0.2, 1, 1);
    QTest::newRow("endless") << QRectF(-endless, 0, endless, 1) << whole;
    QTest::newRow("no number") << QRectF(nan, 0, 1, 1) << whole;
    QTest::newRow("no number at the end") << QRectF(0, 0, 1, nan) << whole;
    QTest::newRow("empty") << QRectF(0.5, 0, 0.5, 1) << whole;
    QTest::newRow("turned round") << QRectF(0, 0.9, 1, 0.2) << whole;
    QTest::newRow("left of the picture") << QRectF(-2, 0, -1, 1) << whole;
    QTest::newRow("below the picture") << QRectF(0, 1, 1, 2) << whole;
}

void LiveProfilesTest::regionIsKeptWithinThePicture()
{
    QFETCH(QRectF, region);
    LiveProfiles profiles(&m_settings);
    profiles.SetWanted(true);
    profiles.SetAnchorPoint(1, 1, region);
    const MadeFrame made(20, 10);
    QTEST(Shown(Payload(&profiles, made.frame)).region, "kept");
}

void LiveProfilesTest::pointBeyondThePicture_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y");
    QTest::newRow("left") << QPoint(-5, 4) << 0 << 4;
    QTest::newRow("of an earlier, larger picture") << QPoint(2000, 2000) << 19 << 9;
    QTest::newRow("as far as can be") << QPoint(std::numeric_limits<int>::min(), std::numeric_limits<int>::max()) << 0 << 9;
}

void LiveProfilesTest::pointBeyondThePicture()
{
    QFETCH(QPoint, point);
    QFETCH(int, x);
    QFETCH(int, y);
    LiveProfiles profiles(&m_settings);
    profiles.SetWanted(true);
    profiles.SetAnchorPoint(point.x(), point.y(), QRectF(0, 0, 1, 1));
    const MadeFrame made(20, 10);
    const Shown shown(Payload(&profiles, made.frame));
    QCOMPARE(shown.row, Line(20, 1000 * y, 1));
    QCOMPARE(shown.column, Line(10, x, 1000));
}

void LiveProfilesTest::frameWithoutSamplesIsLeftAlone()
{
    LiveProfiles profiles(&m_settings);
    profiles.SetWanted(true);
    QVERIFY(!Payload(&profiles, AnalysedFrame()));
    MadeFrame wide(20, 10);
    wide.frame.samples.width = 65536; // more than the contract can count
    QVERIFY(!Payload(&profiles, wide.frame));
}

void LiveProfilesTest::linesAreKept()
{
    {
        LiveProfiles profiles(&m_settings);
        QCOMPARE(profiles.Lines(), 1);
        const QSignalSpy changes(&profiles, &LiveProfiles::signalLinesChanged);
        const QSignalSpy wanted(&profiles, &LiveProfiles::signalFrameWanted);
        profiles.SetLines(11);
        profiles.SetLines(11);
        QCOMPARE(changes.count(), 1);
        QCOMPARE(wanted.count(), 1);
        profiles.SetLines(100000);
        QCOMPARE(profiles.Lines(), 101);
        profiles.SetLines(-1);
        QCOMPARE(profiles.Lines(), 1);
        profiles.SetLines(11);
    }
    {
        const LiveProfiles profiles(&m_settings);
        QCOMPARE(profiles.Lines(), 11);
    }
    m_settings.setValue("spectrum/profileLines", "many");
    const LiveProfiles profiles(&m_settings);
    QCOMPARE(profiles.Lines(), 1);
}

void LiveProfilesTest::framesOfAnotherSize()
{
    LiveProfiles profiles(&m_settings);
    profiles.SetWanted(true);
    profiles.SetAnchorPoint(0, 0, QRectF(0, 0, 1, 1));
    for (const QSize size : {QSize(20, 10), QSize(65535, 1), QSize(1, 60), QSize(3, 2)}) {
        const MadeFrame made(size.width(), size.height());
        const Shown shown(Payload(&profiles, made.frame));
        QCOMPARE(int(shown.row.size()), size.width());
        QCOMPARE(int(shown.column.size()), size.height());
        QCOMPARE(shown.row.back(), int(made.samples[size_t(size.width()) - 1]));
    }
}

/// A producer that never waits, with frames of changing sizes and a user who picks points and turns the picture:
/// what is shown is always one frame's, and is never written while it is read.
void LiveProfilesTest::exchangeAtFullSpeed()
{
    LiveProfiles profiles(&m_settings);
    profiles.SetWanted(true);
    profiles.SetAnchorPoint(5, 5, QRectF(0, 0, 1, 1));
    MadeFrame frames[] = {MadeFrame(300, 40), MadeFrame(120, 60)};
    for (size_t which = 0; which < 2; ++which)
        std::fill(frames[which].samples.begin(), frames[which].samples.end(), quint16(1000 * (which + 1)));
    SpectrumCurvePayload *payload = Payload(&profiles, frames[0].frame);

    std::atomic<bool> ends{false};
    std::atomic<int> made{0};
    std::thread producer([&] {
        while (!ends) {
            AnalysedFrame frame = frames[made % 2].frame;
            frame.orientation = Orientation(made % 3 == 0, made % 5);
            profiles.Analyse(frame);
            ++made;
        }
    });
    int torn = 0;
    int taken = 0;
    for (int turn = 0; turn < 500 || made < 500 || taken < 100; ++turn) {
        profiles.SetAnchorPoint(turn % 400, turn % 70, QRectF(0, 0, 1, 1));
        profiles.SetLines(1 + turn % 9);
        QSize size;
        {
            const PayloadLocker locker(payload->lock);
            size = QSize(payload->horizontalSize, payload->verticalSize);
        }
        ExchangedProfiles exchanged; // as the page takes them, which knows the size of the frame
        if (!ExchangeProfiles(payload, size, &exchanged))
            continue; // a frame of another size came in between
        ++taken;
        // After an exchange without a new frame the buffer may be of the frame before, but whole.
        const int count = std::min(exchanged.horizontal.size, 40);
        for (int i = 0; i < count; ++i)
            torn += exchanged.horizontal.samples[i] != exchanged.horizontal.samples[0];
    }
    ends = true;
    producer.join();
    QCOMPARE(torn, 0);
}

GUARDED_TEST_MAIN(LiveProfilesTest)
#include "liveprofilestest.moc"
