// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cameraframe.h"

#include <QObject>

class CameraLink;
class CentreDisplay;
class FrameTee;
class LiveOrientation;
class LivePreview;
class LiveProfiles;
class OpenedPicture;
class PictureDesk;
class SpectrumPipeline;
class SpectrumSettings;
class TrackDesk;
class UseArea;
class Workspace;
class WorkspaceConfig;

/// Wires the services of the spectrum to the camera, the pictures and the pages, and decides what the pages get: a profile
/// only where nothing better is shown, and what stands still again when a page has become another. Owned by
/// WorkbenchServices, made when all of them are started and gone before any of them. GUI thread; the pipeline's own thread is reached by its calls alone.
class SpectrumWiring : public QObject
{
    Q_OBJECT

public:
    /// All are borrowed and outlive this object.
    struct Parts
    {
        CameraLink *link = nullptr;
        FrameTee *tee = nullptr;
        LivePreview *preview = nullptr;
        LiveOrientation *orientation = nullptr;
        OpenedPicture *mainPicture = nullptr;
        OpenedPicture *comparePicture = nullptr;
        PictureDesk *desk = nullptr;
        WorkspaceConfig *config = nullptr;
        Workspace *workspace = nullptr;
        UseArea *useArea = nullptr;
        CentreDisplay *centre = nullptr;
        SpectrumSettings *settings = nullptr;
        SpectrumPipeline *pipeline = nullptr;
        LiveProfiles *profiles = nullptr;
        TrackDesk *tracks = nullptr;
    };
    explicit SpectrumWiring(const Parts &parts);
    /// The pipeline gets no frame any more.
    ~SpectrumWiring() override;

public slots:
    /// With the camera stopped nothing else feeds the pages. The profile of a standing picture needs a frame to be made of.
    void slotShowCurvesAgain();

signals:
    /// A sentence for the status bar.
    void signalMessage(QString text);

private slots:
    void slotDisplayModeChanged();
    void slotViewSwitched();
    void slotUpdateExposure();
    void slotUpdateLive();
    void slotUpdateProfilesWanted();
    void slotPictureSizeChanged(QSize size);
    void slotPictureDelivered();
    void slotMeaningChanged();
    void slotShowWholeCurve();
    void slotShowWholeNextCurve();

private:
    void ConnectCentre();
    void ConnectProfiles();
    void ConnectSettings();
    void ConnectPicture();
    void ConnectCamera();
    void ConnectTracks();
    void TellOfNoTracks();
    CameraFrame StandingFrame() const;

    Parts m_parts;
};
