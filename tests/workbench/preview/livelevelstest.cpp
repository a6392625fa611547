// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "liveorientation.h"
#include "livepreview.h"
#include "rawcameraframe.h"
#include "testframes.h"

#include <QSignalSpy>

/// What the user chose for the levels reaches the live picture and its raw frame record, and the picture's levels reach
/// whoever watches.
class LiveLevelsTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void manualLevelsAreThoseOfThePicture()
    {
        Preview preview;
        preview.levels.model.SetSetting(12, {LevelsMode::Manual, 10, 61, 1.0});
        preview.Show(TestFrames::Make(91, 2, PixelLayout::Mono12)); // samples x + 10 y
        QCOMPARE(preview.Grey(10, 0), 0);
        QCOMPARE(preview.Grey(10, 1), 50); // 255 * (20 - 10) / 51
        QCOMPARE(preview.Grey(35, 0), 125);
        QCOMPARE(preview.Grey(61, 0), 255);
        QCOMPARE(preview.Grey(90, 1), 255);
    }

    void gammaBrightensTheMiddle()
    {
        Preview preview;
        preview.levels.model.SetSetting(8, {LevelsMode::Manual, 0, 80, 2.0});
        preview.Show(TestFrames::Make(91, 1, PixelLayout::Mono8));
        QCOMPARE(preview.Grey(20, 0), 128); // 255 * sqrt(20 / 80) = 127.5, rounded up
        QCOMPARE(preview.Grey(80, 0), 255);
    }

    void standingPictureFollowsTheSetting()
    {
        Preview preview;
        preview.Show(TestFrames::Make(8, 1, PixelLayout::Mono8));
        preview.preview.StopPreview();
        QCOMPARE(preview.Grey(5, 0), 5);
        preview.levels.model.SetSetting(8, {LevelsMode::Manual, 0, 10, 1.0});
        QTRY_COMPARE(preview.preview.DeliveredCount(), quint64(2));
        QCOMPARE(preview.Grey(5, 0), 128);
    }

    void saturatedSamplesAreRedInPictureAndRecord()
    {
        Preview preview;
        preview.levels.model.slotSetMarksSaturated(true);
        preview.Show(TestFrames::Make(30, 2, PixelLayout::Mono8, 230)); // 255 at (25, 0) and (15, 1)
        QCOMPARE(preview.Picture().format(), QImage::Format_RGB888);
        QCOMPARE(preview.Picture().pixel(25, 0), qRgb(255, 0, 0));
        QCOMPARE(preview.Picture().pixel(15, 1), qRgb(255, 0, 0));
        QCOMPARE(preview.Picture().pixel(24, 0), qRgb(254, 254, 254));
        const RawCameraFrame *raw = preview.preview.GetCurrentRawFrame();
        QCOMPARE(int(raw->channels), 3);
        const uchar *pixels = raw->buffer + raw->headerLength;
        QCOMPARE(QColor(pixels[75], pixels[76], pixels[77]), QColor(255, 0, 0));
        QCOMPARE(QColor(pixels[72], pixels[73], pixels[74]), QColor(254, 254, 254));
    }

    void withoutTheMarkMonoStaysOneChannel()
    {
        Preview preview;
        preview.levels.model.slotSetMarksSaturated(true);
        preview.levels.model.slotSetMarksSaturated(false);
        preview.Show(TestFrames::Make(30, 2, PixelLayout::Mono8, 230));
        QCOMPARE(preview.Picture().format(), QImage::Format_Grayscale8);
        QCOMPARE(int(preview.preview.GetCurrentRawFrame()->channels), 1);
    }

    void markTakesTheBitDepthOfTheFrame()
    {
        Preview preview;
        preview.levels.model.slotSetMarksSaturated(true);
        preview.Show(TestFrames::Make(3, 1, PixelLayout::Mono12, 4094)); // 4094, 4095, 0
        QCOMPARE(preview.Picture().pixel(1, 0), qRgb(255, 0, 0));
        QVERIFY(preview.Picture().pixel(0, 0) != qRgb(255, 0, 0));
        preview.Show(TestFrames::Make(3, 1, PixelLayout::Mono16, 4094));
        QVERIFY(preview.Picture().pixel(1, 0) != qRgb(255, 0, 0));
    }

    void reportsTellLevelsAndHistogramWhileWatched()
    {
        Preview preview;
        QSignalSpy reports(&preview.levels.live, SIGNAL(signalReport(LevelsReport)));
        preview.levels.model.SetSetting(12, {LevelsMode::MinimumMaximum, 0, 1, 1.4});
        preview.Show(TestFrames::Make(33, 4, PixelLayout::Mono12));
        QCOMPARE(reports.count(), 0);

        preview.levels.live.SetWatched(this, true);
        preview.Show(TestFrames::Make(33, 4, PixelLayout::Mono12));
        QTRY_VERIFY(reports.count() > 0);
        const auto report = reports.at(0).at(0).value<LevelsReport>();
        QVERIFY(report.kind == SampleKind(12));
        QCOMPARE(report.levels.left, 0.0);
        QCOMPARE(report.levels.right, 62.0);
        QCOMPARE(report.gamma, 1.4);
        QCOMPARE(report.axis.left, -0.5);
        QCOMPARE(report.axis.right, 4095.5);
        // 16 values to a column; the samples are x + 10 y.
        QCOMPARE(report.histogram.size(), int(LevelsReport::HistogramColumns));
        QCOMPARE(report.histogram.mid(0, 5), QVector<qint64>({16 + 6, 16 + 16 + 12 + 2, 1 + 11 + 16 + 16, 5 + 15, 0}));
    }

    void everyChangeOfTheSettingIsReportedThoughReportsAreRare()
    {
        Preview preview;
        preview.levels.live.SetWatched(this, true);
        QSignalSpy reports(&preview.levels.live, SIGNAL(signalReport(LevelsReport)));
        preview.Show(TestFrames::Make(9, 1, PixelLayout::Mono8));
        for (const double right : {100, 120, 140}) {
            preview.levels.model.SetSetting(8, {LevelsMode::Manual, 0, right, 1.0});
            preview.Show(TestFrames::Make(9, 1, PixelLayout::Mono8));
            QCOMPARE(reports.last().at(0).value<LevelsReport>().levels.right, right);
        }
    }

    void watchingAStandingPictureReportsIt()
    {
        Preview preview;
        preview.Show(TestFrames::Make(9, 1, PixelLayout::Mono16));
        preview.preview.StopPreview();
        QSignalSpy reports(&preview.levels.live, SIGNAL(signalReport(LevelsReport)));
        preview.levels.live.SetWatched(this, true);
        QTRY_COMPARE(reports.count(), 1);
        QVERIFY(reports.at(0).at(0).value<LevelsReport>().kind == SampleKind(16));
        QTRY_COMPARE(preview.preview.DeliveredCount(), quint64(2));
    }

private:
    /// A preview that runs, and the picture it showed last.
    struct Preview
    {
        Preview() { preview.StartPreview(); }
        ~Preview() { preview.StopPreview(); }

        void Show(const CameraFrame &frame)
        {
            const quint64 before = preview.DeliveredCount();
            preview.OnFrame(frame);
            QTRY_COMPARE(preview.DeliveredCount(), before + 1);
        }
        QImage Picture() const { return shown.last().at(0).value<QImage>(); }
        int Grey(int x, int y) const { return qGray(Picture().pixel(x, y)); }

        TestFrameSource source;
        LiveOrientation orientation;
        TestLevels levels;
        LivePreview preview{&source, &orientation, &levels.live};
        QSignalSpy shown{&preview, SIGNAL(signalPreviewImage(QImage))};
    };
};

GUARDED_TEST_MAIN(LiveLevelsTest)
#include "livelevelstest.moc"
