// SPDX-License-Identifier: GPL-3.0-or-later
#include "mainwindow.h"

#include "adjustmentfields.h"
#include "camerafeaturetree.h"
#include "camerafields.h"
#include "cameralink.h"
#include "cameramenu.h"
#include "cameranotice.h"
#include "camerasession.h"
#include "countfields.h"
#include "curvestatus.h"
#include "drawingguard.h"
#include "filedrop.h"
#include "filepagecommands.h"
#include "filethumbnail.h"
#include "globalclass.h"
#include "globalui.h"
#include "informationdialog.h"
#include "levelssource.h"
#include "liveorientation.h"
#include "openedpicture.h"
#include "openedprofiles.h"
#include "openedtracksnotice.h"
#include "panelsources.h"
#include "picturedesk.h"
#include "picturedialogs.h"
#include "picturemenus.h"
#include "pictureshelf.h"
#include "plugindialog.h"
#include "pluginlist.h"
#include "processfields.h"
#include "recordingdesk.h"
#include "recordingfields.h"
#include "recordingguard.h"
#include "recordingmenu.h"
#include "recordingstatus.h"
#include "savesettings.h"
#include "shownframes.h"
#include "spectrometermenu.h"
#include "spectrumdialogs.h"
#include "spectrumsettings.h"
#include "spectrumuimanager.h"
#include "standingcurve.h"
#include "statusline.h"
#include "trackbox.h"
#include "uimanagerbase.h"
#include "unsavedguard.h"
#include "valueaxis.h"
#include "viewcodes.h"
#include "viewmenu.h"
#include "wheelzoom.h"
#include "workbenchservices.h"
#include "workspace.h"
#include "workspaceconfig.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QLabel>
#include <QMenuBar>
#include <QScreen>
#include <QSettings>
#include <QShortcut>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabWidget>

#include <utility>

namespace {
/// Of QMainWindow::saveState().
constexpr int StateVersion = 1;
const char GeometryKey[] = "window/geometry";
const char StateKey[] = "window/state";
const char BlackBackgroundKey[] = "window/blackBackground";

// Design sizes.
constexpr QSize DefaultSize(1440, 900);
constexpr int SidePanelWidth = 400;
constexpr int BottomPanelHeight = 170;

RecordingFields::Example NameExample(CameraLink *link)
{
    return [link] {
        NamePattern::Values values{link->Name(), QDateTime::currentDateTime(), 0, 0};
        if (CameraSession *session = link->Session()) {
            values.exposureUs = session->Controls().exposureUs;
            values.gain = session->Controls().gain;
        }
        return values;
    };
}

} // namespace

