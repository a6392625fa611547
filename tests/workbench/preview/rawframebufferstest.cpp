// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "rawframebuffers.h"

#include <QImage>

/// What the GPU path reads: packed rows behind a header, never written while it is the front record.
class RawFrameBuffersTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void noRecordBeforeTheFirstFrame()
    {
        const RawFrameBuffers buffers;
        QVERIFY(!buffers.Front());
    }

    void rowsArePacked_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("format");
        for (const QSize &size : {QSize(1, 1), QSize(3, 5), QSize(641, 7), QSize(64, 4)}) {
            QTest::addRow("grey %d x %d", size.width(), size.height()) << size << int(QImage::Format_Grayscale8);
            QTest::addRow("RGB %d x %d", size.width(), size.height()) << size << int(QImage::Format_RGB888);
        }
    }

    void rowsArePacked()
    {
        QFETCH(QSize, size);
        QFETCH(int, format);
        const QImage picture = Picture(size, QImage::Format(format), 7);
        RawFrameBuffers buffers;
        buffers.FillBack(picture);
        buffers.Swap();

        const RawCameraFrame *frame = buffers.Front();
        const int channels = format == QImage::Format_RGB888 ? 3 : 1;
        QCOMPARE(int(frame->width), size.width());
        QCOMPARE(int(frame->height), size.height());
        QCOMPARE(int(frame->channels), channels);
        const uchar *pixels = frame->buffer + frame->headerLength;
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width() * channels; ++x)
                QCOMPARE(pixels[y * size.width() * channels + x], picture.constScanLine(y)[x]);
        }
    }

    void frontRecordStaysWhileTheNextFrameIsWritten()
    {
        RawFrameBuffers buffers;
        buffers.FillBack(Picture(QSize(9, 4), QImage::Format_Grayscale8, 1));
        buffers.Swap();
        const RawCameraFrame *front = buffers.Front();
        const QByteArray before(reinterpret_cast<const char *>(front->buffer + front->headerLength), 9 * 4);

        buffers.FillBack(Picture(QSize(640, 480), QImage::Format_RGB888, 99));

        QCOMPARE(buffers.Front(), front);
        QCOMPARE(int(front->width), 9);
        QCOMPARE(QByteArray(reinterpret_cast<const char *>(front->buffer + front->headerLength), 9 * 4), before);
        buffers.Swap();
        QCOMPARE(int(buffers.Front()->width), 640);
    }

private:
    static QImage Picture(const QSize &size, QImage::Format format, int seed)
    {
        QImage picture(size, format);
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.bytesPerLine(); ++x)
                picture.scanLine(y)[x] = uchar(seed + 31 * x + 17 * y);
        }
        return picture;
    }
};

GUARDED_TEST_MAIN(RawFrameBuffersTest)
#include "rawframebufferstest.moc"
