// SPDX-License-Identifier: GPL-3.0-or-later
// Works with the program as a reader of the manual does, and saves the pictures of it.
#include "autocounting.h"
#include "calibrationmodel.h"
#include "camerasession.h"
#include "createpicture.h"
#include "globalnotify.h"
#include "filethumbnail.h"
#include "language.h"
#include "levelsmodel.h"
#include "livelevels.h"
#include "openedpicture.h"
#include "picturedesk.h"
#include "recordingdesk.h"
#include "runningworkbench.h"
#include "savesettings.h"
#include "specimenscene.h"
#include "spectrographscene.h"
#include "spectrumpipeline.h"
#include "spectrumsettings.h"
#include "stylesheet.h"
#include "usearea.h"
#include "viewcodes.h"
#include "workspaceconfig.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QDockWidget>
#include <QFrame>
#include <QGraphicsView>
#include <QListView>
#include <QLoggingCategory>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTabWidget>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

namespace {

constexpr QSize WindowSize(1280, 800);
constexpr QSize StackSize(1024, 1024);
constexpr int StackFrames = 12;
constexpr int FramesApart = 20; ///< so that the cells have moved
constexpr double BrightExposureUs = 25000;
constexpr double LampExposureUs = 2000; ///< nothing is cut off
constexpr int WheelNotch = 120;
constexpr int WaitMs = 10000;
constexpr int SettleMs = 1000;

/// Pictures of one run of the program.
class Album
{
public:
    Album(const QString &settingsFolder, const QDir &target)
        : m_files(settingsFolder)
        , m_target(target)
        , m_workbench(settingsFolder)
    {
        m_workbench.window.resize(WindowSize);
        if (!m_workbench.WaitForPicture())
            qFatal("The program shows no picture.");
        m_workbench.link.SetScene(SpecimenScene::SceneName());
        Settle();
    }

    ~Album() { m_workbench.services.Config()->SetCameraView(); }

    void TakeAll()
    {
        TakeLive();
        TakePanels();
        TakeLevels();
        TakeRecording();
        TakeOpenedPicture();
        TakeCompare();
        TakeFiles();
        TakeSpectra();
    }

private:
    void TakeLive()
    {
        Save("workbench");
        ShowPanels(false, false);
        m_workbench.View()->setFocus();
        Zoom(3);
        Save("zoom");
        Press("Ctrl+F");
        m_workbench.Action("Mark Saturated Pixels")->trigger();
        const double exposureUs = m_workbench.link.Session()->Controls().exposureUs;
        m_workbench.link.Session()->SetExposureUs(BrightExposureUs);
        Save("saturation");
        m_workbench.Action("Mark Saturated Pixels")->trigger();
        m_workbench.link.Session()->SetExposureUs(exposureUs);
    }

    /// The objects of the opened picture, in their table.
    void TakeCounted()
    {
        auto *tabs = m_workbench.window.findChild<QTabWidget *>("ImageTabWidget");
        tabs->setCurrentIndex(tabs->count() - 1);
        auto *count = tabs->findChild<QAbstractButton *>("actionCount");
        count->click();
        if (!QTest::qWaitFor([&] { return m_workbench.services.Counting()->Table()->rowCount() > 0; }, WaitMs))
            qFatal("Nothing is counted.");
        Save("counted");
        TakeTabs(m_workbench.window.findChild<QTabWidget *>("BottomTabWidget"));
        count->click();
        tabs->setCurrentIndex(0);
    }

