// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictureedit.h"
#include "guardedtest.h"
#include "viewcodes.h"

namespace {

Picture Numbered(int width, int height)
{
    Picture picture(width, height, 1, SampleType::U16);
    for (int i = 0; i < width * height; ++i)
        picture.Samples<quint16>(0)[i] = quint16(i);
    return picture;
}

/// A command of the user done sample by sample.
Picture Turned(const Picture &from, int command)
{
    const QSize size = command == RotateBy90 ? from.Size().transposed() : from.Size();
    Picture to(size.width(), size.height(), 1, SampleType::U16);
    for (int y = 0; y < from.Height(); ++y) {
        for (int x = 0; x < from.Width(); ++x) {
            QPoint place(x, y);
            if (command == RotateBy90)
                place = QPoint(from.Height() - 1 - y, x);
            else if (command == FlipHorizontal)
                place.setX(from.Width() - 1 - x);
            else
                place.setY(from.Height() - 1 - y);
            to.Samples<quint16>(place.y())[place.x()] = from.Samples<quint16>(y)[x];
        }
    }
    return to;
}

Picture Part(const Picture &from, const QRect &region)
{
    Picture to(region.width(), region.height(), 1, SampleType::U16);
    for (int y = 0; y < to.Height(); ++y) {
        for (int x = 0; x < to.Width(); ++x)
            to.Samples<quint16>(y)[x] = from.Samples<quint16>(region.top() + y)[region.left() + x];
    }
    return to;
}

/// 300 nm and half a nanometre more for each column, or row, of the file.
double FileValue(int pixel) { return 300 + 0.5 * pixel; }

SpectralAxis FileAxis(SpectralSide side, const QSize &fileSize)
{
    SpectralAxis axis;
    axis.unit = SpectralUnit::Nanometre;
    axis.side = side;
    for (int pixel = 0; pixel < PixelsOf(side, fileSize); ++pixel)
        axis.values << FileValue(pixel);
    return axis;
}

} // namespace

