// SPDX-License-Identifier: GPL-3.0-or-later
#include "cameramanager.h"
#include "createpicture.h"
#include "livepreview.h"
#include "openedpicture.h"
#include "openpicture.h"
#include "picturedesk.h"
#include "picturedocument.h"
#include "pictureshelf.h"
#include "pixeltext.h"
#include "rawcameraframe.h"
#include "scenariotest.h"
#include "savedialog.h"
#include "stylesheet.h"
#include "testchartscene.h"
#include "viewcodes.h"
#include "workspace.h"
#include "workspaceconfig.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QDropEvent>
#include <QGraphicsView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
#include <QStackedWidget>
#include <QStatusBar>
#include <QUndoStack>
#include <QUrl>
#include <QWindow>

#include <memory>

namespace {

constexpr int SensorSize = 2048;

int Value(int x, int y, int frame) { return 1000 * frame + 20 * y + x; }

/// A stack whose samples tell where they are.
void WriteNumbers(const QString &path, const QSize &size, int frames)
{
    SaveOptions options;
    options.frameCount = frames;
    QString error;
    const auto writer = CreatePicture(path, options, error);
    for (int frame = 0; writer && frame < frames; ++frame) {
        Picture picture(size.width(), size.height(), 1, SampleType::U16);
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x)
                picture.Samples<quint16>(y)[x] = quint16(Value(x, y, frame));
        }
        writer->Append(picture, error);
    }
    if (!writer || !writer->Commit(error))
        qFatal("%s", qPrintable(error));
}

/// What the camera sees, as a file. Its patches are so large that the pixels of a binned one are alike, but for the
/// marker in the corner.
void WriteChart(const QString &path, int binning = 1)
{
    const int side = SensorSize / binning;
    Picture picture(side, side, 1, SampleType::U8);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x)
            picture.Row(y)[x] =
                uchar(TestChartScene::ExpectedValue(x * binning, y * binning, SensorSize, SensorSize, 8));
    }
    QString error;
    if (!SavePicture(path, picture, SaveOptions(), error))
        qFatal("%s", qPrintable(error));
}

void WriteBytes(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("%s", qPrintable(file.errorString()));
}

} // namespace

/// A person opens files beside the live picture and works with them.
class PicturesScenario : public ScenarioTest
{
    Q_OBJECT

private slots:
    void droppedFilesOpenAndTheMouseReadsThem()
    {
        WriteNumbers(Path("one.tif"), QSize(17, 11), 1);
        WriteNumbers(Path("stack.tif"), QSize(19, 13), 3);
        Drop({ Path("one.tif"), Path("stack.tif") });
        QVERIFY(WaitForImage("stack.tif"));
        QCOMPARE(CurrentView(), int(ImageView));
        QCOMPARE(Desk()->Shelf()->Documents().size(), 2);
        QVERIFY(!m_workbench->services.Preview()->isRunning());
        for (const QPointF &place : { QPointF(0.5, 0.5), QPointF(7.9, 3.1), QPointF(18.2, 2.6) }) {
            MoveMouse(place);
            QTRY_COMPARE(PageLabel("labelGrayValue"),
                         QString::number(Value(int(place.x()), int(place.y()), 0)));
            QCOMPARE(PageLabel("labelPos"), QString("(%1, %2)").arg(int(place.x())).arg(int(place.y())));
        }
        QCOMPARE(PageLabel("labelSizeValue"), QString("19x13"));
        QCOMPARE(PageLabel("labelFileName"), QString("stack.tif"));
    }

