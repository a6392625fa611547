// SPDX-License-Identifier: GPL-3.0-or-later
#include "cameramenu.h"

#include "cameralink.h"
#include "camerasession.h"
#include "connectedcameras.h"
#include "informationdialog.h"
#include "recordingguard.h"
#include "regionofinterest.h"
#include "workbenchservices.h"
#include "workspaceconfig.h"

#include <QActionGroup>

namespace {

/// Later: the action that is running now may be one of them.
void RemoveActions(QActionGroup *group, QMenu *menu)
{
    for (QAction *action : group->actions()) {
        group->removeAction(action);
        menu->removeAction(action);
        action->deleteLater();
    }
}

} // namespace

CameraMenu::CameraMenu(WorkbenchServices *services, RecordingGuard *guard, QWidget *parent)
    : QMenu(tr("&Camera"), parent)
    , m_services(services)
    , m_guard(guard)
    , m_cameraGroup(new QActionGroup(this))
    , m_layoutGroup(new QActionGroup(this))
    , m_binningGroup(new QActionGroup(this))
{
    AddCameraActions();
    addSeparator();
    AddFormatActions();
    addSeparator();
    addAction(tr("Camera &Information…"), this, SLOT(slotShowInformation()));

    connect(m_cameraGroup, SIGNAL(triggered(QAction *)), this, SLOT(slotOpenCamera(QAction *)));
    connect(m_layoutGroup, SIGNAL(triggered(QAction *)), this, SLOT(slotSetPixelLayout(QAction *)));
    connect(m_binningGroup, SIGNAL(triggered(QAction *)), this, SLOT(slotSetBinning(QAction *)));
    connect(&m_discovery, SIGNAL(signalCamerasFound(QVector<CameraInfo>)), this,
            SLOT(slotCamerasFound(QVector<CameraInfo>)));
    connect(services->Link(), SIGNAL(signalStateChanged()), this, SLOT(slotFirstSearch()));
    connect(services->Cameras(), SIGNAL(signalUpdateCameraList()), this, SLOT(slotUpdateCameras()));
    connect(services->Link(), SIGNAL(signalFormatChanged()), this, SLOT(slotUpdateActions()));
    connect(services->Region(), SIGNAL(signalCheckedChanged(bool)), m_selectRegion, SLOT(setChecked(bool)));
    slotUpdateCameras();
}

void CameraMenu::AddCameraActions()
{
    m_endOfCameras = addSeparator();
    m_refresh = addAction(tr("&Refresh List"), this, SLOT(slotRefresh()));
    m_reconnect = addAction(tr("Re&connect"));
    connect(m_reconnect, &QAction::triggered, m_services->Link(), &CameraLink::Reconnect);
    m_close = addAction(tr("C&lose Camera"));
    connect(m_close, SIGNAL(triggered()), this, SLOT(slotCloseCamera()));
}

void CameraMenu::AddFormatActions()
{
    m_controls = addAction(tr("&Exposure and Gain…"), this, SLOT(slotShowControls()), QKeySequence("Ctrl+Shift+E"));
    m_layouts = addMenu(tr("&Pixel Format"));
    m_binnings = addMenu(tr("&Binning"));
    m_selectRegion = addAction(tr("&Select Region"), this, SLOT(slotSelectRegion(bool)));
    m_selectRegion->setCheckable(true);
    m_fullSensor = addAction(tr("F&ull Sensor"), this, SLOT(slotFullSensor()));
}

/// A search keeps every camera from being opened for a second, so the first camera goes first.
void CameraMenu::slotFirstSearch()
{
    if (m_services->Link()->GetState() == CameraLink::State::Opening)
        return;
    disconnect(m_services->Link(), SIGNAL(signalStateChanged()), this, SLOT(slotFirstSearch()));
    slotRefresh();
}

void CameraMenu::slotRefresh()
{
    // A camera that is being opened would have to wait for the search.
    if (m_services->Link()->GetState() == CameraLink::State::Opening)
        return;
    m_discovery.Start();
    m_refresh->setEnabled(false);
}