    /// All of the camera's side and around it; those of opened pictures come with one.
    void TakePanels()
    {
        ShowPanels(true, true);
        m_workbench.services.GetUseArea()->slotSetSpectrum(true);
        m_workbench.services.Spectrum()->SetFVBOnFlag(1);
        m_workbench.services.Config()->SetRightUIChecked(true);
        ShowPanels(true, true);
        Save("panels");
        TakeTabs(m_workbench.window.findChild<QTabWidget *>("CameraTabWidget"));
        auto *right = m_workbench.window.findChild<QDockWidget *>("DockRight");
        TakeTabs(qobject_cast<QTabWidget *>(right->widget()));
        TakeTabs(m_workbench.window.findChild<QTabWidget *>("BottomTabWidget"));
        m_workbench.services.Spectrum()->SetFVBOnFlag(0);
        m_workbench.services.GetUseArea()->slotSetSpectrum(false);
        m_workbench.services.Config()->SetRightUIChecked(false);
    }

    /// Each panel in full length, by its object name.
    void TakeTabs(QTabWidget *tabs)
    {
        for (int i = 0; i < tabs->count(); ++i) {
            tabs->setCurrentIndex(i);
            Settle();
            auto *area = qobject_cast<QScrollArea *>(tabs->widget(i));
            QWidget *panel = area ? area->widget() : tabs->widget(i);
            if (!panel->objectName().endsWith("Panel"))
                continue; // brought by no plug-in
            QPixmap picture(panel->size());
            picture.fill(panel->palette().color(QPalette::Window));
            panel->render(&picture, QPoint(), QRegion(), QWidget::DrawChildren);
            SaveAs(picture, panel->objectName().toLower());
        }
        tabs->setCurrentIndex(0);
    }

    void TakeLevels()
    {
        m_workbench.link.SetPixelLayout(PixelLayout::Mono12);
        m_workbench.services.Levels()->Model()->SetSetting(12, { LevelsMode::Automatic, 0, 4095, 1.6 });
        m_workbench.Action("Levels…")->trigger();
        auto *dialog = m_workbench.window.findChild<QDialog *>("LevelsDialog");
        const QRect window = m_workbench.window.geometry();
        dialog->move(window.right() - dialog->width() - 120, window.top() + 60);
        Save("levels");
        dialog->close();
        m_workbench.link.SetPixelLayout(PixelLayout::Mono8);
    }

    void TakeRecording()
    {
        RecordingDesk *desk = m_workbench.services.Recording();
        RecordingSettings settings;
        settings.folder = m_files.path();
        settings.frames = 60;
        desk->Settings()->Set(settings);
        ShowPanels(false, false);
        m_workbench.Action("Capture")->trigger();
        Save("recording");
        if (!QTest::qWaitFor([&] { return !desk->IsBusy(); }, WaitMs))
            qFatal("The recording does not end.");
        m_workbench.Action("Last Recording…")->trigger();
        auto *receipt = m_workbench.window.findChild<QDialog *>("ReceiptDialog");
        receipt->findChild<QAbstractButton *>("pushButtonVerify")->click();
        Save("receipt");
        receipt->close();
        m_workbench.Action("Settings")->trigger();
        Save("recordingsettings");
    }

    void TakeOpenedPicture()
    {
        const QString path = m_files.filePath("specimen.tif");
        WriteStack(path);
        OpenedPicture *picture = m_workbench.services.Desk()->MainPicture();
        m_workbench.services.Desk()->Open({ path }, picture);
        const auto isShown = [picture](int frame) {
            return !picture->IsNonImage() && picture->Shown().request.frame == frame;
        };
        if (!QTest::qWaitFor([&] { return isShown(0); }, WaitMs))
            qFatal("The stack does not open.");
        ShowPanels(true, true);
        auto *page = qobject_cast<QStackedWidget *>(m_workbench.window.centralWidget())->widget(ImageControlPage);
        page->findChild<QFrame *>("MultiImageToolUI")->findChild<QScrollBar *>()->setValue(4);
        if (!QTest::qWaitFor([&] { return isShown(4); }, WaitMs))
            qFatal("The stack shows no other frame.");
        Save("opened");
        TakeTabs(m_workbench.window.findChild<QTabWidget *>("ImageTabWidget"));
        TakeCounted();
    }

