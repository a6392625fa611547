// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbenchservices.h"

#include "applicationlook.h"
#include "autocounting.h"
#include "calibrationmodel.h"
#include "cameracaption.h"
#include "cameralink.h"
#include "camerasession.h"
#include "camerasettings.h"
#include "centredisplay.h"
#include "channelsynthesis.h"
#include "connectedcameras.h"
#include "filejobs.h"
#include "framesaving.h"
#include "frametee.h"
#include "language.h"
#include "levelsmodel.h"
#include "livecover.h"
#include "liveframesize.h"
#include "livehistogram.h"
#include "livelevels.h"
#include "liveorientation.h"
#include "livepreview.h"
#include "liveprofiles.h"
#include "livereport.h"
#include "measuresettings.h"
#include "opencamera.h"
#include "openedpicture.h"
#include "peakfinding.h"
#include "picturedesk.h"
#include "pictureframes.h"
#include "picturelist.h"
#include "pictureloader.h"
#include "pictureprocessing.h"
#include "pictureshelf.h"
#include "picturethumbnails.h"
#include "pixelreadout.h"
#include "recordingdesk.h"
#include "regionofinterest.h"
#include "runregister.h"
#include "savesettings.h"
#include "spectrumpipeline.h"
#include "spectrumranges.h"
#include "spectrumsettings.h"
#include "spectrumwiring.h"
#include "usearea.h"
#include "trackdesk.h"
#include "workspace.h"
#include "workspaceconfig.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSettings>

namespace {

/// Beside the settings.
QString RegisterFolder(const QSettings &settings)
{
    return QFileInfo(settings.fileName()).path() + "/recordings";
}

QString RepairText(const RepairedRun &run)
{
    if (run.waits && run.fault.isEmpty())
        return WorkbenchServices::tr("A recording that was cut off waits until its disk is back: %1").arg(run.path);
    if (!run.fault.isEmpty())
        return WorkbenchServices::tr("A recording that was cut off could not be repaired: %1").arg(run.fault);
    if (run.frames == 0)
        return WorkbenchServices::tr("A recording that was cut off held no whole frame: %1").arg(run.path);
    if (run.torn > 0)
        return WorkbenchServices::tr("A recording that was cut off was repaired: %1 frames in %2, and %3 that were torn "
                                     "are lost")
            .arg(run.frames)
            .arg(run.path)
            .arg(run.torn);
    return WorkbenchServices::tr("A recording that was cut off was repaired: %1 frames in %2").arg(run.frames).arg(run.path);
}

} // namespace

WorkbenchServices::WorkbenchServices(QSettings *settings, CameraLink *link)
    : m_settings(settings)
    , m_link(link)
    , m_look(std::make_unique<ApplicationLook>(settings))
    , m_language(std::make_unique<Language>(settings))
    , m_config(std::make_unique<WorkspaceConfig>(settings))
    , m_useArea(std::make_unique<UseArea>(settings))
    , m_levelsModel(std::make_unique<LevelsModel>(settings))
{
    StartMeasuring();
    StartPictures();
    StartSpectrum();
    StartCamera();
    StartPreview();
    StartRecording();
    StartWorkspace();
    Connect();
    RepairRecordings();
}

WorkbenchServices::~WorkbenchServices()
{
    m_repair.waitForDone();
    m_preview->StopPreview();
    m_spectrumWiring.reset();
    m_spectrumPipeline.reset(); // frames that wait there ask for the orientation
    delete m_pictureList;
}

void WorkbenchServices::StartMeasuring()
{
    m_liveReport = std::make_unique<LiveReport>();
    m_measureSettings = std::make_unique<MeasureSettings>();
    m_autoCounting = std::make_unique<AutoCounting>();
}

void WorkbenchServices::StartPictures()
{
    m_pictureLoader = std::make_unique<PictureLoader>(m_levelsModel.get());
    m_pictureShelf = std::make_unique<PictureShelf>(m_pictureLoader.get());
    m_mainPicture = std::make_unique<OpenedPicture>(m_pictureLoader.get(), OpenedPicture::MainPlace);
    m_comparePicture = std::make_unique<OpenedPicture>(m_pictureLoader.get(), OpenedPicture::ComparePlace);
    m_pictureDesk = std::make_unique<PictureDesk>(m_pictureLoader.get(), m_pictureShelf.get(), m_mainPicture.get(),
                                                  m_comparePicture.get());
    m_pictureProcessing = std::make_unique<PictureProcessing>();
    m_pictureThumbnails = std::make_unique<PictureThumbnails>();
    m_fileJobs = std::make_unique<FileJobs>();
    m_channelSynthesis = std::make_unique<ChannelSynthesis>();
    m_pictureFrames = std::make_unique<PictureFrames>(m_mainPicture.get());
    m_pictureList = new PictureList(m_pictureShelf.get(), m_mainPicture.get()); // reparented by the "File Preview" tab
}