void CameraMenu::slotCamerasFound(const QVector<CameraInfo> &cameras)
{
    m_refresh->setEnabled(true);
    m_services->Cameras()->SetCameras(cameras);
}

void CameraMenu::slotUpdateCameras()
{
    RemoveActions(m_cameraGroup, this);
    const CameraLink *link = m_services->Link();
    for (const CameraInfo &camera : m_services->Cameras()->Cameras()) {
        auto *action = new QAction(ConnectedCameras::Caption(camera), m_cameraGroup);
        action->setData(camera.id);
        action->setCheckable(true);
        action->setChecked(link->GetState() != CameraLink::State::NoCamera && link->Info().id == camera.id);
        insertAction(m_endOfCameras, action);
    }
    slotUpdateActions();
}

void CameraMenu::slotUpdateActions()
{
    const CameraLink::State state = m_services->Link()->GetState();
    const bool isOpen = state == CameraLink::State::Open;
    m_reconnect->setEnabled(state == CameraLink::State::Lost);
    m_close->setEnabled(state != CameraLink::State::NoCamera);
    m_controls->setEnabled(isOpen);
    m_layouts->setEnabled(isOpen);
    m_selectRegion->setEnabled(isOpen);
    m_fullSensor->setEnabled(isOpen);
    m_binnings->setEnabled(isOpen && m_services->Link()->Session()->Format().binnings.size() > 1);
    if (!isOpen)
        return;
    UpdateLayouts();
    UpdateBinnings();
}

void CameraMenu::UpdateLayouts()
{
    RemoveActions(m_layoutGroup, m_layouts);
    const FormatValues &format = m_services->Link()->Session()->Format();
    for (const PixelLayout layout : format.layouts) {
        auto *action = new QAction(PixelLayoutName(layout), m_layoutGroup);
        action->setData(int(layout));
        action->setCheckable(true);
        action->setChecked(layout == format.layout);
        m_layouts->addAction(action);
    }
}

void CameraMenu::UpdateBinnings()
{
    RemoveActions(m_binningGroup, m_binnings);
    const FormatValues &format = m_services->Link()->Session()->Format();
    for (const int binning : format.binnings) {
        auto *action = new QAction(tr("%1 x %1").arg(binning), m_binningGroup);
        action->setData(binning);
        action->setCheckable(true);
        action->setChecked(binning == format.binning);
        m_binnings->addAction(action);
    }
}

void CameraMenu::slotSetBinning(QAction *action)
{
    m_services->Link()->SetBinning(action->data().toInt());
}

void CameraMenu::slotOpenCamera(QAction *action)
{
    slotOpen(action->data().toString());
}

void CameraMenu::slotOpen(QString id)
{
    CameraLink *link = m_services->Link();
    m_guard->Do(tr("Another camera ends it."), [link, id] { link->Open(id); });
    m_services->Cameras()->SetCameras(m_services->Cameras()->Cameras()); // the choice may not have been carried out
}

void CameraMenu::slotCloseCamera()
{
    CameraLink *link = m_services->Link();
    m_guard->Do(tr("Closing the camera ends it."), [link] { link->Close(); });
}

void CameraMenu::slotSetPixelLayout(QAction *action)
{
    m_services->Link()->SetPixelLayout(PixelLayout(action->data().toInt()));
}

void CameraMenu::slotSelectRegion(bool checked)
{
    m_services->Region()->SetManualROIChecked(checked);
}

void CameraMenu::slotFullSensor()
{
    CameraLink *link = m_services->Link();
    link->SetRegion(QRect(QPoint(0, 0), link->Session()->Format().limits.sensorSize));
}

void CameraMenu::slotShowControls()
{
    m_services->Config()->ShowCameraPanel(CameraPanel::Camera);
}

void CameraMenu::slotShowInformation()
{
    InformationDialog::ShowCamera(parentWidget());
}