    void framesOfAStackAreBrowsed()
    {
        WriteNumbers(Path("one.tif"), QSize(19, 13), 1);
        WriteNumbers(Path("stack.tif"), QSize(19, 13), 3);
        Drop({ Path("stack.tif") });
        QVERIFY(WaitForImage("stack.tif"));
        auto *browser = ImagePage()->findChild<QWidget *>("MultiImageToolUI");
        auto *bar = browser->findChild<QScrollBar *>("horizontalScrollBar");
        QVERIFY(browser->isVisible());
        QCOMPARE(browser->findChild<QLabel *>("labelPageInfo")->text(), QString("1/3"));
        MoveMouse(QPointF(5.5, 2.5));
        bar->setValue(2);
        QTRY_COMPARE(PageLabel("labelGrayValue"), QString::number(Value(5, 2, 2)));
        QCOMPARE(browser->findChild<QLabel *>("labelPageInfo")->text(), QString("3/3"));
        Drop({ Path("one.tif") });
        QVERIFY(WaitForImage("one.tif"));
        QVERIFY(!browser->isVisible());
        Drop({ Path("stack.tif") });
        QVERIFY(WaitForImage("stack.tif"));
        QCOMPARE(browser->findChild<QLabel *>("labelPageInfo")->text(), QString("1/3"));
        QTRY_COMPARE(PageLabel("labelGrayValue"), QString::number(Value(5, 2, 0)));
    }

    void realFilesShowTheirSamples_data()
    {
        QTest::addColumn<QString>("path");
#ifdef TEST_DATA
        for (const QString &folder : { QString(TEST_DATA "/tiff"), QString(TEST_DATA "/fits") }) {
            for (const QFileInfo &file : QDir(folder).entryInfoList(QDir::Files))
                QTest::newRow(qPrintable(file.fileName())) << file.filePath();
        }
#endif
        const QString made = m_madeFolder.filePath("made.fits");
        WriteNumbers(made, QSize(30, 20), 2);
        QTest::newRow("made.fits") << made;
    }

    void realFilesShowTheirSamples()
    {
        QFETCH(QString, path);
        QString error;
        const auto file = OpenPicture(path, error);
        QVERIFY2(file, qPrintable(error));
        Drop({ path });
        QVERIFY(WaitForImage(QFileInfo(path).fileName()));
        QScrollBar *bar = ImagePage()->findChild<QWidget *>("MultiImageToolUI")->findChild<QScrollBar *>();
        QCOMPARE(bar->maximum(), file->Info().frames - 1);
        for (const int frame : { 0, file->Info().frames - 1 }) {
            bar->setValue(frame);
            QTRY_COMPARE(Main()->Shown().request.frame, frame);
            const QString description = file->FrameDescription(frame);
            if (frame > 0 && !description.isEmpty())
                QTRY_VERIFY(m_workbench->StatusText().endsWith(description));
            Picture raw;
            QVERIFY2(file->ReadFrame(frame, raw, error), qPrintable(error));
            for (const QPointF &part : { QPointF(0.1, 0.1), QPointF(0.5, 0.3), QPointF(0.6, 0.2) }) {
                const QPointF place(part.x() * raw.Width(), part.y() * raw.Height());
                MoveMouse(place);
                const QPointF mouse = ImageViewOf(ImagePage())->mapToScene(m_mouseViewPos);
                const QString text = PixelText(raw, QPoint(int(mouse.x()), int(mouse.y())));
                QTRY_COMPARE(PageLabel(text.contains('(') ? "labelRGBValue" : "labelGrayValue"), text);
            }
        }
    }

    void everyOrientationAndCropIsTheSameLiveOpenedAndSaved_data()
    {
        QTest::addColumn<int>("binning");
        QTest::newRow("every pixel") << 1;
        QTest::newRow("binned") << 2;
    }

