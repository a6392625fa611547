// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturetrials.h"
#include "guardedtest.h"
#include "picturebench.h"

#include <QFile>
#include <QUndoStack>

namespace {

BackgroundSettings Less(double level)
{
    BackgroundSettings settings;
    settings.method = BackgroundSettings::Method::Constant;
    settings.level = level;
    return settings;
}

ProjectionSettings Most() { return { ProjectionSettings::Method::Maximum, false }; }

} // namespace

/// Steps of processing: tried on the picture that is shown, applied, undone, saved.
class PictureTrialsTest : public GuardedTest
{
    Q_OBJECT

private:
    static int FirstSample(const PictureBench &bench)
    {
        const Picture &samples = bench.main.Shown().samples;
        return samples.Type() == SampleType::U16 ? samples.Samples<quint16>(0)[0] : -1;
    }
    static int SampleAt(const Picture &samples, int x, int y) { return samples.Samples<quint16>(y)[x]; }

private slots:
    void aStepIsTriedAndLeftAgain()
    {
        PictureBench bench;
        QVERIFY(bench.Open("a.tif", QSize(6, 4), 3));
        bench.main.SetImage(1);
        QTRY_COMPARE(FirstSample(bench), 1000);
        QSignalSpy previewed(bench.main.Trials(), &PictureTrials::signalPreviewed);
        QSignalSpy ended(bench.main.Trials(), &PictureTrials::signalPreviewEnded);
        bench.main.Trials()->Preview(Less(300));
        QTRY_COMPARE(FirstSample(bench), 700);
        QCOMPARE(previewed.size(), 1);
        QCOMPARE(previewed.first().first().toString(), QString());
        bench.main.SetImage(2); // the other frames are seen in the same way
        QTRY_COMPARE(FirstSample(bench), 1700);
        bench.main.Trials()->Preview(ProcessSettings());
        QTRY_COMPARE(FirstSample(bench), 2000);
        QCOMPARE(ended.size(), 1);
        QVERIFY(!bench.main.Document()->UndoStack()->canUndo());
        QVERIFY(bench.main.Document()->Edit().IsNone());
    }

    void theNewestWins()
    {
        PictureBench bench;
        QVERIFY(bench.Open("a.tif", QSize(6, 4), 2));
        bench.main.SetImage(1);
        QTRY_COMPARE(FirstSample(bench), 1000);
        for (int level = 1; level <= 50; ++level)
            bench.main.Trials()->Preview(Less(level));
        QTRY_COMPARE(FirstSample(bench), 950);
        QVERIFY(bench.shown.size() < 40); // not each was made
    }

    void anAppliedStepIsUndoneAndRedone()
    {
        PictureBench bench;
        QVERIFY(bench.Open("a.tif", QSize(6, 4), 2));
        bench.main.SetImage(1);
        QTRY_COMPARE(FirstSample(bench), 1000);
        QUndoStack *undo = bench.main.Document()->UndoStack();
        bench.main.Trials()->Preview(Less(300));
        bench.main.Trials()->ApplyPreview("Background");
        QTRY_COMPARE(undo->count(), 1);
        QCOMPARE(undo->undoText(), QString("Background"));
        QTRY_VERIFY(!bench.main.Shown().request.isPreview);
        QCOMPARE(FirstSample(bench), 700);
        QVERIFY(!bench.main.Shown().thumbnail.isNull());

        bench.main.Trials()->Preview(Less(200)); // on top of it
        QTRY_COMPARE(FirstSample(bench), 500);
        bench.main.Trials()->ApplyPreview("Background");
        QCOMPARE(undo->count(), 2); // it is on the screen already
        undo->undo();
        QTRY_COMPARE(FirstSample(bench), 700);
        undo->undo();
        QTRY_COMPARE(FirstSample(bench), 1000);
        undo->redo();
        QTRY_COMPARE(FirstSample(bench), 700);
    }

    void nothingIsAppliedWhenNothingIsTried()
    {
        PictureBench bench;
        QVERIFY(bench.Open("a.tif", QSize(6, 4)));
        bench.main.Trials()->ApplyPreview("Nothing");
        QCOMPARE(bench.main.Document()->UndoStack()->count(), 0);
        QSignalSpy wanted(bench.main.Trials(), &PictureTrials::signalApplyWanted);
        bench.main.SetAdjustApply(0);
        QCOMPARE(wanted.size(), 1);
    }

