// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrumwiring.h"

#include "cameralink.h"
#include "camerasession.h"
#include "centredisplay.h"
#include "frametee.h"
#include "liveorientation.h"
#include "livepreview.h"
#include "liveprofiles.h"
#include "openedpicture.h"
#include "openedprofiles.h"
#include "picturedesk.h"
#include "spectrumpipeline.h"
#include "spectrumsettings.h"
#include "trackdesk.h"
#include "usearea.h"
#include "viewcodes.h"
#include "viewrules.h"
#include "workspace.h"
#include "workspaceconfig.h"

namespace {

SpectralPicture SpectralPictureOf(const LoadedPicture &shown)
{
    const PictureEdit::Source source = shown.request.edit.SourceOf(shown.fileSize).value_or(PictureEdit::Source());
    return {shown.request.file.id, shown.fileSize, source.region, source.orientation, shown.fileAxis, shown.axis};
}

} // namespace

SpectrumWiring::SpectrumWiring(const Parts &parts)
    : m_parts(parts)
{
    ConnectCentre();
    ConnectProfiles();
    m_parts.tee->SetListener(m_parts.pipeline);
    ConnectSettings();
    ConnectTracks();
    ConnectPicture();
    ConnectCamera();
}

SpectrumWiring::~SpectrumWiring()
{
    m_parts.tee->SetListener(nullptr);
    m_parts.pipeline->SetStandingFrame({});
}

void SpectrumWiring::ConnectCentre()
{
    connect(m_parts.centre, &CentreDisplay::signalModeChanged, this, &SpectrumWiring::slotDisplayModeChanged);
    // The pages that a comparison takes the place of are switched before it begins.
    connect(m_parts.config, &WorkspaceConfig::signalSwitchView, m_parts.centre, [centre = m_parts.centre, config = m_parts.config] {
        centre->SetComparing(ViewRules::IsComparison(config->WorkedView()));
    });
    connect(m_parts.centre, &CentreDisplay::signalEndComparisonWanted, m_parts.config,
            [config = m_parts.config] { config->SetCompareView(); });
}

void SpectrumWiring::ConnectProfiles()
{
    connect(m_parts.profiles, &LiveProfiles::signalFrameWanted, m_parts.preview, &LivePreview::slotShowAgain);
    for (OpenedPicture *picture : {m_parts.mainPicture, m_parts.comparePicture}) {
        connect(m_parts.profiles, &LiveProfiles::signalLinesChanged, picture->Profiles(), &OpenedProfiles::slotSetLines);
        connect(m_parts.centre, &CentreDisplay::signalModeChanged, picture, &OpenedPicture::slotShowCurvesAgain);
        picture->Profiles()->slotSetLines(m_parts.profiles->Lines());
    }
}

void SpectrumWiring::ConnectSettings()
{
    SpectrumSettings *settings = m_parts.settings;
    connect(m_parts.preview, &LivePreview::signalPictureSizeChanged, this, &SpectrumWiring::slotPictureSizeChanged);
    connect(m_parts.preview, &LivePreview::signalPictureDelivered, this, &SpectrumWiring::slotPictureDelivered);
    connect(settings, &SpectrumSettings::signalRecipeChanged, m_parts.pipeline,
            [settings, pipeline = m_parts.pipeline] { pipeline->SetRecipe(settings->Recipe()); });
    connect(settings, &SpectrumSettings::signalRecipeChanged, this, &SpectrumWiring::slotUpdateProfilesWanted);
    // Once the plot knows of it; of a standing camera and of a file no curve comes by itself.
    connect(settings, &SpectrumSettings::signalWholeCurveWanted, this, &SpectrumWiring::slotShowWholeCurve, Qt::QueuedConnection);
    connect(m_parts.pipeline, &SpectrumPipeline::signalMeaningChanged, this, &SpectrumWiring::slotMeaningChanged);
    // As the payload: between the curve of before, which may be on its way to the plot, and that of now.
    connect(m_parts.pipeline, &SpectrumPipeline::signalMeaningChanged, this, &SpectrumWiring::slotShowWholeNextCurve,
            Qt::QueuedConnection);
    connect(m_parts.config, &WorkspaceConfig::signalSwitchView, this, &SpectrumWiring::slotViewSwitched);
    // The pages are told what pixels mean now, but what they show was drawn before.
    connect(settings, &SpectrumSettings::SignalConversationFormulaChanged, this, &SpectrumWiring::slotShowCurvesAgain);
    connect(settings, &SpectrumSettings::signalMessage, this, &SpectrumWiring::signalMessage);
}

