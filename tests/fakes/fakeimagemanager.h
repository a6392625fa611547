// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "imagemanager.h"

class FakeImageManager : public ImageManager
{
public:
    MeasureManager *measureManager = nullptr;
    QSize imageSize;
    QString fileName;
    QString fileInfo;
    QString imageSizeString;
    QString pixelString;
    QString expansionArea;
    bool nonImage = true;
    bool senImage = false;
    bool is32BitMat = false;
    int rotateDegree = 0;
    ImageCore *imageCore = nullptr;

    void ClearAll() override { CallLog::Add("ImageManager::ClearAll", {}); }
    void LineProfileMouseMoveEvent(QMouseEvent *) override
    {
        CallLog::Add("ImageManager::LineProfileMouseMoveEvent", {});
    }
    MeasureManager *GetMeasureManager() const override { return measureManager; }
    void slotFinishSetBrush() override { CallLog::Add("ImageManager::slotFinishSetBrush", {}); }
    QSize GetImageSize() const override { return imageSize; }
    QString GetFileName() const override { return fileName; }
    QString GetFileInfo() const override { return fileInfo; }
    QString GetImageSizeString() const override { return imageSizeString; }
    QString GetPixelString() const override { return pixelString; }
    QString GetExpansionArea() const override { return expansionArea; }
    bool IsNonImage() const override { return nonImage; }
    bool IsSenImage() const override { return senImage; }
    bool Is32BitMat() const override { return is32BitMat; }
    int GetRotateDegree() const override { return rotateDegree; }
    ImageCore *GetImageCore() const override { return imageCore; }
    void SetImage(int index) override
    {
        CallLog::Add("ImageManager::SetImage", {QString::number(index)});
    }
    void DrawImage() override { CallLog::Add("ImageManager::DrawImage", {}); }
    void CloseImage() override { CallLog::Add("ImageManager::CloseImage", {}); }
    void SetProcessType(int type) override
    {
        CallLog::Add("ImageManager::SetProcessType", {QString::number(type)});
    }
    void SetAdjustApply(int type) override
    {
        CallLog::Add("ImageManager::SetAdjustApply", {QString::number(type)});
    }
    void ConnectWidthDrawView(QObject *, bool spectrum) override
    {
        CallLog::Add("ImageManager::ConnectWidthDrawView", {Text(spectrum)});
    }
    void GetIntensityCurveHistogramData(QPointF scenePos, QRectF region, int type) override
    {
        CallLog::Add("ImageManager::GetIntensityCurveHistogramData", {Text(scenePos), Text(region), QString::number(type)});
    }
    void slotRotateImage(int type) override
    {
        CallLog::Add("ImageManager::slotRotateImage", {QString::number(type)});
    }
    void slotSaveImageAs() override { CallLog::Add("ImageManager::slotSaveImageAs", {}); }
    void slotImageCrop() override { CallLog::Add("ImageManager::slotImageCrop", {}); }
    void slotImageInfo() override { CallLog::Add("ImageManager::slotImageInfo", {}); }
    void slotCrop(int x, int y, int width, int height, bool apply) override
    {
        CallLog::Add("ImageManager::slotCrop", {QString::number(x), QString::number(y), QString::number(width), QString::number(height), Text(apply)});
    }
    void slotNewImageCopy(void *) override { CallLog::Add("ImageManager::slotNewImageCopy", {}); }
    void slotMouseMoveEvent(QMouseEvent *) override
    {
        CallLog::Add("ImageManager::slotMouseMoveEvent", {});
    }
    void slotMousePressEvent(QMouseEvent *, QPointF scenePos) override
    {
        CallLog::Add("ImageManager::slotMousePressEvent", {Text(scenePos)});
    }
    void slotMouseReleaseEvent(QMouseEvent *) override
    {
        CallLog::Add("ImageManager::slotMouseReleaseEvent", {});
    }
    void slotMouseDoubleClickEvent(QMouseEvent *) override
    {
        CallLog::Add("ImageManager::slotMouseDoubleClickEvent", {});
    }
};
