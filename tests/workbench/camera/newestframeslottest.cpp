// SPDX-License-Identifier: GPL-3.0-or-later
#include "newestframeslot.h"
#include "guardedtest.h"

#include <QElapsedTimer>
#include <atomic>
#include <thread>
#include <vector>

class NewestFrameSlotTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void GivesTheNewestFrameOnce();
    void EmptySlotTimesOut();
    void FastProducerPilesUpNothing();
    void StopWakesTheWaitingDisplay();
    void RestartForgetsTheLastRun();
};

namespace {
CameraFrame FrameWithId(quint64 id)
{
    CameraFrame frame;
    frame.pixels = std::shared_ptr<const uchar>(new uchar[1], [](const uchar *pixels) { delete[] pixels; });
    frame.frameId = id;
    return frame;
}
} // namespace

void NewestFrameSlotTest::GivesTheNewestFrameOnce()
{
    NewestFrameSlot slot;
    for (quint64 id = 1; id <= 3; ++id)
        slot.Put(FrameWithId(id));
    QCOMPARE(slot.Take(0).frameId, quint64(3));
    QCOMPARE(slot.SkippedCount(), quint64(2));
    QVERIFY(slot.Take(0).IsNull());
}

void NewestFrameSlotTest::EmptySlotTimesOut()
{
    NewestFrameSlot slot;
    QElapsedTimer timer;
    timer.start();
    QVERIFY(slot.Take(30).IsNull());
    QVERIFY(timer.elapsed() >= 29);
}

void NewestFrameSlotTest::FastProducerPilesUpNothing()
{
    constexpr quint64 frames = 10000;
    std::atomic<int> alive{ 0 };
    std::atomic<int> mostAlive{ 0 };
    NewestFrameSlot slot;
    std::thread producer([&] {
        for (quint64 id = 1; id <= frames; ++id) {
            CameraFrame frame;
            frame.frameId = id;
            const int nowAlive = ++alive;
            mostAlive = std::max(mostAlive.load(), nowAlive);
            frame.pixels = std::shared_ptr<const uchar>(new uchar[16], [&alive](const uchar *pixels) {
                delete[] pixels;
                --alive;
            });
            slot.Put(frame);
        }
    });

    std::vector<quint64> seen;
    while (seen.empty() || seen.back() < frames) {
        const CameraFrame frame = slot.Take(2000);
        if (frame.IsNull())
            break;
        seen.push_back(frame.frameId);
    }
    producer.join();
    QCOMPARE(seen.back(), frames); // the last frame is always seen
    QVERIFY(std::is_sorted(seen.begin(), seen.end()));
    QCOMPARE(slot.SkippedCount() + seen.size(), frames);
    // One in the slot, one that replaces it, one at the display.
    QVERIFY2(mostAlive <= 3, qPrintable(QString::number(mostAlive)));
    QCOMPARE(alive.load(), 0);
}

void NewestFrameSlotTest::StopWakesTheWaitingDisplay()
{
    NewestFrameSlot slot;
    std::thread stopper([&slot] { slot.Stop(); });
    QElapsedTimer timer;
    timer.start();
    QVERIFY(slot.Take(20000).IsNull());
    QVERIFY(timer.elapsed() < 10000);
    stopper.join();
    slot.Put(FrameWithId(1));
    QVERIFY(slot.Take(0).IsNull());
}

void NewestFrameSlotTest::RestartForgetsTheLastRun()
{
    NewestFrameSlot slot;
    slot.Put(FrameWithId(1));
    slot.Put(FrameWithId(2));
    slot.Stop();
    slot.Restart();
    QVERIFY(slot.Take(0).IsNull());
    QCOMPARE(slot.SkippedCount(), quint64(0));
    slot.Put(FrameWithId(3));
    QCOMPARE(slot.Take(0).frameId, quint64(3));
}

GUARDED_TEST_MAIN(NewestFrameSlotTest)
#include "newestframeslottest.moc"