/// Any row of steps gives what doing them one by one gives.
class PictureEditTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void stepsComeOutAsDoneOneByOne()
    {
        const Picture frame = Numbered(17, 11);
        const int commands = 4; // the three commands, and a crop
        for (int sequence = 0; sequence < commands * commands * commands * commands * commands; ++sequence) {
            PictureEdit edit;
            Picture expected = frame;
            for (int rest = sequence, step = 0; step < 5; rest /= commands, ++step) {
                const int command = rest % commands;
                if (command < 3) {
                    edit = edit.Turned(command);
                    expected = Turned(expected, command);
                } else {
                    const QRect crop = QRect(QPoint(0, 0), expected.Size()).adjusted(1, 0, -1, -1);
                    edit = edit.Cropped(crop, frame.Size());
                    expected = Part(expected, crop);
                }
            }
            QCOMPARE(edit.SeenSize(frame.Size()), expected.Size());
            QVERIFY2(edit.Applied(frame, 0) == expected, qPrintable(QString::number(sequence)));
        }
    }

    /// A step of processing in between leaves the pixels where they are.
    void theSourceIsTheRegionOfTheFileAndHowItLies()
    {
        const Picture frame = Numbered(17, 11);
        const int commands = 5; // the three commands, a crop, and a step of processing
        for (int sequence = 0; sequence < commands * commands * commands * commands * commands; ++sequence) {
            PictureEdit edit;
            Picture seen = frame;
            for (int rest = sequence, step = 0; step < 5; rest /= commands, ++step) {
                const int command = rest % commands;
                if (command < 3) {
                    edit = edit.Turned(command);
                    seen = Turned(seen, command);
                } else if (command == 3) {
                    const QRect crop = QRect(QPoint(0, 0), seen.Size()).adjusted(1, 0, -1, -1);
                    edit = edit.Cropped(crop, frame.Size());
                    seen = Part(seen, crop);
                } else {
                    edit = edit.Processed(DenoiseSettings());
                }
            }
            const PictureEdit::Source source = edit.SourceOf(frame.Size()).value();
            QCOMPARE(source.orientation.Map(source.region.size()), seen.Size());
            for (int y = source.region.top(); y <= source.region.bottom(); ++y) {
                for (int x = source.region.left(); x <= source.region.right(); ++x) {
                    const QPoint place = source.orientation.Map(QPoint(x, y) - source.region.topLeft(), source.region.size());
                    QCOMPARE(seen.Samples<quint16>(place.y())[place.x()], frame.Samples<quint16>(y)[x]);
                }
            }
        }
        QVERIFY(!PictureEdit().Processed(BinningSettings()).SourceOf(frame.Size()));
    }

    void aCropOutsideOrOfEverythingIsNone()
    {
        const QSize size(8, 6);
        PictureEdit edit;
        QVERIFY(edit.IsNone());
        QCOMPARE(edit.Cropped(QRect(8, 0, 3, 3), size), edit);
        QCOMPARE(edit.Cropped(QRect(), size), edit);
        QCOMPARE(edit.Cropped(QRect(-5, -5, 100, 100), size), edit);
        QCOMPARE(edit.Cropped(QRect(-5, 2, 7, 100), size).SeenSize(size), QSize(2, 4));
    }

    /// A step of processing sees what was seen, and what is done after it is done to what it made.
    void processingStandsBetweenTurnsAndCrops()
    {
        const QSize size(12, 8);
        BinningSettings half; // to 2 x 2
        PictureEdit edit = PictureEdit().Turned(RotateBy90).Cropped(QRect(0, 0, 6, 12), size);
        QCOMPARE(edit.SeenSize(size), QSize(6, 12));
        edit = edit.Processed(half);
        QCOMPARE(edit.StepCount(), 1);
        QCOMPARE(edit.SeenSize(size), QSize(3, 6));
        edit = edit.Turned(RotateBy90).Cropped(QRect(1, 0, 4, 3), size);
        QCOMPARE(edit.SeenSize(size), QSize(4, 3));
        QCOMPARE(edit.GetOrientation().Degrees(), 180);
        QVERIFY(edit.IsCropped());
        QCOMPARE(edit.PixelsJoined(), 2);

        const Picture frame = Numbered(12, 8);
        const Picture turned = Part(Turned(frame, RotateBy90), QRect(0, 0, 6, 12));
        QVERIFY(edit.Applied(frame, 0) == turned);
        const Picture binned = Numbered(3, 6); // whatever the step makes of it
        QVERIFY(edit.Applied(binned, 1) == Part(Turned(binned, RotateBy90), QRect(1, 0, 4, 3)));
    }

    void everyRowOfTurnsAroundAStepGivesTheSumOfThem()
    {
        const int commands = 3;
        for (int sequence = 0; sequence < commands * commands * commands * commands; ++sequence) {
            PictureEdit inParts;
            PictureEdit atOnce;
            for (int rest = sequence, step = 0; step < 4; rest /= commands, ++step) {
                if (step == 2)
                    inParts = inParts.Processed(DenoiseSettings());
                inParts = inParts.Turned(rest % commands);
                atOnce = atOnce.Turned(rest % commands);
            }
            QCOMPARE(inParts.GetOrientation(), atOnce.GetOrientation());
        }
    }

    void cropsOfCropsAreOneRegionOfTheFile()
    {
        const QSize size(12, 8);
        QCOMPARE(PictureEdit().FileRegion(size).value(), QRect(0, 0, 12, 8));
        PictureEdit edit = PictureEdit().Cropped(QRect(2, 1, 9, 6), size);
        QCOMPARE(edit.FileRegion(size).value(), QRect(2, 1, 9, 6));
        edit = edit.Processed(DenoiseSettings()).Cropped(QRect(3, 2, 4, 4), size);
        QCOMPARE(edit.FileRegion(size).value(), QRect(5, 3, 4, 4));
        QVERIFY(!edit.Turned(FlipHorizontal).FileRegion(size));
        QVERIFY(edit.Turned(FlipHorizontal).Turned(FlipHorizontal).FileRegion(size));
        QVERIFY(!edit.Turned(RotateBy90).Processed(DenoiseSettings()).FileRegion(size));
        QVERIFY(!edit.Processed(BinningSettings()).FileRegion(size));
    }

    /// By the numbers of the samples that are seen in a column, or row.
    void theAxisGoesWithTheSamples()
    {
        const Picture frame = Numbered(17, 11);
        for (int orientation = 0; orientation < 8; ++orientation) {
            PictureEdit edit = PictureEdit().Cropped(QRect(4, 1, 12, 7), frame.Size());
            for (int turn = 0; turn < orientation % 4; ++turn)
                edit = edit.Turned(RotateBy90);
            if (orientation >= 4)
                edit = edit.Turned(FlipHorizontal);
            edit = edit.Cropped(QRect(QPoint(0, 0), edit.SeenSize(frame.Size())).adjusted(1, 2, 0, 0),
                                frame.Size());
            const Picture seen = edit.Applied(frame, 0);
            for (const SpectralSide side : { SpectralSide::Columns, SpectralSide::Rows }) {
                const SpectralAxis axis = edit.SeenAxis(FileAxis(side, frame.Size()), frame.Size());
                QCOMPARE(axis.values.size(), PixelsOf(axis.side, seen.Size()));
                for (int y = 0; y < seen.Height(); ++y) {
                    for (int x = 0; x < seen.Width(); ++x) {
                        const int number = seen.Samples<quint16>(y)[x];
                        const int pixel =
                            side == SpectralSide::Columns ? number % frame.Width() : number / frame.Width();
                        QCOMPARE(axis.values[axis.side == SpectralSide::Columns ? x : y], FileValue(pixel));
                    }
                }
            }
        }
    }

    void pixelsThatWereJoinedHaveNoAxis()
    {
        const QSize size(12, 8);
        for (const SpectralSide side : { SpectralSide::Columns, SpectralSide::Rows }) {
            QVERIFY(
                PictureEdit().Processed(BinningSettings()).SeenAxis(FileAxis(side, size), size).IsEmpty());
            QVERIFY(PictureEdit()
                        .SeenAxis(FileAxis(side, size), size + QSize(1, 1))
                        .IsEmpty()); // that of another frame
        }
    }

    void aProjectionLeavesOneFrame()
    {
        const PictureEdit edit = PictureEdit().Processed(DenoiseSettings());
        QCOMPARE(edit.SeenFrames(7), 7);
        QCOMPARE(edit.Processed(ProjectionSettings()).Turned(RotateBy90).SeenFrames(7), 1);
        QCOMPARE(edit.Processed(ProjectionSettings()).FirstSteps(1), edit);
        QCOMPARE(edit.Processed(ProcessSettings()), edit);
        QVERIFY(edit.HasSameSteps(edit.Turned(RotateBy90)));
        QVERIFY(!edit.HasSameSteps(PictureEdit()));
        QVERIFY(!edit.IsNone());
    }

    void aFrameTooSmallForTheCropGivesNothing()
    {
        const PictureEdit edit = PictureEdit().Cropped(QRect(10, 5, 4, 4), QSize(20, 20));
        QVERIFY(edit.Applied(Numbered(10, 20), 0).IsNull());
        QCOMPARE(edit.Applied(Numbered(12, 20), 0).Size(), QSize(2, 4));
    }
};

GUARDED_TEST_MAIN(PictureEditTest)
#include "pictureedittest.moc"