void SpectrumWiring::ConnectTracks()
{
    SpectrumPipeline *spectra = m_parts.pipeline;
    TrackDesk *tracks = m_parts.tracks;
    connect(m_parts.workspace, &Workspace::signalCameraSceneSet, tracks, &TrackDesk::ShowIn);
    connect(m_parts.preview, &LivePreview::signalPictureSizeChanged, tracks, &TrackDesk::slotPictureSize);
    connect(spectra, &SpectrumPipeline::signalTracksFound, tracks, &TrackDesk::slotTracksFound);
    connect(spectra, &SpectrumPipeline::signalMessage, this, &SpectrumWiring::signalMessage);
    connect(tracks, &TrackDesk::signalMessage, this, &SpectrumWiring::signalMessage);
    m_parts.desk->SetLiveUndoStack(tracks->UndoStack());
    spectra->SetUndoStack(tracks->UndoStack());
}

/// A calibration belongs to the columns of a picture, and goes into the files that are saved of it.
void SpectrumWiring::ConnectPicture()
{
    m_parts.mainPicture->SetCalibrationSource([useArea = m_parts.useArea, settings = m_parts.settings] {
        // Who does not work with spectra has no use for what is left of a calibration.
        return useArea->IsSpectrumPagePresent() ? settings->ImageCalibration() : QVector<MetadataEntry>();
    });
    connect(m_parts.mainPicture, &OpenedPicture::signalColumnsChanged, m_parts.settings,
            [picture = m_parts.mainPicture, settings = m_parts.settings] { settings->SetImage(SpectralPictureOf(picture->Shown())); });
}

void SpectrumWiring::ConnectCamera()
{
    const CameraLink *link = m_parts.link;
    m_parts.pipeline->SetStandingFrame([this] { return StandingFrame(); });
    connect(m_parts.orientation, &LiveOrientation::signalOrientationChanged, m_parts.pipeline, &SpectrumPipeline::MakeStandingAgain);
    connect(m_parts.preview, &QThread::started, this, &SpectrumWiring::slotUpdateLive);
    connect(m_parts.preview, &QThread::finished, this, &SpectrumWiring::slotUpdateLive);
    connect(link, &CameraLink::signalStateChanged, this, &SpectrumWiring::slotUpdateLive);
    connect(link, &CameraLink::signalControlsChanged, this, &SpectrumWiring::slotUpdateExposure);
    connect(link, &CameraLink::signalStateChanged, this, &SpectrumWiring::slotUpdateExposure);
}

/// A picture that waits for a lost camera is turned when that is back: so is its spectrum.
CameraFrame SpectrumWiring::StandingFrame() const
{
    const bool isTurnedLater = m_parts.preview->isRunning() && m_parts.preview->ShownOrientation() != m_parts.orientation->Get();
    return isTurnedLater ? CameraFrame() : m_parts.preview->ShownFrame();
}

void SpectrumWiring::slotDisplayModeChanged()
{
    if (m_parts.centre->Mode() != DisplayMode::General)
        m_parts.useArea->slotSetSpectrum(true); // its pages belong to that use
    slotUpdateProfilesWanted();
    slotShowCurvesAgain();
}

/// An opened file keeps its ranges: the live page ranges anew when it is shown again.
void SpectrumWiring::slotShowWholeNextCurve()
{
    if (!m_parts.settings->IsImageShown())
        m_parts.settings->UpdateDisplayModeProperty();
}

