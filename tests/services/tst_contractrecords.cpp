// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"

#include "rawcameraframe.h"
#include "spectrumcurvepayload.h"
#include "spectrumlinepayload.h"
#include "viewcodes.h"

#include <QMutex>
#include <QtEndian>

#include <vector>

/// Writes the records byte by byte at their offsets, as a producer of another module does, and reads
/// them by their fields.
class TestContractRecords : public GuardedTest
{
    Q_OBJECT

private slots:
    void RawFrameIsReadWhereTheCameraLayerWritesIt()
    {
        RawCameraFrame frame = {};
        auto *bytes = reinterpret_cast<uchar *>(&frame);
        std::vector<uchar> pixels(16);
        qToLittleEndian<quint16>(0x0102, bytes + 8);
        qToLittleEndian<quint16>(4096, bytes + 12);
        qToLittleEndian<quint16>(3000, bytes + 14);
        bytes[22] = 3;
        qToLittleEndian<quint64>(reinterpret_cast<quintptr>(pixels.data()), bytes + 48);

        QCOMPARE(int(frame.headerLength), 0x0102);
        QCOMPARE(int(frame.width), 4096);
        QCOMPARE(int(frame.height), 3000);
        QCOMPARE(int(frame.channels), 3);
        QCOMPARE(frame.buffer, pixels.data());
    }

    void CurvePayloadIsReadWhereThePipelineWritesIt()
    {
        SpectrumCurvePayload payload = {};
        auto *bytes = reinterpret_cast<uchar *>(&payload);
        int buffers[4] = {};
        QMutex lock;
        const double region[4] = {0.25, 0.0, 0.75, 1.0};
        memcpy(bytes + 8, region, sizeof region);
        qToLittleEndian<qint32>(2048, bytes + 40);
        qToLittleEndian<qint32>(1024, bytes + 44);
        for (int i = 0; i < 4; ++i)
            qToLittleEndian<quint64>(reinterpret_cast<quintptr>(&buffers[i]), bytes + 64 + 8 * i);
        qToLittleEndian<quint64>(reinterpret_cast<quintptr>(&lock), bytes + 96);
        qToLittleEndian<qint32>(-5, bytes + 112);
        qToLittleEndian<qint32>(65535, bytes + 116);

        QCOMPARE(payload.region, QRectF(0.25, 0.0, 0.75, 1.0));
        QCOMPARE(payload.horizontalSize, 2048);
        QCOMPARE(payload.verticalSize, 1024);
        QCOMPARE(payload.horizontalFill, &buffers[0]);
        QCOMPARE(payload.verticalFill, &buffers[1]);
        QCOMPARE(payload.horizontalShow, &buffers[2]);
        QCOMPARE(payload.verticalShow, &buffers[3]);
        QCOMPARE(payload.lock, &lock);
        QCOMPARE(payload.leftLevel, -5);
        QCOMPARE(payload.rightLevel, 65535);
    }

    void LinePayloadIsReadWhereThePipelineWritesIt()
    {
        SpectrumLinePayload payload = {};
        auto *bytes = reinterpret_cast<uchar *>(&payload);
        unsigned int buffers[2] = {};
        QMutex lock;
        qToLittleEndian<quint64>(reinterpret_cast<quintptr>(&buffers[0]), bytes + 8);
        qToLittleEndian<quint64>(reinterpret_cast<quintptr>(&buffers[1]), bytes + 16);
        qToLittleEndian<quint64>(reinterpret_cast<quintptr>(&lock), bytes + 24);
        qToLittleEndian<qint32>(-1, bytes + 32);
        qToLittleEndian<qint32>(1 << 20, bytes + 36);

        QCOMPARE(payload.fill, &buffers[0]);
        QCOMPARE(payload.show, &buffers[1]);
        QCOMPARE(payload.lock, &lock);
        QCOMPARE(payload.minimum, -1);
        QCOMPARE(payload.maximum, 1 << 20);
    }

    void CodesHaveTheValuesThatHostsStore()
    {
        QCOMPARE(int(CameraView), 0);
        QCOMPARE(int(ImageView), 1);
        QCOMPARE(int(FileView), 2);
        QCOMPARE(int(CameraCompareView), 3);
        QCOMPARE(int(ImageCompareView), 4);
        QCOMPARE(int(ZoomTypeIn), 0);
        QCOMPARE(int(ZoomTypeOut), 1);
        QCOMPARE(int(ZoomTypeOneToOne), 2);
        QCOMPARE(int(ZoomTypeFit), 3);
        QCOMPARE(int(RotateBy90), 0);
        QCOMPARE(int(FlipHorizontal), 1);
        QCOMPARE(int(FlipVertical), 2);
    }
};

GUARDED_TEST_MAIN(TestContractRecords)
#include "tst_contractrecords.moc"