    /// Turned and cropped alike: the live picture, an opened file, and that file saved and opened again.
    void everyOrientationAndCropIsTheSameLiveOpenedAndSaved()
    {
        QFETCH(int, binning);
        m_workbench->link.SetBinning(binning);
        const LivePreview *preview = m_workbench->services.Preview();
        m_liveSide = SensorSize / binning;
        QTRY_COMPARE_WITH_TIMEOUT(preview->GetCurrentRawFrame()->width, m_liveSide, 10000);
        WriteChart(Path("chart.tif"), binning);
        Drop({ Path("chart.tif") });
        QVERIFY(WaitForImage("chart.tif"));
        const QString whole = QString("%1x%1").arg(m_liveSide);
        const QRect crop(640 / binning, 256 / binning, 512 / binning, 384 / binning); // as seen
        for (int orientation = 0; orientation < 8; ++orientation) {
            QVector<int> steps(orientation % 4, RotateBy90);
            if (orientation >= 4)
                steps.prepend(FlipHorizontal);
            for (const int step : steps)
                Main()->slotRotateImage(step);
            Main()->slotCrop(crop.x(), crop.y(), crop.width(), crop.height(), true);
            QTRY_COMPARE(Main()->GetImageSize(), crop.size());
            const Picture opened = Main()->Shown().samples;
            QVERIFY2(SavedAndOpened(opened), qPrintable(QString::number(orientation)));
            Main()->Document()->UndoStack()->setIndex(0);
            QTRY_COMPARE(Main()->GetImageSizeString(), whole);
            QVERIFY2(IsSeenLive(steps, crop, opened), qPrintable(QString::number(orientation)));
        }
    }