void WorkbenchServices::StartSpectrum()
{
    m_spectrumRanges = std::make_unique<SpectrumRanges>();
    m_centreDisplay = std::make_unique<CentreDisplay>(m_settings);
    m_spectrumSettings = std::make_unique<SpectrumSettings>(m_spectrumRanges.get(), m_centreDisplay.get());
    m_calibration = std::make_unique<CalibrationModel>(m_spectrumSettings.get(), m_settings);
    m_spectrumPipeline = std::make_unique<SpectrumPipeline>([this] { return m_orientation->Get(); });
    m_tracks = std::make_unique<TrackDesk>(m_spectrumSettings.get());
    m_peakFinding = std::make_unique<PeakFinding>([this] { return &m_spectrumPipeline->Shown(); }, [this] { return m_spectrumSettings->IsImageShown(); });
}

void WorkbenchServices::StartCamera()
{
    m_cameras = std::make_unique<ConnectedCameras>();
    m_cameraCaption = std::make_unique<CameraCaption>(m_link);
    m_cameraSettings = std::make_unique<CameraSettings>();
    m_region = std::make_unique<RegionOfInterest>();
}

void WorkbenchServices::StartPreview()
{
    m_orientation = std::make_unique<LiveOrientation>();
    m_cover = std::make_unique<LiveCover>(m_orientation.get(), m_settings);
    m_levels = std::make_unique<LiveLevels>(m_levelsModel.get());
    m_frameTee = std::make_unique<FrameTee>(m_link);
    m_preview = std::make_unique<LivePreview>(m_frameTee.get(), m_orientation.get(), m_levels.get());
    m_pixelReadout = std::make_unique<PixelReadout>(m_preview.get(), m_orientation.get());
    m_frameSize = std::make_unique<LiveFrameSize>();
    m_histogram = std::make_unique<LiveHistogram>(m_preview.get());
    m_profiles = std::make_unique<LiveProfiles>(m_settings);
    m_preview->AddAnalysis(m_profiles.get());
}

void WorkbenchServices::StartRecording()
{
    m_saveSettings = std::make_unique<SaveSettings>(m_settings);
    m_frameSaving = std::make_unique<FrameSaving>(RunRegister(RegisterFolder(*m_settings)));
    // What is saved comes before what is shown.
    m_preview->SetLeastPeriod([saving = m_frameSaving.get()] {
        return saving->isRunning() ? LivePreview::PeriodBesideRecording(saving->Queue().Count()) : 0;
    });
    RecordingDesk::Parts parts;
    parts.link = m_link;
    parts.tee = m_frameTee.get();
    parts.saving = m_frameSaving.get();
    parts.settings = m_saveSettings.get();
    parts.orientation = m_orientation.get();
    // Who does not work with spectra has no use for what is left of a calibration.
    parts.calibration = [this] {
        const CameraSession *camera = m_link->Session();
        if (!camera || !m_useArea->IsSpectrumPagePresent())
            return QVector<MetadataEntry>();
        return m_spectrumSettings->LiveCalibration({camera->Format().region, camera->Format().binning, m_orientation->Get()});
    };
    m_recording = std::make_unique<RecordingDesk>(parts);
}

/// What a program that died has left is finished in the background.
void WorkbenchServices::RepairRecordings()
{
    m_repair.start([this, folder = RegisterFolder(*m_settings)] {
        const QVector<RepairedRun> runs = RepairRuns(RunRegister(folder));
        QMetaObject::invokeMethod(this, [this, runs] {
            for (const RepairedRun &run : runs)
                emit signalRepaired(RepairText(run));
        }, Qt::QueuedConnection);
    });
}

void WorkbenchServices::FinishRepair()
{
    m_repair.waitForDone();
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
}

void WorkbenchServices::StartWorkspace()
{
    Workspace::Parts parts;
    parts.config = m_config.get();
    parts.liveReport = m_liveReport.get();
    parts.mainPicture = m_mainPicture.get();
    parts.comparePicture = m_comparePicture.get();
    parts.cameraManager = m_orientation.get();
    parts.cameraList = m_cameras.get();
    parts.desk = m_pictureDesk.get();
    m_workspace = std::make_unique<Workspace>(parts);
}

