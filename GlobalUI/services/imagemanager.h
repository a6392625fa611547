// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"
#include "reportmanager.h"

#include <QColor>
#include <QImage>
#include <QPointF>
#include <QRectF>
#include <QVector>

class AdvancedProcessManager;
class FluorescenceSynthesisManager;
class ImageCore;

/// An open image file and what is done to it; also the report manager of its view. As information
/// source of a compare half it announces name and size. GlobalManager owns the objects.
class GLOBALUI_SERVICES_EXPORT ImageManager : public ReportManager
{
    Q_OBJECT

public:
    ~ImageManager() override;

    static AdvancedProcessManager *GetAdvancedProcessManager();
    static FluorescenceSynthesisManager *GetFluorescenceSynthesisManager();

    virtual QString GetFileInfo() const = 0;
    /// Width, "x" and height of the picture.
    virtual QString GetImageSizeString() const = 0;
    virtual QString GetPixelString() const = 0;
    /// The calibrated area of a spectrum image; null or empty without one.
    virtual QString GetExpansionArea() const = 0;

    /// Nothing is open.
    virtual bool IsNonImage() const = 0;
    /// The open file is a sensor (spectrum) image.
    virtual bool IsSenImage() const = 0;
    /// The open file has 32-bit pixels.
    virtual bool Is32BitMat() const = 0;
    /// Rotation of the picture shown, degrees.
    virtual int GetRotateDegree() const = 0;
    virtual ImageCore *GetImageCore() const = 0;

    /// Shows frame n (from 0) of the open file.
    virtual void SetImage(int index) = 0;
    virtual void DrawImage() = 0;
    virtual void CloseImage() = 0;
    /// Chooses the processing mode; 0 ends it.
    virtual void SetProcessType(int type) = 0;
    virtual void SetAdjustApply(int type) = 0;
    /// Connects the frame signals to a view: a draw view, or (`spectrum`) a spectrum image view.
    virtual void ConnectWidthDrawView(QObject *view, bool spectrum) = 0;
    /// Recomputes the intensity curves at a picked point (picture pixels) and a region (fractions:
    /// left, top, right, bottom).
    virtual void GetIntensityCurveHistogramData(QPointF scenePos, QRectF region, int type) = 0;

public slots:
    /// `type` is a RotateType.
    virtual void slotRotateImage(int type) = 0;
    virtual void slotSaveImageAs() = 0;
    virtual void slotImageCrop() = 0;
    virtual void slotImageInfo() = 0;
    /// The region drawn so far, and the one to cut out with `apply`; an empty one ends the cropping.
    virtual void slotCrop(int x, int y, int width, int height, bool apply) = 0;
    virtual void slotNewImageCopy(void *image) = 0;
    virtual void slotMouseMoveEvent(QMouseEvent *event) = 0;
    virtual void slotMousePressEvent(QMouseEvent *event, QPointF scenePos) = 0;
    virtual void slotMouseReleaseEvent(QMouseEvent *event) = 0;
    virtual void slotMouseDoubleClickEvent(QMouseEvent *event) = 0;

signals:
    void sglAddThumbnail(QImage thumbnail);
    void signalSetCropState(int state, bool visible);
    void signalUpdateFileName(QString fileName);
    /// A file was opened that has this many frames.
    void signalCurrentFileFrameNumber(int count);
    /// The frame shown is this one (from 0) without having been asked for, which SetImage() does.
    void signalCurrentFrame(int index);
    void signalUpdateFileNameAndSize(QString text);
    void signalResetImageInfo();
    void signalResetImageSize();
    /// Intensity curves: `data` points to `size` samples, valid during the call, of which `count`
    /// from `offset` on are shown.
    void sglUpdateHorizontalCurve(int *data, int size, int offset, int count);
    void sglUpdateVerticalCurve(int *data, int size, int offset, int count);
    void signalUpdateLevel(int leftLevel, int rightLevel);
    void signalUpdatePseudoColor(const QVector<QColor> colors);
    void signalOpenSpefile();

protected:
    explicit ImageManager(QObject *parent = nullptr);
};