MainWindow::MainWindow(WorkbenchServices *services, QSettings *settings)
    : m_services(services)
    , m_settings(settings)
    , m_drawingGuard(new DrawingGuard(services->Config(), this))
    , m_recordingGuard(new RecordingGuard(services->Recording(), this))
    , m_cameraFields(new CameraFields(services->Link(), services->Cameras(), services->Region(), this))
    , m_cameraFeatures(new CameraFeatureTree(services->Link(), this))
    , m_recordingFields(new RecordingFields(services->Recording()->Settings(), NameExample(services->Link()), this))
    , m_processFields(new ProcessFields(services->Desk()->MainPicture(), services->Desk()->Shelf(), this))
    , m_countFields(new CountFields(services->Desk()->MainPicture(), services->Counting(), this))
{
    setObjectName("MainWindow");
    setWindowTitle(tr("Workbench"));

    // The panels find them while the module is built.
    auto *sources = new PanelSources(
        {services->Histogram(), services->Spectrum(), services->Spectra(), services->Tracks(), services->Calibration(),
         [services] { return services->Desk()->MainPicture()->Profiles()->IsSaturated(services->Spectrum()->IsDirectionHorinzontal()); },
         services->Peaks()},
        this);
    AddAdjustment(FieldSource::CameraAdjustmentName, services->LivePosition(), SLOT(slotSetMirrorRotate(int)));
    AddAdjustment(FieldSource::ImageAdjustmentName, services->Desk()->MainPicture(), SLOT(slotRotateImage(int)));
    BuildAreas();
    m_drawingGuard->Watch(services->GetWorkspace()->GetCameraScene()->views().first());
    m_shown = new ShownFrames(services->Preview(), services->GetWorkspace(), m_centre->widget(CameraControlPage), this);
    BuildMenus();
    auto *recordingLabel = new QLabel(this);
    recordingLabel->setObjectName("labelStatusRecording");
    statusBar()->addPermanentWidget(recordingLabel);
    m_recordingStatus = new RecordingStatus(services->Recording(), recordingLabel, this);
    connect(m_recordingStatus, &RecordingStatus::signalLossSeen, this,
            [this](bool seen) { statusBar()->setVisible(!m_isFullScreen || seen); });
    new TrackBox(services->Spectra(), services->Spectrum(), m_centre, this);
    new WheelZoom(services->Spectrum(), m_centre, this);
    new CurveStatus(services, statusBar(), this);
    new StandingCurve(services, m_centre, this);
    new ValueAxis(services->Spectra(), m_centre->widget(CameraControlPage), this);
    new OpenedTracksNotice(services, m_centre->widget(ImageControlPage), this);
    m_statusLine = new StatusLine(services->Link(), services->Preview(), m_shown, statusBar(), this);
    connect(services, SIGNAL(signalMessage(QString)), this, SLOT(slotShowMessage(QString)));
    connect(m_drawingGuard, SIGNAL(signalMessage(QString)), this, SLOT(slotShowMessage(QString)));
    connect(m_processFields, &ProcessFields::signalMessage, this, &MainWindow::slotShowMessage);
    connect(m_countFields, &CountFields::signalMessage, this, &MainWindow::slotShowMessage);
    connect(sources, &PanelSources::signalMessage, this, &MainWindow::slotShowMessage);
    connect(sources, &PanelSources::signalNotSaved, services->Desk(), &PictureDesk::signalFault);
    connect(m_countFields, &CountFields::signalNotSaved, services->Desk(), &PictureDesk::signalFault);
    m_leaveFullScreen = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    m_leaveFullScreen->setEnabled(false);
    connect(m_leaveFullScreen, SIGNAL(activated()), this, SLOT(slotLeaveFullScreen()));

    GlobalAttachObserver(this);
    RestoreLayout();
    services->Config()->SetCameraView();
    services->slotShowUseArea();
}

MainWindow::~MainWindow()
{
    GlobalDetachObserver(this);
    delete GlobalUI::GetInstance();
}

/// The panel of one of the two pictures, which is turned by `turnSlot` of `turned`.
void MainWindow::AddAdjustment(const char *name, QObject *turned, const char *turnSlot)
{
    auto *source = new LevelsSource(m_services, this);
    auto *fields = new AdjustmentFields(name, source->Model(), this);
    connect(fields, &AdjustmentFields::signalWatched, source, &LevelsSource::slotSetWatched);
    connect(source, &LevelsSource::signalReport, fields, &AdjustmentFields::slotReport);
    connect(source, &LevelsSource::signalNoReport, fields, &AdjustmentFields::slotNoReport);
    connect(fields, SIGNAL(signalTurnWanted(int)), turned, turnSlot);
}

void MainWindow::BuildAreas()
{
    GlobalUI *module = GlobalUI::GetInstance();
    module->InitMainUI(this);
    emit SpectrumUIManager::GetInstance()->SignalZoomAutoFlagChange(); // the zoom bars are born with the look of "on"

    m_centre = module->GetCenterStackedWidget();
    setCentralWidget(m_centre);
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    m_leftDock = AddDock("DockLeft", module->GetLeftStackedWidget(), Qt::LeftDockWidgetArea);
    m_rightDock = AddDock("DockRight", module->GetRightTabWidget(), Qt::RightDockWidgetArea);
    m_bottomDock = AddDock("DockBottom", module->GetBottomTabWidget(), Qt::BottomDockWidgetArea);
    connect(m_centre, SIGNAL(signalUpdateDockWidget()), this, SLOT(slotUpdateDockWidget()));

    new CameraNotice(m_services->Link(), m_centre->widget(CameraControlPage)); // owned by the page
}

/// The panels are folded by the buttons around the centre, so the docks have no title bars.
QDockWidget *MainWindow::AddDock(const char *name, QWidget *area, Qt::DockWidgetArea where)
{
    auto *dock = new QDockWidget(this);
    dock->setObjectName(name);
    dock->setFeatures(QDockWidget::NoDockWidgetFeatures);
    dock->setTitleBarWidget(new QWidget(dock));
    if (where != Qt::BottomDockWidgetArea)
        area->setMinimumWidth(GlobalClass::GetActualSize(SidePanelWidth));
    dock->setWidget(area);
    addDockWidget(where, dock);
    return dock;
}

