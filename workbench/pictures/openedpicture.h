// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "imagemanager.h"

class PictureLevels;
class ViewMeasuring;

/// The picture of the image page, or the second one of a comparison. Files can't be opened yet, so
/// nothing ever is: texts are empty and commands have nothing to work on. Owned by the services.
/// GUI thread.
class OpenedPicture : public ImageManager
{
    Q_OBJECT

public:
    explicit OpenedPicture(QObject *parent = nullptr);

    void ClearAll() override;
    void LineProfileMouseMoveEvent(QMouseEvent *event) override;
    MeasureManager *GetMeasureManager() const override;
    QSize GetImageSize() const override;
    QString GetFileName() const override;

    QString GetFileInfo() const override;
    QString GetImageSizeString() const override;
    QString GetPixelString() const override;
    QString GetExpansionArea() const override;
    bool IsNonImage() const override;
    bool IsSenImage() const override;
    bool Is32BitMat() const override;
    int GetRotateDegree() const override;
    ImageCore *GetImageCore() const override;
    void SetImage(int index) override;
    void DrawImage() override;
    void CloseImage() override;
    void SetProcessType(int type) override;
    void SetAdjustApply(int type) override;
    void ConnectWidthDrawView(QObject *view, bool spectrum) override;
    void GetIntensityCurveHistogramData(QPointF scenePos, QRectF region, int type) override;

public slots:
    void slotFinishSetBrush() override;
    void slotRotateImage(int type) override;
    void slotSaveImageAs() override;
    void slotImageCrop() override;
    void slotImageInfo() override;
    void slotCrop(int x, int y, int width, int height, bool apply) override;
    void slotNewImageCopy(void *image) override;
    void slotMouseMoveEvent(QMouseEvent *event) override;
    void slotMousePressEvent(QMouseEvent *event, QPointF scenePos) override;
    void slotMouseReleaseEvent(QMouseEvent *event) override;
    void slotMouseDoubleClickEvent(QMouseEvent *event) override;

private:
    ViewMeasuring *m_measuring;
    PictureLevels *m_levels;
};
