// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "globalmanager.h"

#include <QGraphicsScene>
#include <QImage>
#include <QPointer>

class OpenedPicture;
class PictureDesk;
class WorkspaceConfig;

/// What is being worked on: which view has the focus, and with it which report and image manager.
/// Hands out the managers; the services own them. GUI thread.
class Workspace : public GlobalManager
{
    Q_OBJECT

public:
    /// All borrowed; they outlive this object.
    struct Parts
    {
        WorkspaceConfig *config;
        ReportManager *liveReport;
        ImageManager *mainPicture;
        ImageManager *comparePicture;
        CameraManager *cameraManager;
        CameraList *cameraList;
        PictureDesk *desk = nullptr; ///< the managers of both pictures are its own
    };

    explicit Workspace(const Parts &parts, QObject *parent = nullptr);

    /// The scene the live picture is in; null before the camera page was built.
    QGraphicsScene *GetCameraScene() const { return m_cameraScene; }
    /// Shows two files side by side.
    void CompareFiles(const QString &one, const QString &other);
    /// Where a picture that is opened now is to be shown: in a comparison of two, the half that is worked on.
    OpenedPicture *PlaceForPictures() const;

    ReportManager *GetReportManager() const override;
    ReportManager *GetCameraReportManager() const override;
    ImageManager *GetActiveImageManager() const override;
    ImageManager *GetMainImageManager() const override;
    ImageManager *GetCompareImageManager() const override;
    CameraManager *GetCameraManager() const override;
    CameraList *GetCameraList() const override;

    bool IsCameraView() const override;
    bool IsImageEnabled() const override;
    bool IsMeasureEnabled() const override;
    bool IsDrawViewCanMove() const override;
    void MousePressEvent(QMouseEvent *event, const QPointF &scenePos) override;
    void QuitCompare() override;
    void UpdateReportManager() override;
    void SetCameraGraphicsScene(QGraphicsScene *scene) override;
    void SetImageGraphicsScene(QGraphicsScene *scene) override;
    void SetImageGraphicsSceneEx(QGraphicsScene *scene) override;

public slots:
    void slotSetCompareView() override;
    void slotRename(QObject *image, QString fileName) override;
    void slotCloseAllImage() override;
    void slotCloseImage(QObject *image) override;
    void slotSetImageChecked(QObject *image, bool checked) override;
    void slotSetAllImageChecked(bool checked) override;
    void slotSaveCompare() override;
    void slotOpenImage(QString fileName, QObject *image) override;
    void slotSetGraphicsScene(QGraphicsScene *scene) override;

    /// A picture was opened: shows it, unless a comparison does.
    void slotPictureOpened();
    void slotLastPictureClosed();
    /// The second picture of the comparison is gone.
    void slotCompareLost();
    /// The page of opened pictures gives way to the camera while nothing is open.
    void slotLeaveEmptyPage();

signals:
    /// The scene of the live picture.
    void signalCameraSceneSet(QGraphicsScene *scene);
    /// Both pictures of the comparison side by side; the user says where to save them.
    void signalSaveComparisonWanted(QImage image);
    /// A sentence for the status bar.
    void signalMessage(QString text);
    /// Another image manager is the active one.
    void signalActiveImageChanged(QObject *image);

private:
    void Focus(ReportManager *report, ImageManager *image);
    void SetActiveImage(ImageManager *image);

    const Parts m_parts;
    ReportManager *m_report;
    ImageManager *m_activeImage;
    // They belong to the views, and go with them.
    QPointer<QGraphicsScene> m_cameraScene;
    QPointer<QGraphicsScene> m_imageScene;
    QPointer<QGraphicsScene> m_secondImageScene;
};
