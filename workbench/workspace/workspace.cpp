// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspace.h"

#include "cameramainmanager.h"
#include "imagemanager.h"
#include "joinedimages.h"
#include "measuremanager.h"
#include "openedpicture.h"
#include "picturedesk.h"
#include "picturedocument.h"
#include "pictureshelf.h"
#include "previewmanager.h"
#include "rawcameraframe.h"
#include "viewrules.h"
#include "workspaceconfig.h"

namespace {

/// A mark in the picture has the mouse: an edge of a band, a measurement's handle.
bool IsItemDragged(const QGraphicsScene *scene) { return scene && scene->mouseGrabberItem(); }

/// The live picture as it is on the screen; null before the first.
QImage ImageOf(const RawCameraFrame *frame)
{
    if (!frame)
        return QImage();
    const QImage::Format format = frame->channels == 3 ? QImage::Format_RGB888 : QImage::Format_Grayscale8;
    const QImage image(frame->buffer + frame->headerLength, frame->width, frame->height,
                       frame->width * frame->channels, format);
    return image.copy();
}

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
    SetActiveImage(m_parts.mainPicture);
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
    emit signalCameraSceneSet(scene);
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
    const ViewCode view = m_parts.config->WorkedView();
    if (view == CameraView && !m_parts.desk->ChooseForLiveCompare())
        return;
    if (view == ImageView && !m_parts.desk->ChooseForCompare())
        return;
    m_parts.config->SetCompareView();
}

void Workspace::slotRename(QObject *image, QString fileName)
{
    if (PictureDocument *document = m_parts.desk->Shelf()->Find(image))
        m_parts.desk->Rename(document, fileName);
}

void Workspace::slotCloseAllImage()
{
    m_parts.desk->RequestCloseAll();
}

void Workspace::slotCloseImage(QObject *image)
{
    if (PictureDocument *document = m_parts.desk->Shelf()->Find(image))
        m_parts.desk->RequestClose(document);
}

void Workspace::slotSetImageChecked(QObject *image, bool checked)
{
    if (PictureDocument *document = m_parts.desk->Shelf()->Find(image))
        document->SetChecked(checked);
}

void Workspace::slotSetAllImageChecked(bool checked)
{
    for (PictureDocument *document : m_parts.desk->Shelf()->Documents())
        document->SetChecked(checked);
}

void Workspace::slotSaveCompare()
{
    const QImage mainImage = m_parts.desk->MainPicture()->Shown().image;
    QImage joined;
    if (m_parts.config->GetCurrentView() == CameraCompareView)
        joined = JoinedImages(ImageOf(PreviewManager::GetInstance()->GetCurrentRawFrame()), mainImage);
    else if (m_parts.config->GetCurrentView() == ImageCompareView)
        joined = JoinedImages(mainImage, m_parts.desk->ComparePicture()->Shown().image);
    if (joined.isNull())
        emit signalMessage(tr("There is no comparison to be saved: choose View > Compare first."));
    else
        emit signalSaveComparisonWanted(joined);
}

void Workspace::slotOpenImage(QString fileName, QObject *image)
{
    if (PictureDocument *document = m_parts.desk->Shelf()->Find(image))
        m_parts.desk->Show(document, PlaceForPictures());
    else
        m_parts.desk->Open({fileName}, PlaceForPictures());
}

void Workspace::CompareFiles(const QString &one, const QString &other)
{
    m_parts.desk->ChooseForCompare(one, other);
    m_parts.config->SetImageView();
    m_parts.config->SetCompareView();
}

OpenedPicture *Workspace::PlaceForPictures() const
{
    const bool isSecond = m_parts.config->GetCurrentView() == ImageCompareView
                          && m_activeImage == m_parts.comparePicture;
    return isSecond ? m_parts.desk->ComparePicture() : m_parts.desk->MainPicture();
}

void Workspace::slotPictureOpened()
{
    const int view = m_parts.config->GetCurrentView();
    if (view == CameraView || view == FileView)
        m_parts.config->SetImageView();
    else
        m_parts.config->UpdateAllControlUI();
}

void Workspace::slotLastPictureClosed()
{
    if (ViewRules::IsComparison(ViewCode(m_parts.config->GetCurrentView())))
        m_parts.config->SetCompareView();
    slotLeaveEmptyPage();
}

void Workspace::slotCompareLost()
{
    if (m_parts.config->GetCurrentView() == ImageCompareView)
        m_parts.config->SetCompareView();
}

void Workspace::slotLeaveEmptyPage()
{
    if (m_parts.config->GetCurrentView() == ImageView && !m_parts.desk->MainPicture()->WantedDocument())
        m_parts.config->SetCameraView();
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
    SetActiveImage(image);
    if (isNew && m_parts.config->GetCurrentView() == ImageCompareView)
        emit signalUpdateImageCompareFrame();
    emit m_parts.config->signalImageInfoChanged();
}

void Workspace::SetActiveImage(ImageManager *image)
{
    if (m_activeImage == image)
        return;
    m_activeImage = image;
    emit signalActiveImageChanged(image);
}
