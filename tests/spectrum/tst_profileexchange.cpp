// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "payloadlocker.h"
#include "profileexchange.h"
#include "spectrumcurvepayload.h"

#include <QMutex>

#include <algorithm>
#include <atomic>
#include <limits>
#include <thread>
#include <vector>

namespace {

constexpr QSize FrameSize(2048, 1000);

/// A payload with its four buffers, as the preview pipeline keeps them.
struct Producer
{
    Producer()
    {
        payload.region = QRectF(0.25, 0.0, 0.75, 1.0);
        payload.horizontalSize = FrameSize.width();
        payload.verticalSize = FrameSize.height();
        payload.horizontalFill = rows[0].data();
        payload.horizontalShow = rows[1].data();
        payload.verticalFill = columns[0].data();
        payload.verticalShow = columns[1].data();
        payload.lock = &mutex;
        payload.leftLevel = 3;
        payload.rightLevel = 250;
    }

    QMutex mutex;
    std::vector<int> rows[2] = { std::vector<int>(2048), std::vector<int>(2048) };
    std::vector<int> columns[2] = { std::vector<int>(1000), std::vector<int>(1000) };
    SpectrumCurvePayload payload{};
};

} // namespace

class TestProfileExchange : public GuardedTest
{
    Q_OBJECT

private slots:
    void theFilledBuffersAreShown();
    void aPayloadThatDoesNotFitIsLeftAlone_data();
    void aPayloadThatDoesNotFitIsLeftAlone();
    void aPayloadWithoutALockIsLeftAlone();
    void aPayloadWithoutABufferIsLeftAlone_data();
    void aPayloadWithoutABufferIsLeftAlone();
    void sizesThatDisagreeAreLeftAlone_data();
    void sizesThatDisagreeAreLeftAlone();
    void aPartOfAShorterLineIsShown();
    void shownSamplesStayWhileTheProducerWrites();
};

void TestProfileExchange::theFilledBuffersAreShown()
{
    Producer producer;
    ExchangedProfiles profiles;
    QVERIFY(ExchangeProfiles(&producer.payload, FrameSize, &profiles));
    QCOMPARE(profiles.horizontal.samples, producer.rows[0].data());
    QCOMPARE(producer.payload.horizontalFill, producer.rows[1].data());
    QCOMPARE(profiles.horizontal.offset, 512);
    QCOMPARE(profiles.horizontal.count, 1024);
    QCOMPARE(profiles.vertical.samples, producer.columns[0].data());
    QCOMPARE(profiles.vertical.offset, 0);
    QCOMPARE(profiles.vertical.count, 1000);
    QCOMPARE(profiles.leftLevel, 3);
    QCOMPARE(profiles.rightLevel, 250);
}

void TestProfileExchange::aPayloadThatDoesNotFitIsLeftAlone_data()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::addColumn<QRectF>("region");
    QTest::addColumn<QSize>("frameSize");
    QTest::newRow("smaller frame") << QRectF(0, 0, 1, 1) << QSize(1024, 1000);
    QTest::newRow("no frame") << QRectF(0, 0, 1, 1) << QSize(0, 0);
    QTest::newRow("left of the picture") << QRectF(-0.1, 0, 1, 1) << FrameSize;
    QTest::newRow("below the picture") << QRectF(0, 0, 1, 1.1) << FrameSize;
    QTest::newRow("turned round") << QRectF(0.75, 0, 0.25, 1) << FrameSize;
    QTest::newRow("no number") << QRectF(nan, 0, 1, nan) << FrameSize;
    QTest::newRow("left is no number") << QRectF(nan, 0, 1, 1) << FrameSize;
    QTest::newRow("bottom is no number") << QRectF(0, 0, 1, nan) << FrameSize;
    QTest::newRow("endless") << QRectF(0, 0, std::numeric_limits<double>::infinity(), 1) << FrameSize;
}

void TestProfileExchange::aPayloadThatDoesNotFitIsLeftAlone()
{
    QFETCH(QRectF, region);
    QFETCH(QSize, frameSize);
    Producer producer;
    producer.payload.region = region;
    ExchangedProfiles profiles;
    QVERIFY(!ExchangeProfiles(&producer.payload, frameSize, &profiles));
    QCOMPARE(producer.payload.horizontalFill, producer.rows[0].data());
    QCOMPARE(producer.payload.verticalShow, producer.columns[1].data());
}

