// SPDX-License-Identifier: GPL-3.0-or-later
#include "araviserror.h"

#include "cameraformat.h"
#include "guardedtest.h"

#include <memory>

namespace {

/// Lets one call to a camera of Aravis' own go unanswered, counted from now on. One at a time.
class UnansweredCall
{
public:
    UnansweredCall(ArvCamera *camera, int index)
        : m_class(ARV_DEVICE_GET_CLASS(arv_camera_get_device(camera)))
        , m_readMemory(m_class->read_memory)
        , m_readRegister(m_class->read_register)
    {
        s_call = this;
        m_callsUntilThen = index;
        m_class->read_memory = [](ArvDevice *device, guint64 address, guint32 size, void *buffer,
                                   GError **error) -> gboolean {
            return s_call->IsAnswered(error) && s_call->m_readMemory(device, address, size, buffer, error);
        };
        m_class->read_register = [](ArvDevice *device, guint64 address, guint32 *value, GError **error) -> gboolean {
            return s_call->IsAnswered(error) && s_call->m_readRegister(device, address, value, error);
        };
    }
    ~UnansweredCall()
    {
        m_class->read_memory = m_readMemory;
        m_class->read_register = m_readRegister;
    }

    bool HasCome() const { return m_callsUntilThen < 0; }

private:
    gboolean IsAnswered(GError **error)
    {
        if (m_callsUntilThen-- != 0)
            return TRUE;
        g_set_error(error, ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_TIMEOUT, "no answer");
        return FALSE;
    }

    static UnansweredCall *s_call;
    ArvDeviceClass *const m_class;
    const decltype(ArvDeviceClass::read_memory) m_readMemory;
    const decltype(ArvDeviceClass::read_register) m_readRegister;
    int m_callsUntilThen;
};

UnansweredCall *UnansweredCall::s_call = nullptr;

} // namespace

class CameraFormatTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void FitsARegionOntoTheSensor_data();
    void FitsARegionOntoTheSensor();
    void LayoutsKnowTheirSamples();
    void UnansweredCallLeavesWhatWasKnown();
};

void CameraFormatTest::FitsARegionOntoTheSensor_data()
{
    QTest::addColumn<QRect>("wished");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("step");
    QTest::addColumn<QRect>("fitted");
    QTest::newRow("as wished") << QRect(10, 20, 641, 479) << 1 << 1 << QRect(10, 20, 641, 479);
    QTest::newRow("too wide") << QRect(10, 0, 5000, 100) << 1 << 1 << QRect(0, 0, 2048, 100);
    QTest::newRow("moved inside") << QRect(2000, 1000, 200, 100) << 1 << 1 << QRect(1848, 924, 200, 100);
    QTest::newRow("negative corner") << QRect(-5, -9, 30, 40) << 1 << 1 << QRect(0, 0, 30, 40);
    QTest::newRow("empty") << QRect(7, 7, 0, 0) << 1 << 1 << QRect(7, 7, 1, 1);
    QTest::newRow("on steps of 8") << QRect(13, 27, 645, 483) << 16 << 8 << QRect(8, 24, 640, 480);
    QTest::newRow("smaller than the smallest") << QRect(13, 27, 3, 3) << 16 << 8 << QRect(8, 24, 16, 16);
    QTest::newRow("steps from an odd smallest") << QRect(0, 0, 100, 100) << 10 << 8 << QRect(0, 0, 98, 98);
}

void CameraFormatTest::FitsARegionOntoTheSensor()
{
    QFETCH(QRect, wished);
    QFETCH(int, minimum);
    QFETCH(int, step);
    QFETCH(QRect, fitted);
    RegionLimits limits;
    limits.sensorSize = QSize(2048, 1024);
    limits.minimumSize = QSize(minimum, minimum);
    limits.sizeStep = QSize(step, step);
    limits.offsetStep = QSize(step, step);
    QCOMPARE(FittedRegion(wished, limits), fitted);
}

void CameraFormatTest::LayoutsKnowTheirSamples()
{
    QCOMPARE(BytesPerPixel(PixelLayout::Mono8), 1);
    QCOMPARE(BytesPerPixel(PixelLayout::Mono12), 2);
    QCOMPARE(BytesPerPixel(PixelLayout::Mono16), 2);
    QCOMPARE(BytesPerPixel(PixelLayout::Rgb8), 3);
    QCOMPARE(BitDepth(PixelLayout::Mono12), 12);
    QCOMPARE(BitDepth(PixelLayout::Mono16), 16);
    QCOMPARE(PixelLayoutName(PixelLayout::Rgb8), QString("RGB8"));
}

void CameraFormatTest::UnansweredCallLeavesWhatWasKnown()
{
    arv_enable_interface("Fake");
    const std::unique_ptr<ArvCamera, decltype(&g_object_unref)> camera(arv_camera_new("Fake_1", nullptr), g_object_unref);
    QVERIFY(camera);
    CameraFormat format(camera.get(), nullptr);
    QString error;
    QVERIFY2(format.SetLayout(PixelLayout::Mono16, &error) && format.SetBinning(2, &error)
                 && format.SetRegion(QRect(64, 32, 512, 256), &error),
             qPrintable(error));
    const FormatValues before = format.Values();
    QCOMPARE(before.limits.sensorSize, QSize(2048, 2048));
    QCOMPARE(before.binnings.size(), 16);
    int calls = 0;
    for (bool hasCome = true; hasCome; ++calls) {
        const UnansweredCall unanswered(camera.get(), calls);
        QVERIFY2(format.ReadAgain(), qPrintable(QString("call %1").arg(calls)));
        QVERIFY2(format.Values() == before, qPrintable(QString("call %1").arg(calls)));
        hasCome = unanswered.HasCome();
    }
    QVERIFY2(calls > 8, qPrintable(QString::number(calls))); // format, sensor, region and binning were each asked for
}

GUARDED_TEST_MAIN(CameraFormatTest)
#include "cameraformattest.moc"