    void TakeCompare()
    {
        m_workbench.services.Config()->SetCameraView();
        ShowPanels(false, false);
        m_workbench.Action("Compare")->trigger();
        Save("compare");
        m_workbench.Action("Compare")->trigger();
    }

    void TakeFiles()
    {
        const QDir folder(m_files.filePath("Pictures/cells"));
        folder.mkpath(".");
        m_files.mkpath("Pictures/spectra");
        for (int number = 1; number <= 14; ++number)
            WriteSpecimen(folder.filePath(QString("cells %1.%2").arg(number).arg(number % 5 ? "tif" : "png")), number);
        m_workbench.services.Config()->SetFileView();
        ShowPanels(false, true); // the tree would show the folders of this computer
        auto *page = m_workbench.window.findChild<FileThumbnail *>();
        page->slotOpenFileDirectory(folder.path());
        auto *list = page->findChild<QListView *>("listViewFiles");
        const auto isThere = [list] {
            return list->model()->rowCount() == 14
                   && !list->model()->index(13, 0).data(Qt::DecorationRole).value<QPixmap>().isNull();
        };
        if (!QTest::qWaitFor(isThere, WaitMs))
            qFatal("The thumbnails do not come.");
        list->setCurrentIndex(list->model()->index(2, 0));
        list->selectionModel()->select(list->model()->index(4, 0), QItemSelectionModel::Select);
        Save("files");
    }

    static void WriteSpecimen(const QString &path, int seed)
    {
        Picture picture(StackSize.width() / 2, StackSize.height() / 2, 1, SampleType::U16);
        SpecimenScene scene(seed);
        SceneFrame frame;
        frame.pixels = picture.Data();
        frame.width = frame.sensorWidth = picture.Width();
        frame.height = frame.sensorHeight = picture.Height();
        frame.strideBytes = int(picture.BytesPerRow());
        frame.bitDepth = 16;
        scene.Fill(frame);
        QString error;
        if (!SavePicture(path, picture, SaveOptions(), error))
            qFatal("%s", qPrintable(error));
    }

    /// A lamp before a spectrometer: its lines are named, the spectrum is calibrated, and the fibres are seen side by side.
    void TakeSpectra()
    {
        m_workbench.services.Config()->SetCameraView();
        ShowPanels(false, false);
        m_workbench.link.SetScene(SpectrographScene::SceneName());
        m_workbench.link.SetPixelLayout(PixelLayout::Mono16);
        m_workbench.link.Session()->SetExposureUs(LampExposureUs);
        m_workbench.Action("Curve with Peaks")->trigger();
        m_workbench.Action("Band Found by Itself")->trigger();
        const SpectrumPipeline *spectra = m_workbench.services.Spectra();
        if (!QTest::qWaitFor([&] { return spectra->Shown().band.top > 0; }, WaitMs))
            qFatal("The lamp's light is not found.");
        Settle();

        m_workbench.Action("Calibrate…")->trigger();
        auto *dialog = m_workbench.window.findChild<QDialog *>("CalibrationDialog");
        CalibrationModel *calibration = m_workbench.services.Calibration();
        calibration->Assign();
        if (!QTest::qWaitFor([&] { return calibration->Apply(); }, WaitMs))
            qFatal("The lamp's lines are not assigned.");
        const QRect window = m_workbench.window.geometry();
        dialog->move(window.center() - dialog->rect().center());
        Save("calibration");
        dialog->close();
        ShowPanels(false, true);
        GlobalNotifyObserver(NotifyRaiseCalibrationTable, nullptr);
        Save("spectra");
        ShowPanels(false, false);
        m_workbench.Action("Tracks in 3D")->trigger();
        m_workbench.Action("Find Tracks")->trigger();
        if (!QTest::qWaitFor([&] { return !spectra->Shown().tracks.empty(); }, WaitMs))
            qFatal("The fibres' tracks are not found.");
        Save("tracks");
        m_workbench.Action("Picture")->trigger();
    }