void WorkbenchServices::Connect()
{
    connect(m_link, SIGNAL(signalStateChanged()), this, SLOT(slotCameraStateChanged()));
    connect(m_link, &CameraLink::signalFramesFailed, this, &WorkbenchServices::slotFramesFailed);
    connect(m_preview.get(), SIGNAL(signalPictureSizeChanged(QSize)), m_frameSize.get(), SLOT(slotSetSize(QSize)));
    connect(m_preview.get(), SIGNAL(signalPictureSizeChanged(QSize)), this, SLOT(slotPictureSizeChanged(QSize)));
    connect(m_preview.get(), SIGNAL(signalPictureSizeChanged(QSize)), m_cover.get(), SLOT(slotSetPictureSize(QSize)));
    connect(m_preview.get(), SIGNAL(signalRegionWanted(QRect)), this, SLOT(slotRegionWanted(QRect)));
    connect(m_workspace.get(), &Workspace::signalCameraSceneSet, m_cover.get(), &LiveCover::ShowIn);

    connect(m_useArea.get(), &UseArea::signalUpdateUseArea, this, &WorkbenchServices::slotShowUseArea);
    ConnectPalette();
    WireSpectrum();
    ConnectPictures();

    connect(m_link, SIGNAL(signalMessage(QString)), this, SIGNAL(signalMessage(QString)));
    connect(m_preview.get(), SIGNAL(signalCaptureWanted(bool, bool)), m_recording.get(), SLOT(slotCapture(bool, bool)));
    connect(this, SIGNAL(signalRepaired(QString)), this, SIGNAL(signalMessage(QString)));
    connect(m_recording.get(), SIGNAL(signalMessage(QString)), this, SIGNAL(signalMessage(QString)));
    connect(m_fileJobs.get(), SIGNAL(signalMessage(QString)), this, SIGNAL(signalMessage(QString)));
    connect(m_workspace.get(), SIGNAL(signalMessage(QString)), this, SIGNAL(signalMessage(QString)));
    connect(m_pictureDesk.get(), SIGNAL(signalMessage(QString)), this, SIGNAL(signalMessage(QString)));
}

void WorkbenchServices::ConnectPalette()
{
    connect(m_levelsModel.get(), &LevelsModel::signalPaletteChanged, this, &WorkbenchServices::slotShowPalette);
    connect(m_link, &CameraLink::signalFormatChanged, this, &WorkbenchServices::slotShowPalette);
    connect(m_link, &CameraLink::signalStateChanged, this, &WorkbenchServices::slotShowPalette);
    for (OpenedPicture *picture : {m_mainPicture.get(), m_comparePicture.get()})
        connect(picture, &OpenedPicture::signalShown, this, &WorkbenchServices::slotShowPalette);
}

void WorkbenchServices::WireSpectrum()
{
    SpectrumWiring::Parts parts;
    parts.link = m_link;
    parts.tee = m_frameTee.get();
    parts.preview = m_preview.get();
    parts.orientation = m_orientation.get();
    parts.mainPicture = m_mainPicture.get();
    parts.comparePicture = m_comparePicture.get();
    parts.desk = m_pictureDesk.get();
    parts.config = m_config.get();
    parts.workspace = m_workspace.get();
    parts.useArea = m_useArea.get();
    parts.centre = m_centreDisplay.get();
    parts.settings = m_spectrumSettings.get();
    parts.pipeline = m_spectrumPipeline.get();
    parts.profiles = m_profiles.get();
    parts.tracks = m_tracks.get();
    m_spectrumWiring = std::make_unique<SpectrumWiring>(parts);
    connect(m_spectrumWiring.get(), &SpectrumWiring::signalMessage, this, &WorkbenchServices::signalMessage);
}

void WorkbenchServices::slotShowCurvesAgain()
{
    m_spectrumWiring->slotShowCurvesAgain();
}

void WorkbenchServices::slotShowPalette()
{
    // A colour picture keeps its own colours: the greys that each of the three is made of.
    const auto coloursOf = [this](bool isColour) {
        return (isColour ? Palette() : m_levelsModel->GetPalette()).Colours();
    };
    const CameraSession *camera = m_link->Session();
    emit m_profiles->SignalPseudoColorsUpdate(
        coloursOf(camera && camera->Format().layout == PixelLayout::Rgb8));
    for (OpenedPicture *picture : { m_mainPicture.get(), m_comparePicture.get() })
        emit picture->signalUpdatePseudoColor(coloursOf(picture->IsColour()));
}