    void whatCannotBeDoneIsSaidAndThePictureStays()
    {
        PictureBench bench;
        QVERIFY(bench.Open("a.tif", QSize(6, 4)));
        QSignalSpy previewed(bench.main.Trials(), &PictureTrials::signalPreviewed);
        BinningSettings coarse;
        coarse.size = 5;
        bench.main.Trials()->Preview(coarse);
        bench.main.Trials()->ApplyPreview("Binning");
        QTRY_COMPARE(previewed.size(), 1);
        QCOMPARE(previewed.first().first().toString(), QString("The picture, 6x4 pixels, is smaller than 5x5."));
        QCOMPARE(bench.main.Shown().samples.Size(), QSize(6, 4));
        QCOMPARE(bench.main.Document()->UndoStack()->count(), 0);
        QCOMPARE(bench.faults.size(), 0);
    }

    void anotherPictureEndsTheTrial()
    {
        PictureBench bench;
        QVERIFY(bench.Open("a.tif", QSize(6, 4), 2));
        bench.main.Trials()->Preview(Less(5));
        QTRY_VERIFY(bench.main.Shown().request.isPreview);
        QSignalSpy ended(bench.main.Trials(), &PictureTrials::signalPreviewEnded);
        QVERIFY(bench.Open("b.tif", QSize(6, 4)));
        QCOMPARE(ended.size(), 1);
        QVERIFY(!bench.main.Shown().request.isPreview);
        bench.desk.Show(bench.shelf.Documents().first(), &bench.main);
        QVERIFY(bench.WaitForShown("a.tif"));
        QVERIFY(!bench.main.Shown().request.isPreview);
    }

    void croppingEndsTheTrial()
    {
        PictureBench bench;
        QVERIFY(bench.Open("a.tif", QSize(6, 4)));
        bench.main.Trials()->Preview(BinningSettings());
        QTRY_COMPARE(bench.main.Shown().samples.Size(), QSize(3, 2));
        bench.main.slotImageCrop();
        QTRY_COMPARE(bench.main.Shown().samples.Size(), QSize(6, 4));
    }

    void aStackBecomesOnePictureAndAStackAgain()
    {
        PictureBench bench;
        QVERIFY(bench.Open("a.tif", QSize(6, 4), 5));
        QSignalSpy counts(&bench.main, &ImageManager::signalCurrentFileFrameNumber);
        bench.main.Trials()->Preview(Most());
        QTRY_COMPARE(FirstSample(bench), 4000);
        QCOMPARE(bench.main.FrameCount(), 5); // not yet
        bench.main.Trials()->ApplyPreview("Projection");
        QTRY_COMPARE(bench.main.FrameCount(), 1);
        QCOMPARE(counts.last().first().toInt(), 1);
        bench.main.SetImage(3);
        QCOMPARE(bench.main.Shown().request.frame, 0);
        bench.main.Document()->UndoStack()->undo();
        QTRY_COMPARE(bench.main.FrameCount(), 5);
        QCOMPARE(counts.last().first().toInt(), 5);
        QCOMPARE(FirstSample(bench), 0);
    }

    /// The mode of the panels follows what is applied, not what is only tried.
    void thirtyTwoBitsCountWhenTheyAreApplied()
    {
        PictureBench bench;
        QVERIFY(bench.Open("a.tif", QSize(6, 4), 5));
        bench.main.Trials()->Preview(ProjectionSettings{ ProjectionSettings::Method::StandardDeviation, false });
        QTRY_COMPARE(int(bench.main.Shown().samples.Type()), int(SampleType::F32));
        QVERIFY(!bench.main.Is32BitMat());
        bench.main.Trials()->ApplyPreview("Projection");
        QTRY_VERIFY(bench.main.Is32BitMat());
        bench.main.Document()->UndoStack()->undo();
        QTRY_VERIFY(!bench.main.Is32BitMat());
    }

    void stepsBeforeAProjectionAreDoneToEachFrame()
    {
        PictureBench bench;
        QVERIFY(bench.Open("a.tif", QSize(6, 4), 3));
        bench.main.slotRotateImage(0);
        bench.main.Trials()->Preview(Less(1500));
        bench.main.Trials()->ApplyPreview("Background");
        QTRY_COMPARE(bench.main.Document()->UndoStack()->count(), 2);
        bench.main.Trials()->Preview(ProjectionSettings{ ProjectionSettings::Method::Sum, false });
        QTRY_COMPARE(int(bench.main.Shown().samples.Type()), int(SampleType::U32));
        // Turned by 90 degrees, the first sample is the lower left one: 60, 1060 and 2060 less 1500, at least 0.
        QCOMPARE(int(bench.main.Shown().samples.Samples<quint32>(0)[0]), MadePictures::Value(0, 3, 2) - 1500);
    }