    /// A drift of the cells under the microscope.
    static void WriteStack(const QString &path)
    {
        SaveOptions options;
        options.frameCount = StackFrames;
        QString error;
        const auto writer = CreatePicture(path, options, error);
        SpecimenScene scene(1);
        for (int number = 0; writer && number < StackFrames; ++number) {
            Picture picture(StackSize.width(), StackSize.height(), 1, SampleType::U16);
            SceneFrame frame;
            frame.pixels = picture.Data();
            frame.width = frame.sensorWidth = StackSize.width();
            frame.height = frame.sensorHeight = StackSize.height();
            frame.strideBytes = int(picture.BytesPerRow());
            frame.bitDepth = 16;
            frame.frameNumber = quint64(number) * FramesApart;
            scene.Fill(frame);
            writer->Append(picture, error);
        }
        if (!writer || !writer->Commit(error))
            qFatal("%s", qPrintable(error));
    }

    /// The wheel over a cell, and the mouse at rest there.
    void Zoom(int notches)
    {
        QWidget *viewport = m_workbench.View()->viewport();
        const QPointF cell(1290, 1400); // picture pixels
        for (int i = 0; i < qAbs(notches); ++i) {
            const QPoint place = m_workbench.View()->mapFromScene(cell);
            QWheelEvent event(place, viewport->mapToGlobal(place), QPoint(),
                              QPoint(0, notches > 0 ? WheelNotch : -WheelNotch), Qt::NoButton,
                              Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(viewport, &event);
        }
        QTest::mouseMove(viewport, m_workbench.View()->mapFromScene(cell));
    }

    /// A key of the live page's tool bar.
    void Press(const QString &key)
    {
        for (QAbstractButton *button : m_workbench.CameraPage()->findChildren<QAbstractButton *>()) {
            if (button->shortcut() == QKeySequence(key))
                button->click();
        }
    }

    void ShowPanels(bool left, bool bottom)
    {
        m_workbench.services.Config()->SetLeftUIChecked(left);
        m_workbench.services.Config()->SetBottomUIChecked(bottom);
        m_workbench.services.Config()->UpdateCameraControlUI();
        Settle();
    }

    /// Nothing tells that a window has come to rest.
    static void Settle() { QTest::qWait(SettleMs); }

    /// What the screen shows where the window is, its dialogs among it.
    void Save(const QString &name)
    {
        Settle();
        const QRect window = m_workbench.window.geometry();
        const QPixmap picture = QGuiApplication::primaryScreen()->grabWindow(0, window.x(), window.y(),
                                                                             window.width(), window.height());
        SaveAs(picture, name);
    }

    void SaveAs(const QPixmap &picture, const QString &name)
    {
        if (!picture.save(m_target.filePath(name + ".png")))
            qFatal("%s.png can't be written.", qPrintable(name));
    }

    QDir m_files;
    QDir m_target;
    RunningWorkbench m_workbench;
};

} // namespace

int main(int argc, char **argv)
{
    QLoggingCategory::setFilterRules("default.debug=false");
    QApplication application(argc, argv);
    if (argc < 2 || argc > 3 || !QDir().mkpath(argv[1]))
        qFatal("Usage: manual_pictures FOLDER [dark|light]");
    StyleSheet::Named(argc == 3 ? argv[2] : "dark").Apply(application);
    const QTemporaryDir folder;
    qputenv("XDG_CACHE_HOME", QFile::encodeName(folder.filePath("cache")));
    QSettings settings(folder.filePath("language.ini"), QSettings::IniFormat);
    Language(&settings, "en").Install();
    {
        Album album(folder.path(), QDir(argv[1]));
        album.TakeAll();
    }
    return CameraSession::WaitForTeardown(WaitMs) ? EXIT_SUCCESS : EXIT_FAILURE;
}
