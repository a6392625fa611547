// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspace.h"

#include "cameramainmanager.h"
#include "imagemanager.h"
#include "measuremanager.h"
#include "viewrules.h"
#include "workspaceconfig.h"

namespace {

/// A mark in the picture has the mouse: an edge of a band, a measurement's handle.
bool IsItemDragged(const QGraphicsScene *scene) { return scene && scene->mouseGrabberItem(); }

} // namespace

Workspace::Workspace(const Parts &parts, QObject *parent)
    : GlobalManager(parent)
    , m_parts(parts)
    , m_report(parts.liveReport)
    , m_activeImage(parts.mainPicture)
{
}

ReportManager *Workspace::GetReportManager() const
{
    return m_report;
}

ReportManager *Workspace::GetCameraReportManager() const
{
    return m_parts.liveReport;
}

ImageManager *Workspace::GetActiveImageManager() const
{
    return m_activeImage;
}

ImageManager *Workspace::GetMainImageManager() const
{
    return m_parts.mainPicture;
}

ImageManager *Workspace::GetCompareImageManager() const
{
    return m_parts.comparePicture;
}

CameraManager *Workspace::GetCameraManager() const
{
    return m_parts.cameraManager;
}

CameraList *Workspace::GetCameraList() const
{
    return m_parts.cameraList;
}

bool Workspace::IsCameraView() const
{
    return ViewRules::ShowsCamera(ViewCode(m_parts.config->GetCurrentView()));
}

bool Workspace::IsImageEnabled() const
{
    return !m_activeImage->IsNonImage();
}

bool Workspace::IsMeasureEnabled() const
{
    return IsCameraView() ? CameraMainManager::GetInstance() != nullptr : IsImageEnabled();
}

bool Workspace::IsDrawViewCanMove() const
{
    return !MeasureManager::IsMeasuring() && !IsItemDragged(m_cameraScene) && !IsItemDragged(m_imageScene)
           && !IsItemDragged(m_secondImageScene);
}

void Workspace::MousePressEvent(QMouseEvent *, const QPointF &) {}

void Workspace::QuitCompare()
{
    m_activeImage = m_parts.mainPicture;
}

void Workspace::UpdateReportManager()
{
    switch (m_parts.config->GetCurrentView()) {
    case CameraView:
    case CameraCompareView:
        m_report = m_parts.liveReport;
        break;
    case ImageView:
    case ImageCompareView:
        m_report = m_activeImage;
        break;
    case FileView:
        break; // the view before it is still the one worked on
    }
}

void Workspace::SetCameraGraphicsScene(QGraphicsScene *scene)
{
    m_cameraScene = scene;
}

void Workspace::SetImageGraphicsScene(QGraphicsScene *scene)
{
    m_imageScene = scene;
}

void Workspace::SetImageGraphicsSceneEx(QGraphicsScene *scene)
{
    m_secondImageScene = scene;
}

void Workspace::slotSetCompareView()
{
    m_parts.config->SetCompareView();
}

void Workspace::slotRename(QObject *, QString) {}

void Workspace::slotCloseAllImage() {}

void Workspace::slotCloseImage(QObject *) {}

void Workspace::slotSetImageChecked(QObject *, bool) {}

void Workspace::slotSetAllImageChecked(bool) {}

void Workspace::slotSaveCompare() {}

void Workspace::slotOpenImage(QString fileName, QObject *)
{
    emit signalMessage(tr("%1 was not opened: this version shows the live picture only.").arg(fileName));
}

void Workspace::slotSetGraphicsScene(QGraphicsScene *scene)
{
    if (!scene)
        return;
    if (scene == m_cameraScene)
        Focus(m_parts.liveReport, m_activeImage);
    else if (scene == m_imageScene)
        Focus(m_parts.mainPicture, m_parts.mainPicture);
    else if (scene == m_secondImageScene)
        Focus(m_parts.comparePicture, m_parts.comparePicture);
}

void Workspace::Focus(ReportManager *report, ImageManager *image)
{
    m_report = report;
    const bool isNew = m_activeImage != image;
    m_activeImage = image;
    if (isNew && m_parts.config->GetCurrentView() == ImageCompareView)
        emit signalUpdateImageCompareFrame();
    emit m_parts.config->signalImageInfoChanged();
}