PictureMenus *MainWindow::BuildPictureCommands()
{
    auto *dialogs = new PictureDialogs(m_services, this);
    m_unsavedGuard = new UnsavedGuard(m_services->Desk(), dialogs, this);
    auto *drop = new FileDrop(this);
    connect(drop, SIGNAL(signalFilesDropped(QStringList)), dialogs, SLOT(slotOpenFiles(QStringList)));
    new FilePageCommands(m_services, qobject_cast<FileThumbnail *>(m_centre->widget(FileSystemPage)), this);
    connect(m_services->Desk(), SIGNAL(signalFault(QString)), this, SLOT(slotShowMessage(QString)));
    return new PictureMenus(m_services, dialogs, this);
}

void MainWindow::BuildMenus()
{
    PictureMenus *pictures = BuildPictureCommands();
    QMenu *file = menuBar()->addMenu(tr("&File"));
    pictures->FillFileMenu(file);
    file->addSeparator();
    file->addAction(tr("&Quit"), this, SLOT(close()), QKeySequence("Ctrl+W"));

    QMenu *edit = menuBar()->addMenu(tr("&Edit"));
    pictures->FillEditMenu(edit);
    auto *camera = new CameraMenu(m_services, m_recordingGuard, this);
    menuBar()->addMenu(camera);
    connect(m_cameraFields, SIGNAL(signalCameraWanted(QString)), camera, SLOT(slotOpen(QString)));
    connect(m_cameraFields, SIGNAL(signalSearchWanted()), camera, SLOT(slotRefresh()));
    connect(m_services->Recording(), SIGNAL(signalStateChanged()), this, SLOT(slotRecordingStateChanged()));
    auto *recording = new RecordingMenu(m_services, this);
    menuBar()->addMenu(recording);
    m_viewMenu = new ViewMenu(m_services, this);
    menuBar()->addMenu(m_viewMenu);
    pictures->FillViewMenu(m_viewMenu);
    connect(m_viewMenu, SIGNAL(signalRestoreDefaultLayout()), this, SLOT(slotRestoreDefaultLayout()));
    connect(m_viewMenu, SIGNAL(signalMessage(QString)), this, SLOT(slotShowMessage(QString)));
    connect(m_viewMenu, SIGNAL(signalDrawingChosen(bool)), m_drawingGuard, SLOT(slotSetCPUDraw(bool)));

    auto *spectrometer = new SpectrometerMenu(m_services, this);
    menuBar()->addMenu(spectrometer);
    connect(spectrometer, &SpectrometerMenu::signalMessage, this, &MainWindow::slotShowMessage);
    auto *spectra = new SpectrumDialogs(m_services, m_centre, this);
    connect(spectrometer, &SpectrometerMenu::signalCalibrationWanted, spectra, &SpectrumDialogs::slotCalibrate);
    connect(spectrometer, &SpectrometerMenu::signalExportWanted, spectra, &SpectrumDialogs::slotExportSpectrum);
    connect(spectrometer, &SpectrometerMenu::signalPlotExportWanted, spectra, &SpectrumDialogs::slotExportPlot);
    connect(spectra, &SpectrumDialogs::signalMessage, this, &MainWindow::slotShowMessage);

    QMenu *help = menuBar()->addMenu(tr("&Help"));
    help->addAction(tr("&Plug-ins…"), [this] {
        (new PluginDialog(UIManagerBase::PluginReports(), PluginList::Folders(), this))->open();
    });
    help->addAction(tr("&About"), [this] { InformationDialog::ShowAbout(this); });

    // While the window fills the screen the menu bar is hidden, and its keys would be with it.
    for (QMenu *menu : {file, edit, static_cast<QMenu *>(camera), static_cast<QMenu *>(recording), static_cast<QMenu *>(m_viewMenu),
                        static_cast<QMenu *>(spectrometer)})
        addActions(menu->actions());
}

void MainWindow::RestoreLayout()
{
    ArrangeDefault();
    restoreGeometry(m_settings->value(GeometryKey).toByteArray());
    restoreState(m_settings->value(StateKey).toByteArray(), StateVersion);
    SetBlackBackground(m_settings->value(BlackBackgroundKey, false).toBool());
    slotUpdateDockWidget();
}