void SpectrumWiring::slotViewSwitched()
{
    const int view = m_parts.config->GetCurrentView();
    const bool isImage = view == ImageView || view == ImageCompareView;
    m_parts.settings->slotSetImageShown(isImage);
    m_parts.pipeline->SetPlotsSeen(!isImage);
    slotShowCurvesAgain();
}

void SpectrumWiring::slotShowCurvesAgain()
{
    if (!m_parts.settings->IsImageShown()) { // else its pages are hidden
        m_parts.preview->slotShowAgain();
        m_parts.pipeline->ShowAgain();
    }
    // The 3D page is built when it is shown for the first time, which may be later than this.
    QMetaObject::invokeMethod(this, &SpectrumWiring::TellOfNoTracks, Qt::QueuedConnection);
}

void SpectrumWiring::TellOfNoTracks()
{
    const SpectrumSettings *settings = m_parts.settings;
    if (m_parts.centre->Mode() == DisplayMode::Tracks3D && (!settings->Recipe().hasTracks || settings->IsImageShown()))
        m_parts.pipeline->AnnounceNoTracks();
}

void SpectrumWiring::slotShowWholeCurve()
{
    slotShowCurvesAgain();
    m_parts.mainPicture->slotShowCurvesAgain();
}

/// The curve's page shows a profile of the picture only while there is neither a binned spectrum nor a track.
void SpectrumWiring::slotUpdateProfilesWanted()
{
    const DisplayMode mode = m_parts.centre->Mode();
    const SpectrumRecipe &recipe = m_parts.settings->Recipe();
    const bool isCurve = mode == DisplayMode::Plot || mode == DisplayMode::PlotPeak;
    const bool isWanted = mode == DisplayMode::Physics || (isCurve && !recipe.isBinning && !recipe.hasTracks);
    const bool isNew = isWanted && !m_parts.profiles->IsWanted();
    m_parts.profiles->SetWanted(isWanted);
    if (!isNew)
        return;
    // After what was shown until now is gone from the page.
    QMetaObject::invokeMethod(this, &SpectrumWiring::slotShowWholeNextCurve, Qt::QueuedConnection);
    QMetaObject::invokeMethod(this, &SpectrumWiring::slotShowCurvesAgain, Qt::QueuedConnection);
}

void SpectrumWiring::slotUpdateLive()
{
    m_parts.pipeline->SetLive(m_parts.preview->isRunning() && m_parts.link->GetState() == CameraLink::State::Open);
}

/// What the picture shows is known before its size: a calibration is not judged by pixels of before.
void SpectrumWiring::slotPictureSizeChanged(QSize size)
{
    slotPictureDelivered();
    m_parts.settings->slotSetFrameSize(size);
    m_parts.pipeline->ShowAgain(); // the plots read lines as long as the picture is wide
}

/// A camera that is gone, or was told of another region while it stood, leaves its last picture.
void SpectrumWiring::slotPictureDelivered()
{
    const CameraFrame &frame = m_parts.preview->ShownFrame();
    if (frame.IsNull() || m_parts.pipeline->Shown().HasSpectrum())
        return;
    m_parts.settings->SetSensorFrame({frame.origin.region, frame.origin.binning, m_parts.orientation->Get()});
    m_parts.settings->SetCamera(frame.origin.camera);
}

void SpectrumWiring::slotMeaningChanged()
{
    m_parts.settings->SetSensorFrame(m_parts.pipeline->Shown().sensor);
    m_parts.settings->SetCamera(m_parts.pipeline->Shown().camera);
}

void SpectrumWiring::slotUpdateExposure()
{
    const CameraSession *camera = m_parts.link->Session();
    // An automatic one is another for each frame, and they don't tell it.
    const bool isKnown = camera && !camera->Controls().isAutoExposure;
    m_parts.pipeline->SetExposure(isKnown ? camera->Controls().exposureUs : 0);
}
