// SPDX-License-Identifier: GPL-3.0-or-later
#include <arv.h> // before Qt, whose "signals" GLib uses as a name

#include "framecollector.h"
#include "frameledger.h"
#include "framereceiver.h"
#include "guardedtest.h"
#include "simulatedsensor.h"
#include "streambufferpool.h"

#include <numeric>

namespace {

const FrameOrigin Origin{"Fake 7", QRect(16, 32, 1024, 1024), 2};

} // namespace

/// Buffers are filled by Aravis' simulated camera and given ids of our choice, so that loss can be made at will.
class FrameReceiverTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() override;
    void cleanup() override;
    void cleanupTestCase();

    void DeliversTheFrameAsItIs();
    void CountsMissingIdsAsLostInTheCamera();
    void WrapOfTheShortIdIsNoLoss();
    void CountsDamagedFramesAsLostInTransfer();
    void IdsOfDamagedFramesAreNotTrusted();
    void FramesOfAnotherPixelFormatAreDamaged();
    void ClosedGateNeitherCountsNorDelivers();
    void TicksWithoutExposureAreNoFrames();
    void HeldFramesKeepTheirPixels();

private:
    ArvBuffer *FilledBuffer(quint64 frameId);
    void Deliver(quint64 frameId);

    static constexpr int Width = 512; // the simulated camera's region after power-up
    static constexpr int Height = 512;

    ArvFakeCamera *m_camera = nullptr;
    FrameLedger m_ledger;
    FrameCollector m_collector;
    std::shared_ptr<StreamBufferPool> m_pool;
    std::unique_ptr<FrameReceiver> m_receiver;
};

void FrameReceiverTest::initTestCase() { m_camera = arv_fake_camera_new("7"); }

void FrameReceiverTest::cleanupTestCase() { g_clear_object(&m_camera); }

void FrameReceiverTest::init()
{
    StartGuard();
    m_ledger.Reset();
    m_collector.Clear();
    m_pool = StreamBufferPool::Create(arv_fake_camera_get_payload(m_camera));
    m_receiver = std::make_unique<FrameReceiver>(m_ledger, m_pool, PixelLayout::Mono8, Origin);
    m_receiver->OpenGate(&m_collector);
}

void FrameReceiverTest::cleanup()
{
    m_receiver.reset();
    m_collector.Clear();
    m_pool.reset();
    EndGuard();
}

ArvBuffer *FrameReceiverTest::FilledBuffer(quint64 frameId)
{
    ArvBuffer *buffer = m_pool->Take();
    arv_fake_camera_fill_buffer(m_camera, buffer, nullptr);
    arv_buffer_set_frame_id(buffer, frameId);
    return buffer;
}

void FrameReceiverTest::Deliver(quint64 frameId)
{
    ArvBuffer *buffer = FilledBuffer(frameId);
    if (!m_receiver->Deliver(buffer))
        g_object_unref(buffer);
}

void FrameReceiverTest::DeliversTheFrameAsItIs()
{
    ArvBuffer *buffer = FilledBuffer(42);
    arv_buffer_set_timestamp(buffer, 1234567890123);
    arv_buffer_set_system_timestamp(buffer, 1700000000000000000);
    size_t size = 0;
    const void *data = arv_buffer_get_data(buffer, &size);
    QVERIFY(m_receiver->Deliver(buffer));

    const CameraFrame frame = m_collector.Last();
    QCOMPARE(static_cast<const void *>(frame.pixels.get()), data); // lent, not copied
    QCOMPARE(QSize(frame.width, frame.height), QSize(Width, Height));
    QCOMPARE(frame.strideBytes, Width);
    QCOMPARE(frame.ByteCount(), qint64(Width) * Height);
    QCOMPARE(frame.BitDepth(), 8);
    QCOMPARE(frame.frameId, quint64(42));
    QCOMPARE(frame.cameraTimeNs, qint64(1234567890123));
    QCOMPARE(frame.hostTimeNs, qint64(1700000000000000000));
    QCOMPARE(frame.origin.camera, Origin.camera);
    QCOMPARE(frame.origin.region, Origin.region);
    QCOMPARE(frame.origin.binning, Origin.binning);
    QCOMPARE(m_ledger.Counts().captured, quint64(1));
}

void FrameReceiverTest::CountsMissingIdsAsLostInTheCamera()
{
    for (const quint64 id : { 10, 11, 14, 15, 20 })
        Deliver(id);
    QCOMPARE(m_ledger.Counts().captured, quint64(5));
    QCOMPARE(m_ledger.Counts().LostAt(LossStage::Camera), quint64(6)); // 12, 13 and 16 to 19
    QCOMPARE(m_ledger.Counts().Lost(), quint64(6));
}

void FrameReceiverTest::WrapOfTheShortIdIsNoLoss()
{
    for (const quint64 id : { 65533, 65534, 65535, 1, 2 })
        Deliver(id);
    QCOMPARE(m_ledger.Counts().Lost(), quint64(0));
    QCOMPARE(m_collector.Last().frameId, quint64(65537));
}