void MainWindow::ArrangeDefault()
{
    const int side = GlobalClass::GetActualSize(SidePanelWidth);
    const QSize size(GlobalClass::GetActualSize(DefaultSize.width()), GlobalClass::GetActualSize(DefaultSize.height()));
    resize(size.boundedTo(QApplication::primaryScreen()->availableSize()));
    resizeDocks({m_leftDock, m_rightDock}, {side, side}, Qt::Horizontal);
    resizeDocks({m_bottomDock}, {GlobalClass::GetActualSize(BottomPanelHeight)}, Qt::Vertical);
}

void MainWindow::slotRestoreDefaultLayout()
{
    slotLeaveFullScreen();
    if (isMaximized())
        showNormal();
    m_services->Config()->RestoreDefaults();
    SetBlackBackground(false);
    slotUpdateDockWidget();
    ArrangeDefault();
}

void MainWindow::slotRecordingStateChanged()
{
    m_recordingFields->SetBusy(m_services->Recording()->IsBusy());
}

void MainWindow::slotUpdateDockWidget()
{
    const WorkspaceConfig *config = m_services->Config();
    m_leftDock->setVisible(config->IsLeftUIChecked());
    m_rightDock->setVisible(config->IsRightUIChecked() && config->IsRightButtonsAvailable());
    m_bottomDock->setVisible(config->IsBottomUIChecked());
    if (m_viewMenu)
        m_viewMenu->slotUpdate();
}

void MainWindow::slotShowMessage(QString text)
{
    m_statusLine->slotShowMessage(text);
}

void MainWindow::UpdateObserver(int id, void *)
{
    if (id == NotifyFullScreen)
        SetFullScreen(!m_isFullScreen);
    else if (id == NotifyBlackBackground)
        SetBlackBackground(!m_isBlackBackground);
}

void MainWindow::slotLeaveFullScreen()
{
    SetFullScreen(false);
}

/// The panels fold away for the picture; their buttons stay, and they come back with the window.
void MainWindow::SetFullScreen(bool full)
{
    if (full == m_isFullScreen)
        return;
    m_isFullScreen = full;
    const WorkspaceConfig *config = m_services->Config();
    if (full) {
        m_panelsBeforeFullScreen.left = config->IsLeftUIChecked();
        m_panelsBeforeFullScreen.right = config->IsRightUIChecked();
        m_panelsBeforeFullScreen.bottom = config->IsBottomUIChecked();
        SetPanels({false, false, false});
    } else {
        SetPanels(m_panelsBeforeFullScreen);
    }
    // Outside of it the key belongs to whatever tool is at work over the picture.
    m_leaveFullScreen->setEnabled(full);
    menuBar()->setVisible(!full);
    statusBar()->setVisible(!full || m_recordingStatus->IsLossSeen()); // a loss is never hidden
    setWindowState(windowState().setFlag(Qt::WindowFullScreen, full));
    m_viewMenu->slotSetFullScreenChecked(full);
}

void MainWindow::SetPanels(const PanelsShown &panels)
{
    WorkspaceConfig *config = m_services->Config();
    config->SetLeftUIChecked(panels.left);
    config->SetRightUIChecked(panels.right);
    config->SetBottomUIChecked(panels.bottom);
    config->UpdateCameraControlUI();
}

void MainWindow::SetBlackBackground(bool black)
{
    m_isBlackBackground = black;
    m_settings->setValue(BlackBackgroundKey, black);
    QMetaObject::invokeMethod(m_centre, "slotSetBlackBackground", Q_ARG(bool, black));
    m_viewMenu->slotSetBlackBackgroundChecked(black);
}

/// The window manager has ways of its own to leave it.
void MainWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && !isFullScreen())
        SetFullScreen(false);
}

/// The recording comes last: it cannot be brought back when the other question is cancelled.
void MainWindow::AskToClose()
{
    m_unsavedGuard->DoLosingAll([this] {
        m_recordingGuard->Do(tr("Closing the program ends it."), [this] {
            m_mayLoseChanges = true;
            QMetaObject::invokeMethod(this, "close", Qt::QueuedConnection); // the closing that asked may not have ended
        });
    });
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    const bool mayLoseChanges = std::exchange(m_mayLoseChanges, false);
    if (m_services->Recording()->IsBusy() || (!mayLoseChanges && !m_services->Desk()->Shelf()->Changed().isEmpty())) {
        event->ignore();
        AskToClose();
        return;
    }
    slotLeaveFullScreen();
    m_settings->setValue(GeometryKey, saveGeometry());
    m_settings->setValue(StateKey, saveState(StateVersion));
    QMainWindow::closeEvent(event);
}
