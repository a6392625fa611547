// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cameradiscovery.h"

#include <QMenu>

class RecordingGuard;
class WorkbenchServices;

/// The Camera menu: which camera, what it sends and what part of its sensor. Looks for cameras in
/// the background, at the start and when asked. GUI thread.
class CameraMenu : public QMenu
{
    Q_OBJECT

public:
    /// `services` and `guard` are borrowed and outlive this object.
    CameraMenu(WorkbenchServices *services, RecordingGuard *guard, QWidget *parent);

public slots:
    /// Looks for cameras; the list follows when they were found.
    void slotRefresh();
    /// Opens another camera, unless a recording is to go on.
    void slotOpen(QString id);

private slots:
    void slotFirstSearch();
    void slotCamerasFound(const QVector<CameraInfo> &cameras);
    void slotUpdateCameras();
    void slotUpdateActions();
    void slotOpenCamera(QAction *action);
    void slotCloseCamera();
    void slotSetPixelLayout(QAction *action);
    void slotSetBinning(QAction *action);
    void slotSelectRegion(bool checked);
    void slotFullSensor();
    void slotShowControls();
    void slotShowInformation();

private:
    void AddCameraActions();
    void AddFormatActions();
    void UpdateLayouts();
    void UpdateBinnings();

    WorkbenchServices *m_services;
    RecordingGuard *m_guard;
    CameraDiscovery m_discovery;
    QActionGroup *m_cameraGroup;
    QActionGroup *m_layoutGroup;
    QActionGroup *m_binningGroup;
    QAction *m_endOfCameras = nullptr;
    QAction *m_refresh = nullptr;
    QAction *m_reconnect = nullptr;
    QAction *m_close = nullptr;
    QAction *m_controls = nullptr;
    QMenu *m_layouts = nullptr;
    QMenu *m_binnings = nullptr;
    QAction *m_selectRegion = nullptr;
    QAction *m_fullSensor = nullptr;
};