    void whatIsSavedIsWhatIsApplied()
    {
        PictureBench bench;
        QVERIFY(bench.Open("a.tif", QSize(8, 6), 3));
        QSignalSpy saved(&bench.loader, &PictureLoader::signalSaved);
        bench.main.Trials()->Preview(Less(500));
        bench.main.Trials()->ApplyPreview("Background");
        QTRY_COMPARE(bench.main.Document()->UndoStack()->count(), 1);
        bench.main.Trials()->Preview(BinningSettings());
        QTRY_COMPARE(bench.main.Shown().samples.Size(), QSize(4, 3));
        bench.main.SaveAs(bench.Path("all.tif"), true);
        QTRY_COMPARE(saved.size(), 1);
        QCOMPARE(MadePictures::Frames(bench.Path("all.tif")), 3);
        const Picture last = MadePictures::Read(bench.Path("all.tif"), 2);
        QCOMPARE(last.Size(), QSize(8, 6));
        QCOMPARE(SampleAt(last, 3, 2), MadePictures::Value(3, 2, 2) - 500);
        bench.main.Trials()->Preview(Most());
        bench.main.Trials()->ApplyPreview("Projection");
        QTRY_COMPARE(bench.main.FrameCount(), 1);
        bench.main.SaveAs(bench.Path("one.tif"), true);
        QTRY_COMPARE(saved.size(), 2);
        QCOMPARE(MadePictures::Frames(bench.Path("one.tif")), 1);
        QCOMPARE(SampleAt(MadePictures::Read(bench.Path("one.tif")), 3, 2), MadePictures::Value(3, 2, 2) - 500);
    }

    void objectsAreCountedAndMarked()
    {
        PictureBench bench;
        QVERIFY(bench.Open("a.tif", QSize(20, 12)));
        QSignalSpy counted(bench.main.Trials(), &PictureTrials::signalCounted);
        CountSettings settings;
        settings.isAutomatic = false;
        settings.level = MadePictures::Value(0, 6, 0); // the lower half
        bench.main.Trials()->Count(settings);
        QTRY_COMPARE(counted.size(), 1);
        QCOMPARE(bench.main.Shown().objects.size(), 1);
        QCOMPARE(bench.main.Shown().objects.first().area, 120);
        QCOMPARE(bench.main.Shown().objects.first().centroid, QPointF(10, 9));
        const QImage &image = bench.main.Shown().image;
        QCOMPARE(image.pixelColor(3, 6), QColor(255, 60, 60)); // its first row
        QVERIFY(image.pixelColor(3, 5) != QColor(255, 60, 60));
        QVERIFY(image.pixelColor(3, 8) != QColor(255, 60, 60)); // inside
        QSignalSpy ended(bench.main.Trials(), &PictureTrials::signalProcessingEnded);
        bench.main.SetProcessType(0);
        QCOMPARE(ended.size(), 1);
        bench.main.Trials()->Count(std::nullopt);
        QTRY_VERIFY(bench.main.Shown().image.pixelColor(3, 6) != QColor(255, 60, 60));
        QCOMPARE(counted.size(), 1);
        bench.main.Trials()->Count(settings);
        QTRY_COMPARE(counted.size(), 2);
        QVERIFY(bench.Open("b.tif", QSize(6, 4)));
        QCOMPARE(ended.size(), 2);
        QVERIFY(bench.main.Shown().objects.isEmpty());
    }

    /// A reference that is gone when its step is needed again: said, and nothing is shown wrong.
    void aReferenceThatIsGoneIsSaid()
    {
        PictureBench bench;
        MadePictures::Write(bench.Path("even.tif"), QSize(6, 4));
        QVERIFY(bench.Open("a.tif", QSize(6, 4), 2));
        FlatFieldSettings settings;
        settings.reference = bench.Path("even.tif");
        QSignalSpy previewed(bench.main.Trials(), &PictureTrials::signalPreviewed);
        bench.main.Trials()->Preview(settings);
        QTRY_COMPARE(previewed.size(), 1);
        QCOMPARE(previewed.first().first().toString(), QString());
        QVERIFY(QFile::remove(bench.Path("even.tif")));
        bench.main.SetImage(1);
        QTRY_COMPARE(previewed.size(), 2);
        QVERIFY2(previewed.last().first().toString().contains("even.tif"),
                 qPrintable(previewed.last().first().toString()));
    }
};

GUARDED_TEST_MAIN(PictureTrialsTest)
#include "picturetrialstest.moc"
