// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QSize>
#include <QThreadPool>

#include <memory>

class ApplicationLook;
class AutoCounting;
class CalibrationModel;
class CameraCaption;
class CameraLink;
class CameraSettings;
class CentreDisplay;
class ChannelSynthesis;
class ConnectedCameras;
class FileJobs;
class FrameSaving;
class FrameTee;
class Language;
class LevelsModel;
class LiveCover;
class LiveFrameSize;
class LiveHistogram;
class LiveLevels;
class LiveOrientation;
class LivePreview;
class LiveProfiles;
class LiveReport;
class MeasureSettings;
class OpenCamera;
class OpenedPicture;
class PeakFinding;
class PictureDesk;
class PictureFrames;
class PictureList;
class PictureLoader;
class PictureProcessing;
class PictureShelf;
class PictureThumbnails;
class PixelReadout;
class QSettings;
class RecordingDesk;
class RegionOfInterest;
class SaveSettings;
class SpectrumPipeline;
class SpectrumRanges;
class SpectrumSettings;
class SpectrumWiring;
class TrackDesk;
class UseArea;
class Workspace;
class WorkspaceConfig;

/// Starts the services of the application in order, wires them to one another, and takes them down
/// again. Make it before the module and delete it after the module. GUI thread.
class WorkbenchServices : public QObject
{
    Q_OBJECT

public:
    /// `settings` and `link` are borrowed and outlive this object.
    WorkbenchServices(QSettings *settings, CameraLink *link);
    ~WorkbenchServices() override;

    ApplicationLook *Look() const { return m_look.get(); }
    Language *GetLanguage() const { return m_language.get(); }
    CameraLink *Link() const { return m_link; }
    LivePreview *Preview() const { return m_preview.get(); }
    LiveLevels *Levels() const { return m_levels.get(); }
    LiveHistogram *Histogram() const { return m_histogram.get(); }
    LiveOrientation *LivePosition() const { return m_orientation.get(); }
    WorkspaceConfig *Config() const { return m_config.get(); }
    Workspace *GetWorkspace() const { return m_workspace.get(); }
    PictureDesk *Desk() const { return m_pictureDesk.get(); }
    AutoCounting *Counting() const { return m_autoCounting.get(); }
    PictureLoader *Loader() const { return m_pictureLoader.get(); }
    PictureProcessing *Processing() const { return m_pictureProcessing.get(); }
    PictureThumbnails *Thumbnails() const { return m_pictureThumbnails.get(); }
    FileJobs *Jobs() const { return m_fileJobs.get(); }
    ConnectedCameras *Cameras() const { return m_cameras.get(); }
    RegionOfInterest *Region() const { return m_region.get(); }
    RecordingDesk *Recording() const { return m_recording.get(); }
    LiveCover *Cover() const { return m_cover.get(); }
    UseArea *GetUseArea() const { return m_useArea.get(); }
    CentreDisplay *Centre() const { return m_centreDisplay.get(); }
    SpectrumSettings *Spectrum() const { return m_spectrumSettings.get(); }
    LiveProfiles *Profiles() const { return m_profiles.get(); }
    SpectrumPipeline *Spectra() const { return m_spectrumPipeline.get(); }
    TrackDesk *Tracks() const { return m_tracks.get(); }
    CalibrationModel *Calibration() const { return m_calibration.get(); }
    const PeakFinding *Peaks() const { return m_peakFinding.get(); }

    /// Waits for the repair of recordings that were cut off, and tells it, when the event loop has ended already.
    void FinishRepair();

public slots:
    /// Shows what the workbench is used for: the picture or a spectrum page. For the first time when the pages are built.
    void slotShowUseArea();
    /// Draws the camera's curves anew, see SpectrumWiring.
    void slotShowCurvesAgain();

signals:
    /// A sentence for the status bar, from any service.
    void signalMessage(QString text);
    /// What became of a recording that a program that died had left; also a sentence for the status bar.
    void signalRepaired(QString text);

private slots:
    void slotCameraStateChanged();
    void slotFramesFailed();
    void slotPictureSizeChanged(QSize size);
    void slotRegionWanted(QRect region);
    void slotShowPalette();

private:
    void StartMeasuring();
    void StartPictures();
    void StartSpectrum();
    void StartCamera();
    void StartPreview();
    void StartRecording();
    void StartWorkspace();
    void Connect();
    void ConnectPictures();
    void ConnectPalette();
    void WireSpectrum();
    void RepairRecordings();

    QSettings *m_settings;
    CameraLink *m_link;

    std::unique_ptr<ApplicationLook> m_look;
    std::unique_ptr<Language> m_language;
    std::unique_ptr<WorkspaceConfig> m_config;
    std::unique_ptr<UseArea> m_useArea;
    std::unique_ptr<LevelsModel> m_levelsModel;
    std::unique_ptr<LiveReport> m_liveReport;
    std::unique_ptr<MeasureSettings> m_measureSettings;
    std::unique_ptr<AutoCounting> m_autoCounting;
    std::unique_ptr<PictureLoader> m_pictureLoader;
    std::unique_ptr<PictureShelf> m_pictureShelf;
    std::unique_ptr<OpenedPicture> m_mainPicture;
    std::unique_ptr<OpenedPicture> m_comparePicture;
    std::unique_ptr<PictureDesk> m_pictureDesk;
    std::unique_ptr<PictureProcessing> m_pictureProcessing;
    std::unique_ptr<PictureThumbnails> m_pictureThumbnails;
    std::unique_ptr<FileJobs> m_fileJobs;
    std::unique_ptr<ChannelSynthesis> m_channelSynthesis;
    std::unique_ptr<PictureFrames> m_pictureFrames;
    std::unique_ptr<FrameSaving> m_frameSaving;
    std::unique_ptr<SaveSettings> m_saveSettings;
    std::unique_ptr<SpectrumRanges> m_spectrumRanges;
    std::unique_ptr<CentreDisplay> m_centreDisplay;
    std::unique_ptr<SpectrumSettings> m_spectrumSettings;
    std::unique_ptr<CalibrationModel> m_calibration;
    std::unique_ptr<SpectrumPipeline> m_spectrumPipeline;
    std::unique_ptr<TrackDesk> m_tracks;
    std::unique_ptr<PeakFinding> m_peakFinding;
    std::unique_ptr<ConnectedCameras> m_cameras;
    std::unique_ptr<CameraCaption> m_cameraCaption;
    std::unique_ptr<CameraSettings> m_cameraSettings;
    std::unique_ptr<RegionOfInterest> m_region;
    std::unique_ptr<LiveOrientation> m_orientation;
    std::unique_ptr<LiveCover> m_cover;
    std::unique_ptr<LiveLevels> m_levels;
    std::unique_ptr<FrameTee> m_frameTee;
    std::unique_ptr<LivePreview> m_preview;
    std::unique_ptr<PixelReadout> m_pixelReadout;
    std::unique_ptr<LiveFrameSize> m_frameSize;
    std::unique_ptr<LiveHistogram> m_histogram;
    std::unique_ptr<LiveProfiles> m_profiles;
    std::unique_ptr<RecordingDesk> m_recording;
    std::unique_ptr<Workspace> m_workspace;
    std::unique_ptr<SpectrumWiring> m_spectrumWiring;
    /// Only while a camera is open.
    std::unique_ptr<OpenCamera> m_openCamera;
    /// The tab that shows it owns it.
    QPointer<PictureList> m_pictureList;
    QThreadPool m_repair;
};