void WorkbenchServices::ConnectPictures()
{
    connect(m_pictureDesk.get(), SIGNAL(signalOpened()), m_workspace.get(), SLOT(slotPictureOpened()));
    connect(m_pictureDesk.get(), SIGNAL(signalLastClosed()), m_workspace.get(), SLOT(slotLastPictureClosed()));
    connect(m_pictureDesk.get(), SIGNAL(signalCompareLost()), m_workspace.get(), SLOT(slotCompareLost()));
    connect(m_fileJobs.get(), &FileJobs::signalFault, m_pictureDesk.get(), &PictureDesk::signalFault);
    connect(m_fileJobs.get(), &FileJobs::signalChanged, m_pictureDesk.get(), &PictureDesk::slotFileChanged);
    connect(m_fileJobs.get(), &FileJobs::signalMerged, this,
            [this](const QString &path) {
                m_pictureDesk->slotFileReplaced(path);
                m_workspace->slotOpenImage(path, nullptr);
            });
    connect(m_workspace.get(), SIGNAL(signalUpdateImageCompareFrame()), m_pictureDesk.get(), SLOT(slotUpdateUndo()));
    // The module's frame browser listens to the picture that was active when it was built.
    connect(m_comparePicture.get(), SIGNAL(signalCurrentFileFrameNumber(int)), m_mainPicture.get(),
            SIGNAL(signalCurrentFileFrameNumber(int)));
    connect(m_comparePicture.get(), SIGNAL(signalCurrentFrame(int)), m_mainPicture.get(),
            SIGNAL(signalCurrentFrame(int)));
    // The view may be about to change again.
    connect(m_config.get(), SIGNAL(signalSwitchView()), m_workspace.get(), SLOT(slotLeaveEmptyPage()),
            Qt::QueuedConnection);
    connect(m_config.get(), SIGNAL(signalSwitchView()), m_pictureDesk.get(), SLOT(slotUpdateUndo()),
            Qt::QueuedConnection);
    for (OpenedPicture *picture : {m_mainPicture.get(), m_comparePicture.get()}) {
        connect(m_levelsModel.get(), SIGNAL(signalChanged()), picture, SLOT(slotLevelsChanged()));
        connect(m_workspace.get(), SIGNAL(signalActiveImageChanged(QObject *)), picture,
                SLOT(slotActiveImageChanged(QObject *)));
    }
}

/// A camera that was opened gets its service and a fresh preview; one that was closed loses both. A
/// lost camera keeps them, and so the screen keeps its last picture.
void WorkbenchServices::slotCameraStateChanged()
{
    const CameraLink::State state = m_link->GetState();
    if (state == CameraLink::State::Open && !m_openCamera) {
        m_openCamera = std::make_unique<OpenCamera>(m_link);
        connect(m_orientation.get(), SIGNAL(signalUpdateRotateDegree(int)), m_openCamera.get(),
                SLOT(slotSetRotateDegree(int)));
        m_orientation->Reset();
        if (m_workspace->IsCameraView())
            m_preview->StartPreview();
    } else if (state == CameraLink::State::NoCamera || state == CameraLink::State::Opening) {
        m_preview->StopPreview();
        m_preview->Forget();
        m_histogram->Forget();
        m_openCamera.reset();
    }
    emit m_cameras->signalUpdateCameraList();
    emit m_cameraSettings->signalPreviewStateChanged();
    m_config->UpdateAllControlUI();
}

/// The user may start it again, or look for another camera.
void WorkbenchServices::slotFramesFailed()
{
    m_preview->StopPreview();
    emit m_cameraSettings->signalPreviewStateChanged();
    m_config->UpdateAllControlUI();
}

void WorkbenchServices::slotPictureSizeChanged(QSize size)
{
    m_liveReport->SetImageSize(size);
}

void WorkbenchServices::slotShowUseArea()
{
    m_centreDisplay->ShowSpectrum(m_useArea->IsSpectrumPagePresent());
    slotShowPalette();
}

/// `region` counts from the corner of the region that is read out now, in pixels of the frame.
void WorkbenchServices::slotRegionWanted(QRect region)
{
    if (!m_link->Session())
        return;
    const FormatValues &format = m_link->Session()->Format();
    const QRect onSensor(region.topLeft() * format.binning, region.size() * format.binning);
    m_link->SetRegion(onSensor.translated(format.region.topLeft()));
    m_region->SetManualROIChecked(false);
}