void FrameReceiverTest::CountsDamagedFramesAsLostInTransfer()
{
    Deliver(1);
    // One row too small for what the camera sends: the status is a size mismatch.
    ArvBuffer *damaged = arv_buffer_new_allocate(size_t(Width) * (Height - 1));
    arv_fake_camera_fill_buffer(m_camera, damaged, nullptr);
    QVERIFY(arv_buffer_get_status(damaged) != ARV_BUFFER_STATUS_SUCCESS);
    arv_buffer_set_frame_id(damaged, 2);
    QVERIFY(!m_receiver->Deliver(damaged));
    g_object_unref(damaged);
    Deliver(3);

    QCOMPARE(m_ledger.Counts().captured, quint64(2));
    QCOMPARE(m_ledger.Counts().LostAt(LossStage::Transfer), quint64(1));
    QCOMPARE(m_ledger.Counts().LostAt(LossStage::Camera), quint64(0)); // counted once, not again as a gap
    QCOMPARE(m_collector.Count(), size_t(2));
}

/// A frame without its first packet has the id that its buffer had before, or none.
void FrameReceiverTest::IdsOfDamagedFramesAreNotTrusted()
{
    const auto deliverDamaged = [this](quint64 id) {
        ArvBuffer *damaged = arv_buffer_new_allocate(size_t(Width) * (Height - 1));
        arv_fake_camera_fill_buffer(m_camera, damaged, nullptr);
        arv_buffer_set_frame_id(damaged, id);
        QVERIFY(!m_receiver->Deliver(damaged));
        g_object_unref(damaged);
    };
    deliverDamaged(0); // its id is not known before a whole frame came
    Deliver(65403);
    deliverDamaged(0);     // 65404
    deliverDamaged(65403); // 65405
    Deliver(65408);        // 65406 and 65407 never came
    deliverDamaged(65402); // 65409
    QCOMPARE(m_ledger.Counts().LostAt(LossStage::Transfer), quint64(4));
    QCOMPARE(m_ledger.Counts().LostAt(LossStage::Camera), quint64(2));
    QCOMPARE(m_collector.Losses(), (QStringList{ "incomplete 0 x 1", "incomplete 65404 x 1", "incomplete 65405 x 1",
                                                 "missing 65406 x 2", "incomplete 65409 x 1" }));
}

/// The camera was given another one, and the stream was not made anew yet.
void FrameReceiverTest::FramesOfAnotherPixelFormatAreDamaged()
{
    m_receiver.reset();
    m_pool = StreamBufferPool::Create(2 * arv_fake_camera_get_payload(m_camera));
    m_receiver = std::make_unique<FrameReceiver>(m_ledger, m_pool, PixelLayout::Mono8, Origin);
    m_receiver->OpenGate(&m_collector);
    Deliver(1);
    arv_fake_camera_write_register(m_camera, ARV_FAKE_CAMERA_REGISTER_PIXEL_FORMAT, ARV_PIXEL_FORMAT_MONO_16);
    Deliver(2);
    arv_fake_camera_write_register(m_camera, ARV_FAKE_CAMERA_REGISTER_PIXEL_FORMAT, ARV_PIXEL_FORMAT_MONO_8);
    Deliver(3);
    QCOMPARE(m_collector.Count(), size_t(2));
    QCOMPARE(m_ledger.Counts().LostAt(LossStage::Transfer), quint64(1));
    QCOMPARE(m_ledger.Counts().Lost(), quint64(1));
}

void FrameReceiverTest::ClosedGateNeitherCountsNorDelivers()
{
    Deliver(1);
    m_receiver->CloseGate();
    for (const quint64 id : { 2, 3, 9 })
        Deliver(id);
    QCOMPARE(m_collector.Count(), size_t(1));
    QCOMPARE(m_ledger.Counts().captured, quint64(1));
    m_receiver->OpenGate(&m_collector);
    Deliver(30);
    QCOMPARE(m_collector.Count(), size_t(2));
    QCOMPARE(m_ledger.Counts().Lost(), quint64(0)); // what passed a closed gate is not missing
}

void FrameReceiverTest::TicksWithoutExposureAreNoFrames()
{
    Deliver(1);
    Deliver(SimulatedSensor::NotExposed);
    Deliver(2);
    QCOMPARE(m_ledger.Counts().captured, quint64(2));
    QCOMPARE(m_ledger.Counts().Lost(), quint64(0));
}

void FrameReceiverTest::HeldFramesKeepTheirPixels()
{
    Deliver(1);
    CameraFrame held = m_collector.Last();
    m_collector.Clear();
    const uchar *memory = held.pixels.get();
    Deliver(2);
    QVERIFY(m_collector.Last().pixels.get() != memory); // still held: not used again
    held = CameraFrame();
    Deliver(3);
    QCOMPARE(static_cast<const void *>(m_collector.Last().pixels.get()), static_cast<const void *>(memory));

    held = m_collector.Last();
    m_receiver.reset();
    m_collector.Clear();
    m_pool.reset();
    QCOMPARE(held.frameId, quint64(3)); // and the memory outlives the stream
    QVERIFY(std::accumulate(held.Row(0), held.Row(0) + Width, 0) > 0);
}

GUARDED_TEST_MAIN(FrameReceiverTest)
#include "framereceivertest.moc"