void TestProfileExchange::aPayloadWithoutALockIsLeftAlone()
{
    Producer producer;
    producer.payload.lock = nullptr;
    ExchangedProfiles profiles;
    QVERIFY(!ExchangeProfiles(&producer.payload, FrameSize, &profiles));
    QVERIFY(!ExchangeProfiles(nullptr, FrameSize, &profiles));
    QCOMPARE(producer.payload.horizontalFill, producer.rows[0].data());
}

void TestProfileExchange::aPayloadWithoutABufferIsLeftAlone_data()
{
    QTest::addColumn<int>("buffer");
    QTest::newRow("row to fill") << 0;
    QTest::newRow("column to fill") << 1;
    QTest::newRow("row to show") << 2;
    QTest::newRow("column to show") << 3;
}

void TestProfileExchange::aPayloadWithoutABufferIsLeftAlone()
{
    QFETCH(int, buffer);
    Producer producer;
    SpectrumCurvePayload &payload = producer.payload;
    int **buffers[] = { &payload.horizontalFill, &payload.verticalFill, &payload.horizontalShow, &payload.verticalShow };
    *buffers[buffer] = nullptr;
    const SpectrumCurvePayload before = payload;
    ExchangedProfiles profiles;
    QVERIFY(!ExchangeProfiles(&payload, FrameSize, &profiles));
    QCOMPARE(payload.horizontalFill, before.horizontalFill);
    QCOMPARE(payload.verticalFill, before.verticalFill);
    QVERIFY(producer.mutex.tryLock()); // nor is it left locked
    producer.mutex.unlock();
}

void TestProfileExchange::sizesThatDisagreeAreLeftAlone_data()
{
    QTest::addColumn<int>("horizontalSize");
    QTest::addColumn<int>("verticalSize");
    QTest::newRow("no columns") << 0 << 1000;
    QTest::newRow("no rows") << 2048 << 0;
    QTest::newRow("below 0") << -2048 << -1000;
    QTest::newRow("row too long") << 2049 << 1000;
    QTest::newRow("column too long") << 2048 << 1001;
    // The region ends at column 1536 and row 1000.
    QTest::newRow("row too short for the region") << 1535 << 1000;
    QTest::newRow("column too short for the region") << 2048 << 999;
}

void TestProfileExchange::sizesThatDisagreeAreLeftAlone()
{
    QFETCH(int, horizontalSize);
    QFETCH(int, verticalSize);
    Producer producer;
    producer.payload.horizontalSize = horizontalSize;
    producer.payload.verticalSize = verticalSize;
    ExchangedProfiles profiles;
    QVERIFY(!ExchangeProfiles(&producer.payload, FrameSize, &profiles));
    QCOMPARE(producer.payload.horizontalFill, producer.rows[0].data());
    QCOMPARE(profiles.horizontal.samples, nullptr);
}

void TestProfileExchange::aPartOfAShorterLineIsShown()
{
    Producer producer;
    producer.payload.horizontalSize = 1536;
    ExchangedProfiles profiles;
    QVERIFY(ExchangeProfiles(&producer.payload, FrameSize, &profiles));
    QCOMPARE(profiles.horizontal.size, 1536);
    QCOMPARE(profiles.horizontal.offset, 512);
    QCOMPARE(profiles.horizontal.count, 1024);
}

void TestProfileExchange::shownSamplesStayWhileTheProducerWrites()
{
    Producer producer;
    std::atomic<bool> stop{ false };
    std::atomic<int> written{ 0 };
    std::thread writer([&] {
        while (!stop) {
            const PayloadLocker locker(&producer.mutex);
            std::fill_n(producer.payload.horizontalFill, FrameSize.width(), ++written);
        }
    });
    int torn = 0;
    int refused = 0;
    for (int turn = 0; turn < 2000 || written < 2000; ++turn) {
        ExchangedProfiles profiles;
        if (!ExchangeProfiles(&producer.payload, FrameSize, &profiles)) {
            ++refused;
            continue;
        }
        const int *samples = profiles.horizontal.samples;
        torn += std::all_of(samples, samples + profiles.horizontal.size,
                            [samples](int sample) { return sample == samples[0]; }) ? 0 : 1;
    }
    stop = true;
    writer.join();
    QCOMPARE(torn, 0);
    QCOMPARE(refused, 0);
}

GUARDED_TEST_MAIN(TestProfileExchange)
#include "tst_profileexchange.moc"