    void stepsAreUndoneByKeys()
    {
        WriteNumbers(Path("one.tif"), QSize(19, 13), 1);
        Drop({ Path("one.tif") });
        QVERIFY(WaitForImage("one.tif"));
        PageButton("pushButtonRotate90")->click();
        QTRY_COMPARE(PageLabel("labelSizeValue"), QString("13x19"));
        QCOMPARE(PageLabel("labelRotateValue"), QString("90%1").arg(QChar(176)));
        QTest::keyClick(&m_workbench->window, Qt::Key_Z, Qt::ControlModifier);
        QTRY_COMPARE(PageLabel("labelSizeValue"), QString("19x13"));
        QTest::keyClick(&m_workbench->window, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QTRY_COMPARE(PageLabel("labelSizeValue"), QString("13x19"));
    }

    void cropByTheFrame()
    {
        WriteNumbers(Path("one.tif"), QSize(200, 100), 1);
        Drop({ Path("one.tif") });
        QVERIFY(WaitForImage("one.tif"));
        PageButton("pushButtonCrop")->click();
        QGraphicsView *view = ImageViewOf(ImagePage());
        QWidget *frame = nullptr;
        for (QWidget *child : view->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
            if (child->inherits("CropFrame"))
                frame = child;
        }
        QVERIFY(frame && frame->isVisible());
        const QPoint from = view->mapFromScene(QPointF(50, 20));
        const QPoint to = view->mapFromScene(QPointF(150, 70));
        QTest::mousePress(frame, Qt::LeftButton, Qt::NoModifier, from);
        QMouseEvent move(QEvent::MouseMove, to, frame->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(frame, &move);
        QTest::mouseRelease(frame, Qt::LeftButton, Qt::NoModifier, to);
        QTest::keyClick(frame, Qt::Key_Return);
        QTRY_VERIFY(Main()->GetImageSize() != QSize(200, 100));
        QVERIFY(!frame->isVisible());
        const QSize size = Main()->GetImageSize();
        QVERIFY2(qAbs(size.width() - 100) <= 1 && qAbs(size.height() - 50) <= 1,
                 qPrintable(Main()->GetImageSizeString()));
        const int first = Main()->Shown().samples.Samples<quint16>(0)[0];
        QVERIFY2(first == Value(50, 20, 0) || first == Value(49, 20, 0) || first == Value(50, 19, 0)
                     || first == Value(49, 19, 0),
                 qPrintable(QString::number(first)));
    }

    void f8SavesTheWholeStack()
    {
        WriteNumbers(Path("stack.tif"), QSize(19, 13), 3);
        Drop({ Path("stack.tif") });
        QVERIFY(WaitForImage("stack.tif"));
        QTest::keyClick(&m_workbench->window, Qt::Key_F8);
        SaveDialog *dialog = OpenSaveDialog();
        QVERIFY(dialog);
        auto *loss = dialog->findChild<QLabel *>("labelLoss");
        auto *allFrames = dialog->findChild<QCheckBox *>("checkBoxAllFrames");
        QCOMPARE(loss->text(), QString());
        QCOMPARE(allFrames->text(), QString("All 3 frames"));
        TypeName(dialog, Path("saved.jpg"));
        QCOMPARE(loss->text(),
                 QString("JPEG changes every sample a little. The 16-bit unsigned integer samples become "
                         "8 bits, with the levels of the screen."));
        QVERIFY(!allFrames->isEnabled());
        emit dialog->filterSelected(dialog->nameFilters().last());
        QCOMPARE(QFileInfo(dialog->Path()).fileName(), QString("saved.fits"));
        QCOMPARE(loss->text(), QString());
        TypeName(dialog, Path("saved.tif"));
        QVERIFY(allFrames->isEnabled());
        allFrames->setChecked(true);
        QMetaObject::invokeMethod(dialog, "accept");
        QTRY_COMPARE(m_workbench->StatusText(), QString("\u201csaved.tif\u201d was saved."));
        QString error;
        const auto saved = OpenPicture(Path("saved.tif"), error);
        QVERIFY2(saved, qPrintable(error));
        QCOMPARE(saved->Info().frames, 3);

        // What follows the dot is no suffix.
        QTRY_VERIFY(!m_workbench->window.findChild<SaveDialog *>());
        m_workbench->services.Desk()->MainPicture()->slotSaveImageAs();
        dialog = OpenSaveDialog();
        QVERIFY(dialog);
        TypeName(dialog, Path("lamp 1.5s"));
        QVERIFY(dialog->findChild<QCheckBox *>("checkBoxAllFrames")->isEnabled());
        QMetaObject::invokeMethod(dialog, "accept");
        QTRY_COMPARE(m_workbench->StatusText(), QString("\u201clamp 1.5s.tif\u201d was saved."));
    }

    void badFilesAreToldAndLeaveWhatIsShown()
    {
        WriteNumbers(Path("good.tif"), QSize(19, 13), 1);
        WriteBytes(Path("cut.tif"), QByteArray("II*\0\x08\0\0\0", 8));
        WriteBytes(Path("text.png"), "no picture");
        Drop({ Path("text.png") });
        auto *notice = m_workbench->window.findChild<QMessageBox *>("FaultNotice");
        QTRY_VERIFY(notice->isVisible());
        QCOMPARE(CurrentView(), int(CameraView));
        QVERIFY(m_workbench->services.Preview()->isRunning());
        QVERIFY2(m_workbench->StatusText().startsWith("\u201ctext.png\u201d cannot be read:"),
                 qPrintable(m_workbench->StatusText()));
        QVERIFY(!notice->isModal());
        notice->close();
        Drop({ Path("good.tif") });
        QVERIFY(WaitForImage("good.tif"));
        Drop({ Path("cut.tif"), m_folder->path() });
        QTRY_VERIFY(notice->text().contains("\u201ccut.tif\u201d cannot be read:"));
        QTRY_VERIFY(notice->text().contains("it is a folder"));
        QCOMPARE(PageLabel("labelFileName"), QString("good.tif"));
        QCOMPARE(CurrentView(), int(ImageView));
        QCOMPARE(Desk()->Shelf()->Documents().size(), 1);
        notice->close();
    }

    void theLivePictureIsComparedWithAFile()
    {
        WriteChart(Path("chart.tif"));
        Drop({ Path("chart.tif") });
        QVERIFY(WaitForImage("chart.tif"));
        m_workbench->services.Config()->SetCameraView();
        QVERIFY(m_workbench->WaitForNextPicture());
        m_workbench->Action("Compare")->trigger();
        QCOMPARE(CurrentView(), int(CameraCompareView));
        QVERIFY(m_workbench->Action("Compare")->isChecked());
        QVERIFY(m_workbench->WaitForNextPicture());
        QCOMPARE(HalfNames(), QStringList({ "", "chart.tif  2048x2048" }));
        // Both show the chart.
        const QPoint point(300, 300);
        const QColor grey = m_workbench->OnScreen(point);
        QGraphicsView *file = CompareViews().last();
        QTRY_COMPARE(m_workbench->OnScreenAt(file->viewport()->mapToGlobal(file->mapFromScene(point))), grey);

        SaveComparison("compared.png");
        const Picture saved = Opened("compared.png");
        QCOMPARE(saved.Size(), QSize(2 * SensorSize + 8, SensorSize));
        QCOMPARE(saved.Row(300)[300], saved.Row(300)[SensorSize + 8 + 300]);

        m_workbench->Action("Compare")->trigger();
        QCOMPARE(CurrentView(), int(CameraView));
        QVERIFY(!m_workbench->Action("Compare")->isChecked());
        QVERIFY(m_workbench->WaitForNextPicture());
    }

    void twoFilesAreCompared()
    {
        WriteNumbers(Path("left.tif"), QSize(19, 13), 1);
        WriteNumbers(Path("right.tif"), QSize(23, 17), 1);
        Drop({ Path("right.tif") });
        QVERIFY(WaitForImage("right.tif"));
        m_workbench->Action("Compare")->trigger();
        QCOMPARE(CurrentView(), int(ImageView));
        QCOMPARE(m_workbench->StatusText(), QString("Open a second picture first: two are compared."));
        QVERIFY(!m_workbench->Action("Compare")->isChecked());
        Drop({ Path("left.tif") });
        QVERIFY(WaitForImage("left.tif"));
        m_workbench->Action("Compare")->trigger();
        QCOMPARE(CurrentView(), int(ImageCompareView));
        QTRY_COMPARE(HalfNames(), QStringList({ "left.tif  19x13", "right.tif  23x17" }));
        SaveComparison("compared.tif");
        QCOMPARE(Opened("compared.tif").Size(), QSize(19 + 8 + 23, 17));

        PageButton("pushButtonCloseCompare")->click();
        QCOMPARE(CurrentView(), int(ImageView));
        QCOMPARE(PageLabel("labelFileName"), QString("left.tif"));
        QVERIFY(Desk()->ComparePicture()->IsNonImage());
        QTRY_COMPARE(VisibleImages(), QVector<QSize>({ QSize(19, 13) }));
    }

    void theFrameBrowserIsThatOfTheCheckedHalf()
    {
        WriteNumbers(Path("right.tif"), QSize(23, 17), 3);
        WriteNumbers(Path("left.tif"), QSize(19, 13), 5);
        Drop({ Path("right.tif") });
        QVERIFY(WaitForImage("right.tif"));
        auto *page = m_workbench->window.findChild<QLabel *>("labelPageInfo");
        auto *bar = page->parentWidget()->findChild<QScrollBar *>("horizontalScrollBar");
        Drop({ Path("left.tif") });
        QVERIFY(WaitForImage("left.tif"));
        bar->setValue(3);
        QTRY_COMPARE(Desk()->MainPicture()->Shown().request.frame, 3);
        m_workbench->Action("Compare")->trigger();
        QTRY_COMPARE(HalfNames(), QStringList({ "left.tif  19x13", "right.tif  23x17" }));
        QCOMPARE(page->text(), QString("4/5"));

        QTest::mouseClick(CompareViews().last()->viewport(), Qt::LeftButton);
        QCOMPARE(page->text(), QString("1/3"));
        bar->setValue(2);
        QTRY_COMPARE(Desk()->ComparePicture()->Shown().request.frame, 2);
        QTest::mouseClick(CompareViews().first()->viewport(), Qt::LeftButton);
        QCOMPARE(page->text(), QString("4/5"));
        QTest::mouseClick(CompareViews().last()->viewport(), Qt::LeftButton);
        QCOMPARE(page->text(), QString("3/3"));

        PageButton("pushButtonCloseCompare")->click();
        QCOMPARE(CurrentView(), int(ImageView));
        QCOMPARE(page->text(), QString("4/5"));
        QVERIFY(page->isVisible());
        QCOMPARE(Desk()->MainPicture()->Shown().request.frame, 3);
        QCOMPARE(Desk()->MainPicture()->WantedDocument()->Frame(), 3);
    }

    void theListShowsRenamesAndCloses()
    {
        WorkspaceConfig *config = m_workbench->services.Config();
        config->SetBottomUIChecked(true);
        config->UpdateCameraControlUI();
        WriteNumbers(Path("a.tif"), QSize(19, 13), 1);
        WriteNumbers(Path("b.tif"), QSize(23, 17), 1);
        Drop({ Path("a.tif"), Path("b.tif") });
        QVERIFY(WaitForImage("b.tif"));
        auto *list = m_workbench->window.findChild<QListWidget *>("listPictures");
        QTRY_VERIFY(list->isVisible());
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                          list->visualItemRect(list->item(0)).center());
        QVERIFY(WaitForImage("a.tif"));
        list->item(0)->setText("new.tif");
        QTRY_COMPARE(PageLabel("labelFileName"), QString("new.tif"));
        QVERIFY(QFile::exists(Path("new.tif")) && !QFile::exists(Path("a.tif")));
        m_workbench->Action("Close")->trigger();
        QVERIFY(WaitForImage("b.tif"));
        m_workbench->Action("Close")->trigger();
        QCOMPARE(CurrentView(), int(CameraView));
        QVERIFY(m_workbench->WaitForNextPicture());
        QCOMPARE(list->count(), 0);
    }

    void twoHundredFilesAtOnce()
    {
        QStringList paths;
        for (int i = 0; i < 200; ++i) {
            paths << Path(QString("%1.tif").arg(i, 3, 10, QChar('0')));
            WriteNumbers(paths.last(), QSize(19, 13), 1);
        }
        Drop(paths);
        QVERIFY(WaitForImage("199.tif"));
        QCOMPARE(Desk()->Shelf()->Documents().size(), 200);
        QTRY_VERIFY_WITH_TIMEOUT(!Desk()->Shelf()->Documents().at(198)->Thumbnail().isNull(), 20000);
    }

private:
    QString Path(const QString &name) const { return m_folder->filePath(name); }
    PictureDesk *Desk() const { return m_workbench->services.Desk(); }
    OpenedPicture *Main() const { return Desk()->MainPicture(); }
    int CurrentView() const { return m_workbench->services.Config()->GetCurrentView(); }
    QWidget *ImagePage() const
    {
        return qobject_cast<QStackedWidget *>(m_workbench->window.centralWidget())->widget(ImageControlPage);
    }
    static QGraphicsView *ImageViewOf(QWidget *page)
    {
        for (QGraphicsView *view : page->findChildren<QGraphicsView *>()) {
            if (view->inherits("DrawViewBase"))
                return view;
        }
        return nullptr;
    }
    /// Sizes of the pictures that are seen on the image page.
    QVector<QSize> VisibleImages() const
    {
        QVector<QSize> sizes;
        for (const QGraphicsView *view : ImagePage()->findChildren<QGraphicsView *>()) {
            if (view->inherits("DrawViewBase") && view->isVisible())
                sizes << view->sceneRect().size().toSize();
        }
        return sizes;
    }
    QString PageLabel(const char *name) const { return ImagePage()->findChild<QLabel *>(name)->text(); }
    QPushButton *PageButton(const char *name) const { return ImagePage()->findChild<QPushButton *>(name); }

    void Drop(const QStringList &paths) const
    {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString &path : paths)
            urls << QUrl::fromLocalFile(path);
        data.setUrls(urls);
        const QPoint middle(700, 450); // over the picture
        QDragEnterEvent enter(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_workbench->window.windowHandle(), &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_workbench->window.windowHandle(), &drop);
        QVERIFY(drop.isAccepted());
    }

