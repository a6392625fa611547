// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QObject>
#include <QPointF>
#include <QString>

class CameraList;
class CameraManager;
class ImageManager;
class QGraphicsScene;
class QMouseEvent;
class ReportManager;

/// Application-wide state. Owns the report managers and image managers; callers borrow them.
class GLOBALUI_SERVICES_EXPORT GlobalManager : public QObject
{
    Q_OBJECT

public:
    static GlobalManager *GetInstance();
    ~GlobalManager() override;

    /// The report manager of the view now active.
    virtual ReportManager *GetReportManager() const = 0;
    /// The report manager of the live camera.
    virtual ReportManager *GetCameraReportManager() const = 0;
    /// The image manager that has the focus, that of the image page, and that of the second image
    /// of the compare view.
    virtual ImageManager *GetActiveImageManager() const = 0;
    virtual ImageManager *GetMainImageManager() const = 0;
    virtual ImageManager *GetCompareImageManager() const = 0;
    virtual CameraManager *GetCameraManager() const = 0;
    virtual CameraList *GetCameraList() const = 0;

    virtual bool IsCameraView() const = 0;
    /// An image is open.
    virtual bool IsImageEnabled() const = 0;
    virtual bool IsMeasureEnabled() const = 0;
    /// A left drag pans the picture; false while another tool owns the mouse.
    virtual bool IsDrawViewCanMove() const = 0;

    /// A press on the live view at `scenePos` (picture pixels).
    virtual void MousePressEvent(QMouseEvent *event, const QPointF &scenePos) = 0;
    /// Leaves the compare view.
    virtual void QuitCompare() = 0;
    /// Re-selects the active report manager.
    virtual void UpdateReportManager() = 0;

    /// The scenes of the camera view, the image view and the second image view.
    virtual void SetCameraGraphicsScene(QGraphicsScene *scene) = 0;
    virtual void SetImageGraphicsScene(QGraphicsScene *scene) = 0;
    virtual void SetImageGraphicsSceneEx(QGraphicsScene *scene) = 0;

public slots:
    virtual void slotSetCompareView() = 0;
    virtual void slotRename(QObject *image, QString fileName) = 0;
    virtual void slotCloseAllImage() = 0;
    virtual void slotCloseImage(QObject *image) = 0;
    virtual void slotSetImageChecked(QObject *image, bool checked) = 0;
    virtual void slotSetAllImageChecked(bool checked) = 0;
    virtual void slotSaveCompare() = 0;
    virtual void slotOpenImage(QString fileName, QObject *image) = 0;
    /// The view of this scene was pressed: it gets the focus.
    virtual void slotSetGraphicsScene(QGraphicsScene *scene) = 0;

signals:
    /// The active image manager changed in the image compare view.
    void signalUpdateImageCompareFrame();

protected:
    explicit GlobalManager(QObject *parent = nullptr);
};
