// SPDX-License-Identifier: GPL-3.0-or-later
#include "openedpicture.h"

#include "picturelevels.h"
#include "viewmeasuring.h"

OpenedPicture::OpenedPicture(QObject *parent)
    : ImageManager(parent)
    , m_measuring(new ViewMeasuring(this))
    , m_levels(new PictureLevels(this))
{
}

void OpenedPicture::ClearAll() {}

void OpenedPicture::LineProfileMouseMoveEvent(QMouseEvent *) {}

MeasureManager *OpenedPicture::GetMeasureManager() const
{
    return m_measuring;
}

QSize OpenedPicture::GetImageSize() const
{
    return QSize();
}

QString OpenedPicture::GetFileName() const
{
    return QString();
}

QString OpenedPicture::GetFileInfo() const
{
    return QString();
}

QString OpenedPicture::GetImageSizeString() const
{
    return QString();
}

QString OpenedPicture::GetPixelString() const
{
    return QString();
}

QString OpenedPicture::GetExpansionArea() const
{
    return QString();
}

bool OpenedPicture::IsNonImage() const
{
    return true;
}

bool OpenedPicture::IsSenImage() const
{
    return false;
}

bool OpenedPicture::Is32BitMat() const
{
    return false;
}

int OpenedPicture::GetRotateDegree() const
{
    return 0;
}

ImageCore *OpenedPicture::GetImageCore() const
{
    return m_levels;
}

void OpenedPicture::SetImage(int) {}

void OpenedPicture::DrawImage() {}

void OpenedPicture::CloseImage() {}

void OpenedPicture::SetProcessType(int) {}

void OpenedPicture::SetAdjustApply(int) {}

void OpenedPicture::ConnectWidthDrawView(QObject *, bool) {}

void OpenedPicture::GetIntensityCurveHistogramData(QPointF, QRectF, int) {}

void OpenedPicture::slotFinishSetBrush() {}

void OpenedPicture::slotRotateImage(int) {}

void OpenedPicture::slotSaveImageAs() {}

void OpenedPicture::slotImageCrop() {}

void OpenedPicture::slotImageInfo() {}

void OpenedPicture::slotCrop(int, int, int, int, bool) {}

void OpenedPicture::slotNewImageCopy(void *) {}

void OpenedPicture::slotMouseMoveEvent(QMouseEvent *) {}

void OpenedPicture::slotMousePressEvent(QMouseEvent *, QPointF) {}

void OpenedPicture::slotMouseReleaseEvent(QMouseEvent *) {}

void OpenedPicture::slotMouseDoubleClickEvent(QMouseEvent *) {}