    bool WaitForImage(const QString &name) const
    {
        return QTest::qWaitFor([&] { return Main()->GetFileName() == name && CurrentView() != CameraView; },
                               10000);
    }

    /// Moves the mouse over a place of the picture that is seen.
    void MoveMouse(const QPointF &scenePos)
    {
        QGraphicsView *view = ImageViewOf(ImagePage());
        m_mouseViewPos = view->mapFromScene(scenePos);
        QMouseEvent move(QEvent::MouseMove, m_mouseViewPos, view->viewport()->mapToGlobal(m_mouseViewPos),
                         Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(view->viewport(), &move);
    }

    Picture Opened(const QString &name) const
    {
        QString error;
        const auto file = OpenPicture(Path(name), error);
        Picture picture;
        return file && file->ReadFrame(0, picture, error) ? picture : Picture();
    }

    bool SavedAndOpened(const Picture &samples) const
    {
        m_workbench->window.statusBar()->clearMessage();
        Main()->SaveAs(Path("saved.png"), false);
        return QTest::qWaitFor([&] { return m_workbench->StatusText().contains("saved.png"); })
               && Opened("saved.png") == samples;
    }

    /// The steps and the region on the live picture give these samples.
    bool IsSeenLive(const QVector<int> &steps, const QRect &region, const Picture &samples) const
    {
        CameraManager *orientation = m_workbench->services.GetWorkspace()->GetCameraManager();
        m_workbench->services.Config()->SetCameraView();
        for (const int step : steps)
            orientation->slotSetMirrorRotate(step);
        LivePreview *preview = m_workbench->services.Preview();
        bool isSame = m_workbench->WaitForNextPicture();
        preview->slotManualROI(region.x(), region.y(), region.width(), region.height(), true);
        isSame =
            isSame && QTest::qWaitFor([&] { return IsFrame(preview->GetCurrentRawFrame(), samples); }, 10000);

        m_workbench->link.SetRegion(QRect(0, 0, SensorSize, SensorSize));
        for (int turn = steps.count(RotateBy90); turn % 4 != 0; ++turn)
            orientation->slotSetMirrorRotate(RotateBy90);
        if (steps.contains(FlipHorizontal))
            orientation->slotSetMirrorRotate(FlipHorizontal);
        isSame =
            isSame
            && QTest::qWaitFor([&] { return preview->GetCurrentRawFrame()->width == m_liveSide; }, 10000);
        m_workbench->Action("Image")->trigger();
        return isSame;
    }

    static bool IsFrame(const RawCameraFrame *frame, const Picture &samples)
    {
        return frame && frame->width == samples.Width() && frame->height == samples.Height()
               && frame->channels == 1
               && std::equal(samples.Data(), samples.Data() + samples.ByteCount(),
                             frame->buffer + frame->headerLength);
    }

    QVector<QGraphicsView *> CompareViews() const
    {
        QVector<QGraphicsView *> views;
        for (QWidget *half : m_workbench->window.findChildren<QWidget *>()) {
            if (half->inherits("CompareChildFrame"))
                views << ImageViewOf(half);
        }
        return views;
    }

    QStringList HalfNames() const
    {
        QStringList names;
        for (QWidget *half : m_workbench->window.findChildren<QWidget *>()) {
            if (half->inherits("CompareChildFrame"))
                names << half->findChild<QCheckBox *>()->text();
        }
        return names;
    }

    /// The one on the screen; null when there is none.
    SaveDialog *OpenSaveDialog() const
    {
        auto *dialog = m_workbench->window.findChild<SaveDialog *>();
        return dialog && QTest::qWaitForWindowExposed(dialog) ? dialog : nullptr;
    }

    static void TypeName(const SaveDialog *dialog, const QString &path)
    {
        dialog->findChild<QLineEdit *>("fileNameEdit")->setText(path);
    }

    void SaveComparison(const QString &name) const
    {
        m_workbench->services.GetWorkspace()->slotSaveCompare();
        SaveDialog *dialog = OpenSaveDialog();
        QVERIFY(dialog);
        TypeName(dialog, Path(name));
        QMetaObject::invokeMethod(dialog, "accept");
        QTRY_VERIFY(m_workbench->StatusText().contains(name));
        QTRY_VERIFY(!m_workbench->window.findChild<SaveDialog *>());
    }

    QTemporaryDir m_madeFolder;
    QPoint m_mouseViewPos;
    int m_liveSide = SensorSize; ///< of the live picture without a region
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    StyleSheet::Named("dark").Apply(application);
    PicturesScenario test;
    return GuardedTest::Run(&test, argc, argv);
}

#include "tst_pictures.moc"
