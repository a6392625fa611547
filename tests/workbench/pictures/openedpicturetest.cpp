// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "imagecore.h"
#include "picturebench.h"
#include "spebytes.h"
#include "viewcodes.h"

#include <QUndoStack>

#include <cmath>

namespace {

/// The mouse and the picture of a view.
class View : public QObject
{
    Q_OBJECT

public:
    void Move(const QPointF &scenePos)
    {
        emit signalUpdateMousePosition(scenePos);
        emit signalUpdateImageGrayValueInfo();
    }

    QImage image;

public slots:
    void slotPaintPreview(QImage shown) { image = shown; }

signals:
    void signalUpdateMousePosition(QPointF scenePos);
    void signalUpdateImageGrayValueInfo();
};

/// Two exposures of two regions of one row, the second one bright.
void WriteTwoRegions(const QString &path)
{
    constexpr int width = 100;
    SpeBytes spe(0, 0, 3, 2, 3.0F);
    for (const int exposure : { 0, 1 })
        spe.AppendRamp(width, quint16(10 + 100 * exposure)).AppendRamp(width, quint16(5000 + 100 * exposure));
    spe.AppendFooter("<SpeFormat version=\"3.0\"><DataFormat>"
                     "<DataBlock type=\"Frame\" count=\"2\" pixelFormat=\"MonochromeUnsigned16\" size=\"400\" stride=\"400\">"
                     "<DataBlock type=\"Region\" width=\"100\" height=\"1\" size=\"200\" stride=\"200\"/>"
                     "<DataBlock type=\"Region\" width=\"100\" height=\"1\" size=\"200\" stride=\"200\"/>"
                     "</DataBlock></DataFormat></SpeFormat>");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(spe.Bytes()) == spe.Bytes().size());
}

} // namespace

