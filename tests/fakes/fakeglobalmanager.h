// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "globalmanager.h"

class FakeGlobalManager : public GlobalManager
{
public:
    ReportManager *reportManager = nullptr;
    ReportManager *cameraReportManager = nullptr;
    ImageManager *activeImageManager = nullptr;
    ImageManager *mainImageManager = nullptr;
    ImageManager *compareImageManager = nullptr;
    CameraManager *cameraManager = nullptr;
    CameraList *cameraList = nullptr;
    bool cameraView = false;
    bool imageEnabled = false;
    bool measureEnabled = false;
    bool drawViewCanMove = true;

    ReportManager *GetReportManager() const override { return reportManager; }
    ReportManager *GetCameraReportManager() const override { return cameraReportManager; }
    ImageManager *GetActiveImageManager() const override { return activeImageManager; }
    ImageManager *GetMainImageManager() const override { return mainImageManager; }
    ImageManager *GetCompareImageManager() const override { return compareImageManager; }
    CameraManager *GetCameraManager() const override { return cameraManager; }
    CameraList *GetCameraList() const override { return cameraList; }
    bool IsCameraView() const override { return cameraView; }
    bool IsImageEnabled() const override { return imageEnabled; }
    bool IsMeasureEnabled() const override { return measureEnabled; }
    bool IsDrawViewCanMove() const override { return drawViewCanMove; }
    void MousePressEvent(QMouseEvent *, const QPointF &scenePos) override
    {
        CallLog::Add("GlobalManager::MousePressEvent", {Text(scenePos)});
    }
    void QuitCompare() override { CallLog::Add("GlobalManager::QuitCompare", {}); }
    void UpdateReportManager() override { CallLog::Add("GlobalManager::UpdateReportManager", {}); }
    void SetCameraGraphicsScene(QGraphicsScene *) override
    {
        CallLog::Add("GlobalManager::SetCameraGraphicsScene", {});
    }
    void SetImageGraphicsScene(QGraphicsScene *) override
    {
        CallLog::Add("GlobalManager::SetImageGraphicsScene", {});
    }
    void SetImageGraphicsSceneEx(QGraphicsScene *) override
    {
        CallLog::Add("GlobalManager::SetImageGraphicsSceneEx", {});
    }
    void slotSetCompareView() override { CallLog::Add("GlobalManager::slotSetCompareView", {}); }
    void slotRename(QObject *, QString fileName) override
    {
        CallLog::Add("GlobalManager::slotRename", {fileName});
    }
    void slotCloseAllImage() override { CallLog::Add("GlobalManager::slotCloseAllImage", {}); }
    void slotCloseImage(QObject *) override { CallLog::Add("GlobalManager::slotCloseImage", {}); }
    void slotSetImageChecked(QObject *, bool checked) override
    {
        CallLog::Add("GlobalManager::slotSetImageChecked", {Text(checked)});
    }
    void slotSetAllImageChecked(bool checked) override
    {
        CallLog::Add("GlobalManager::slotSetAllImageChecked", {Text(checked)});
    }
    void slotSaveCompare() override { CallLog::Add("GlobalManager::slotSaveCompare", {}); }
    void slotOpenImage(QString fileName, QObject *) override
    {
        CallLog::Add("GlobalManager::slotOpenImage", {fileName});
    }
    void slotSetGraphicsScene(QGraphicsScene *) override
    {
        CallLog::Add("GlobalManager::slotSetGraphicsScene", {});
    }
};