/// One picture on a page: what is shown, what is said of it, and what the tool bar does to it.
class OpenedPictureTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void nothingIsSaidOfNothing()
    {
        PictureBench bench;
        QVERIFY(bench.main.IsNonImage());
        QCOMPARE(bench.main.GetFileInfo(), QString());
        QCOMPARE(bench.main.GetImageSizeString(), QString());
        QCOMPARE(bench.main.GetPixelString(), QString());
        QCOMPARE(bench.main.GetImageSize(), QSize());
        QCOMPARE(bench.main.GetImageCore()->GetRightLevel(), 255);
        bench.main.slotRotateImage(RotateBy90);
        bench.main.slotCrop(0, 0, 2, 2, true);
        bench.main.SetImage(1);
        bench.main.CloseImage();
        QCOMPARE(bench.shown.size(), 0);
        bench.main.slotSaveImageAs();
        QCOMPARE(bench.LastMessage(), QString("No picture is open that could be saved."));
    }

    void anOpenedFileIsAnnounced()
    {
        PictureBench bench;
        QSignalSpy names(&bench.main, SIGNAL(signalUpdateFileName(QString)));
        QSignalSpy namesAndSizes(&bench.main, SIGNAL(signalUpdateFileNameAndSize(QString)));
        QSignalSpy counts(&bench.main, SIGNAL(signalCurrentFileFrameNumber(int)));
        QSignalSpy thumbnails(&bench.main, SIGNAL(sglAddThumbnail(QImage)));
        QSignalSpy levels(&bench.main, SIGNAL(signalUpdateLevel(int, int)));
        QVERIFY(bench.Open("stack.tif", QSize(6, 4), 3));
        QCOMPARE(names.last().first().toString(), QString("stack.tif"));
        QCOMPARE(namesAndSizes.last().first().toString(), QString("stack.tif  6x4"));
        QCOMPARE(counts.last().first().toInt(), 3);
        QCOMPARE(thumbnails.size(), 1);
        QCOMPARE(levels.last(), QVariantList({ 0, 65 }));
        QCOMPARE(bench.main.GetFileInfo(), QString("stack.tif  6x4"));
        QCOMPARE(bench.main.GetImageSizeString(), QString("6x4"));
        QCOMPARE(bench.main.GetImageSize(), QSize(6, 4));
        QCOMPARE(bench.main.GetImageCore()->GetDepth(), 2);
        QVERIFY(!bench.main.Is32BitMat());
        QVERIFY(!bench.main.IsNonImage());
        QVERIFY(!bench.main.IsSenImage());
        QCOMPARE(bench.shown.last().first().value<QImage>().size(), QSize(6, 4));
    }

    void thePixelUnderTheMouseIsRead()
    {
        PictureBench bench;
        View view;
        bench.compare.ConnectWidthDrawView(&view, false);
        MadePictures::Write(bench.Path("numbers.tif"), QSize(6, 4));
        bench.compare.Show(bench.shelf.Add(bench.Path("numbers.tif")));
        QTRY_COMPARE(view.image.size(), QSize(6, 4));
        QSignalSpy changes(&bench.services.uiConfig, SIGNAL(signalImageInfoChanged()));
        view.Move(QPointF(4.9, 2.6));
        QCOMPARE(bench.compare.GetPixelString(), QString::number(MadePictures::Value(4, 2, 0)));
        QCOMPARE(bench.compare.GetMousePosition(), QPoint(4, 2));
        QCOMPARE(changes.size(), 1);
        view.Move(QPointF(-0.1, 2));
        QCOMPARE(bench.compare.GetPixelString(), QString());
    }

    void framesAreBrowsed()
    {
        PictureBench bench;
        QVERIFY(bench.Open("stack.tif", QSize(6, 4), 12));
        QSignalSpy counts(&bench.main, SIGNAL(signalCurrentFileFrameNumber(int)));
        bench.main.SetImage(11);
        QTRY_COMPARE(FirstSample(bench.main), 11000);
        const int shown = bench.shown.size();
        bench.main.SetImage(12);
        bench.main.SetImage(-1);
        bench.main.SetImage(11);
        bench.main.SetImage(3);
        QTRY_COMPARE(FirstSample(bench.main), 3000);
        QCOMPARE(bench.shown.size(), shown + 1);
        QCOMPARE(counts.size(), 0);
        // Levels were found in the first frame.
        QCOMPARE(bench.main.GetImageCore()->GetRightLevel(), 65);
    }

    void aStackIsShownAgainAtItsLastFrame()
    {
        PictureBench bench;
        QVERIFY(bench.Open("stack.tif", QSize(6, 4), 12));
        PictureDocument *stack = bench.main.Document();
        bench.main.SetImage(7);
        QTRY_COMPARE(FirstSample(bench.main), 7000);
        QVERIFY(bench.Open("single.tif", QSize(6, 4)));

        QStringList told;
        connect(&bench.main, &ImageManager::signalCurrentFileFrameNumber, this, [&](int count) {
            told << QString("%1 frames").arg(count);
            bench.main.SetImage(0); // as the frame browser does
        });
        connect(&bench.main, &ImageManager::signalCurrentFrame, this, [&](int index) {
            told << QString("frame %1").arg(index);
            bench.main.SetImage(index);
        });
        bench.desk.Show(stack, &bench.main);
        QVERIFY(bench.WaitForShown("stack.tif"));
        QCOMPARE(FirstSample(bench.main), 7000);
        QCOMPARE(told, QStringList({ "12 frames", "frame 7" }));
        bench.main.SetImage(8); // and so it goes on
        QTRY_COMPARE(FirstSample(bench.main), 8000);

        bench.desk.Open({ bench.Path("stack.tif") }, &bench.main); // the file may be another one now
        QTRY_COMPARE(FirstSample(bench.main), 0);
    }

    void aFrameThatCannotBeReadTurnsTheBrowserBack()
    {
        PictureBench bench;
        QVERIFY(bench.Open("stack.tif", QSize(6, 4), 12));
        bench.main.SetImage(3);
        QTRY_COMPARE(FirstSample(bench.main), 3000);
        QVERIFY(QFile::resize(bench.Path("stack.tif"), 8));
        QSignalSpy frames(&bench.main, SIGNAL(signalCurrentFrame(int)));
        bench.main.SetImage(9);
        QTRY_COMPARE(bench.faults.size(), 1);
        QCOMPARE(frames.last().first().toInt(), 3);
        QCOMPARE(FirstSample(bench.main), 3000);
    }

    void aStackWhoseLastFrameIsGoneIsNotLost()
    {
        PictureBench bench;
        QVERIFY(bench.Open("stack.tif", QSize(6, 4), 12));
        PictureDocument *stack = bench.main.Document();
        bench.main.SetImage(7);
        QTRY_COMPARE(FirstSample(bench.main), 7000);
        QVERIFY(bench.Open("single.tif", QSize(6, 4)));
        bench.loader.Close(stack->File().id);
        MadePictures::Write(bench.Path("stack.tif"), QSize(6, 4), 2);
        bench.desk.Show(stack, &bench.main);
        QTRY_COMPARE(bench.faults.size(), 1);
        bench.desk.Show(stack, &bench.main);
        QVERIFY(bench.WaitForShown("stack.tif"));
        QCOMPARE(FirstSample(bench.main), 0);
    }

    void onlyTheActivePictureTellsTheFrameBrowser()
    {
        PictureBench bench;
        QSignalSpy mainCounts(&bench.main, SIGNAL(signalCurrentFileFrameNumber(int)));
        QSignalSpy compareCounts(&bench.compare, SIGNAL(signalCurrentFileFrameNumber(int)));
        QSignalSpy compareFrames(&bench.compare, SIGNAL(signalCurrentFrame(int)));
        QVERIFY(bench.Open("stack.tif", QSize(6, 4), 12));
        MadePictures::Write(bench.Path("other.tif"), QSize(6, 4), 5);
        bench.desk.Open({ bench.Path("other.tif") }, &bench.compare);
        QTRY_COMPARE(bench.compare.GetFileName(), QString("other.tif"));
        QCOMPARE(mainCounts.size(), 1);
        QCOMPARE(compareCounts.size(), 0);

        bench.compare.slotActiveImageChanged(&bench.compare);
        bench.main.slotActiveImageChanged(&bench.compare);
        QCOMPARE(mainCounts.size(), 1);
        QCOMPARE(compareCounts.last().first().toInt(), 5);
        QCOMPARE(compareFrames.last().first().toInt(), 0);
        bench.compare.CloseImage();
        QCOMPARE(compareCounts.last().first().toInt(), 0);
        QCOMPARE(compareFrames.size(), 1); // of no frames none is shown
        bench.main.slotActiveImageChanged(&bench.main);
        QCOMPARE(mainCounts.size(), 2);
        QCOMPARE(mainCounts.last().first().toInt(), 12);
    }

    void stepsAreDoneToTheSamplesAndUndone()
    {
        PictureBench bench;
        View view;
        QVERIFY(bench.Open("numbers.tif", QSize(6, 4)));
        QUndoStack *steps = bench.main.Document()->UndoStack();
        bench.main.slotRotateImage(RotateBy90);
        QTRY_COMPARE(bench.main.GetImageSizeString(), QString("4x6"));
        QCOMPARE(FirstSample(bench.main), MadePictures::Value(0, 3, 0));
        QCOMPARE(bench.main.GetRotateDegree(), 90);
        bench.main.slotCrop(1, 2, 2, 3, false);
        QCOMPARE(steps->count(), 1);
        bench.main.slotCrop(1, 2, 2, 3, true);
        QTRY_COMPARE(bench.main.GetFileInfo(), QString("numbers.tif  2x3"));
        QCOMPARE(FirstSample(bench.main), MadePictures::Value(2, 2, 0));
        bench.main.slotRotateImage(FlipHorizontal);
        QTRY_COMPARE(FirstSample(bench.main), MadePictures::Value(2, 1, 0));
        QCOMPARE(steps->undoText(), QString("Flip"));
        steps->undo();
        QTRY_COMPARE(FirstSample(bench.main), MadePictures::Value(2, 2, 0));
        steps->setIndex(0);
        QTRY_COMPARE(bench.main.GetImageSizeString(), QString("6x4"));
        QCOMPARE(FirstSample(bench.main), 0);
        QCOMPARE(bench.main.GetRotateDegree(), 0);
        steps->setIndex(3);
        QTRY_COMPARE(FirstSample(bench.main), MadePictures::Value(2, 1, 0));
    }

    void aPictureThatCannotBeReadLeavesTheOneShown()
    {
        PictureBench bench;
        QVERIFY(bench.Open("good.tif", QSize(6, 4), 3));
        MadePictures::WriteBytes(bench.Path("bad.tif"), QByteArray("II*\0\x08\0\0\0", 8));
        bench.desk.Open({ bench.Path("bad.tif") }, &bench.main);
        QVERIFY(bench.faults.wait());
        QVERIFY2(bench.FirstFault().startsWith("\u201cbad.tif\u201d cannot be read:"),
                 qPrintable(bench.FirstFault()));
        QCOMPARE(bench.main.GetFileName(), QString("good.tif"));
        QCOMPARE(bench.shelf.Documents().size(), 1);
        bench.main.SetImage(2); // it is still alive
        QTRY_COMPARE(FirstSample(bench.main), 2000);
    }

    /// Undo while the next picture is being read must not ask for that one's frame in this file.
    void anEditDoesNotHoldUpThePictureThatIsOnItsWay()
    {
        PictureBench bench;
        QVERIFY(bench.Open("stack.tif", QSize(6, 4), 3));
        bench.main.SetImage(2);
        QTRY_COMPARE(FirstSample(bench.main), 2000);
        PictureDocument *stack = bench.main.Document();
        QVERIFY(bench.Open("one.tif", QSize(6, 4)));
        PictureDocument *one = bench.main.Document();
        bench.desk.Show(stack, &bench.main);
        one->PushEdit(one->Edit().Turned(FlipVertical), "Flip");
        QVERIFY(bench.WaitForShown("stack.tif"));
        QCOMPARE(FirstSample(bench.main), 2000);
        QCOMPARE(bench.faults.size(), 0);
        bench.desk.Show(one, &bench.main);
        QVERIFY(bench.WaitForShown("one.tif"));
        QCOMPARE(FirstSample(bench.main), MadePictures::Value(0, 3, 0));
    }

    void anEditIsSeenWhenThePictureOnItsWayCannotBeRead()
    {
        PictureBench bench;
        QVERIFY(bench.Open("good.tif", QSize(6, 4)));
        MadePictures::WriteBytes(bench.Path("bad.tif"), QByteArray("II*\0\x08\0\0\0", 8));
        bench.desk.Open({ bench.Path("bad.tif") }, &bench.main);
        PictureDocument *good = bench.main.Document();
        good->PushEdit(good->Edit().Turned(FlipVertical), "Flip");
        QVERIFY(bench.faults.wait());
        QTRY_COMPARE(FirstSample(bench.main), MadePictures::Value(0, 3, 0));
    }

    void aDeletedFileIsBrowsedOnAndToldOnce()
    {
        PictureBench bench;
        QVERIFY(bench.Open("stack.tif", QSize(6, 4), 3));
        QVERIFY(QFile::remove(bench.Path("stack.tif")));
        bench.main.SetImage(1);
        QTRY_COMPARE(FirstSample(bench.main), 1000);
        QCOMPARE(bench.LastMessage(),
                 QString("\u201cstack.tif\u201d was deleted or moved. It stays open; save it to keep it."));
        bench.main.SetImage(2);
        QTRY_COMPARE(FirstSample(bench.main), 2000);
        QCOMPARE(bench.messages.size(), 1);
    }

    void whatIsSeenIsSavedAndOpensTheSame()
    {
        PictureBench bench;
        QVERIFY(bench.Open("stack.tif", QSize(6, 4), 3));
        bench.main.SetImage(1);
        bench.main.slotRotateImage(FlipVertical);
        QTRY_COMPARE(FirstSample(bench.main), MadePictures::Value(0, 3, 1));
        const Picture seen = bench.main.Shown().samples;
        for (const char *name : { "one.tif", "one.fits", "one.png" }) {
            bench.main.SaveAs(bench.Path(name), false);
            QTRY_COMPARE(bench.LastMessage(), QString("\u201c%1\u201d was saved.").arg(name));
            bench.desk.Open({ bench.Path(name) }, &bench.compare);
            QTRY_COMPARE(bench.compare.GetFileName(), QString(name));
            QVERIFY(bench.compare.Shown().samples == seen);
        }
        bench.main.SaveAs(bench.Path("all.tif"), true);
        QTRY_COMPARE(bench.LastMessage(), QString("\u201call.tif\u201d was saved."));
        QCOMPARE(MadePictures::Frames(bench.Path("all.tif")), 3);
    }

    void savingOverTheOpenFileShowsTheNewOne()
    {
        PictureBench bench;
        QVERIFY(bench.Open("stack.tif", QSize(6, 4), 3));
        bench.main.slotRotateImage(RotateBy90);
        QTRY_COMPARE(bench.main.GetImageSizeString(), QString("4x6"));
        bench.main.SaveAs(bench.Path("stack.tif"), false);
        QTRY_COMPARE(bench.main.Shown().info.frames, 1);
        QCOMPARE(bench.main.GetImageSizeString(), QString("4x6"));
        QCOMPARE(FirstSample(bench.main), MadePictures::Value(0, 3, 0));
        QVERIFY(bench.main.Document()->Edit().IsNone());
        QVERIFY(!bench.main.Document()->UndoStack()->canUndo());
        QCOMPARE(bench.messages.size(), 1); // nobody is told that the file was replaced
    }

    void changedLevelsShowAtOnce()
    {
        PictureBench bench;
        QObject::connect(&bench.levels, SIGNAL(signalChanged()), &bench.main, SLOT(slotLevelsChanged()));
        QVERIFY(bench.Open("numbers.tif", QSize(6, 4)));
        bench.levels.SetSetting(16, { LevelsMode::Manual, 10, 520, 1.0 });
        QTRY_COMPARE(bench.main.GetImageCore()->GetRightLevel(), 520);
        QCOMPARE(qGray(bench.main.Shown().image.pixel(0, 3)), (60 - 10) / 2);
        bench.levels.SetSetting(16, LevelsSetting::Default(16));
        QTRY_COMPARE(bench.main.GetImageCore()->GetRightLevel(), 65);
    }

    /// One that is dark beside one that is bright would be black in its levels.
    void eachRegionOfASpectrumHasItsLevels()
    {
        PictureBench bench;
        WriteTwoRegions(bench.Path("regions.spe"));
        bench.desk.Open({ bench.Path("regions.spe") }, &bench.main);
        QVERIFY(bench.WaitForShown("regions.spe"));
        const auto levelsOf = [&bench](int frame) {
            bench.main.SetImage(frame);
            const bool isShown = QTest::qWaitFor([&] { return bench.main.Shown().request.frame == frame; });
            return isShown ? QPoint(bench.main.GetImageCore()->GetLeftLevel(), bench.main.GetImageCore()->GetRightLevel()) : QPoint();
        };
        QCOMPARE(levelsOf(1), QPoint(5000, 5099));
        QCOMPARE(levelsOf(0), QPoint(10, 109));
        // Those of the first exposure, as in any stack.
        QCOMPARE(levelsOf(2), QPoint(10, 109));
        QCOMPARE(levelsOf(3), QPoint(5000, 5099));

        QCOMPARE(levelsOf(1), QPoint(5000, 5099));
        bench.main.SaveAs(bench.Path("second.jpg"), false);
        QTRY_VERIFY(QFile::exists(bench.Path("second.jpg")));
        const Picture saved = MadePictures::Read(bench.Path("second.jpg"));
        for (const int column : { 0, 50, 99 })
            QVERIFY(std::abs(saved.Samples<quint8>(0)[column] - 255 * column / 99.0) < 10);
    }

    void closingTakesThePictureAway()
    {
        PictureBench bench;
        QSignalSpy resets(&bench.main, SIGNAL(signalResetImageInfo()));
        QSignalSpy counts(&bench.main, SIGNAL(signalCurrentFileFrameNumber(int)));
        QVERIFY(bench.Open("stack.tif", QSize(6, 4), 3));
        bench.main.CloseImage();
        QVERIFY(bench.main.IsNonImage());
        QVERIFY(bench.shown.last().first().value<QImage>().isNull());
        QCOMPARE(resets.size(), 1);
        QCOMPARE(counts.last().first().toInt(), 0);
        QCOMPARE(bench.main.GetFileInfo(), QString());
    }

    void theCropFrameComesOnDemandAndGoesWithThePicture()
    {
        PictureBench bench;
        QVERIFY(bench.Open("one.tif", QSize(6, 4)));
        QSignalSpy crop(&bench.main, SIGNAL(signalSetCropState(int, bool)));
        bench.main.slotImageCrop();
        QCOMPARE(crop.takeLast(), QVariantList({ 0, true }));
        QVERIFY(bench.Open("two.tif", QSize(6, 4)));
        QCOMPARE(crop.takeLast(), QVariantList({ 0, false }));
    }

private:
    static int FirstSample(const OpenedPicture &picture)
    {
        const Picture &samples = picture.Shown().samples;
        return samples.IsNull() ? -1 : samples.Samples<quint16>(0)[0];
    }
};

GUARDED_TEST_MAIN(OpenedPictureTest)
#include "openedpicturetest.moc"
