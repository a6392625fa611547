// SPDX-License-Identifier: GPL-3.0-or-later
#include "openedpicture.h"

#include "picturedocument.h"
#include "picturelevels.h"
#include "pixeltext.h"
#include "uiconfigmanager.h"

#include <cmath>

// What is shown, as the module asks for it.

PictureDocument *OpenedPicture::Document() const { return m_document; }

PictureDocument *OpenedPicture::WantedDocument() const { return m_wanted; }

bool OpenedPicture::IsNonImage() const { return !m_document; }

bool OpenedPicture::IsSenImage() const { return !IsNonImage() && m_shown.info.format == PictureFormat::Spe; }

bool OpenedPicture::Is32BitMat() const
{
    return !IsNonImage() && BytesPerSample(m_settledType) >= 4;
}

bool OpenedPicture::IsColour() const { return !IsNonImage() && m_shown.samples.Channels() == 3; }

QSize OpenedPicture::GetImageSize() const { return IsNonImage() ? QSize() : m_shown.samples.Size(); }

QString OpenedPicture::GetFileName() const { return IsNonImage() ? QString() : m_document->ShownName(); }

QString OpenedPicture::GetFileInfo() const
{
    return IsNonImage() ? QString() : QString("%1  %2").arg(GetFileName(), GetImageSizeString());
}

QString OpenedPicture::GetImageSizeString() const
{
    const QSize size = GetImageSize();
    return IsNonImage() ? QString() : QString("%1x%2").arg(size.width()).arg(size.height());
}

QString OpenedPicture::GetPixelString() const
{
    return PixelText(m_shown.samples,
                     QPoint(int(std::floor(m_mousePos.x())), int(std::floor(m_mousePos.y()))));
}

/// The values of the first and the last column, or row.
QString OpenedPicture::GetExpansionArea() const
{
    if (m_shown.axis.IsEmpty())
        return QString();
    return QString("%1;%2").arg(m_shown.axis.values.first(), 0, 'f', 4).arg(m_shown.axis.values.last(), 0, 'f', 4);
}

int OpenedPicture::GetRotateDegree() const { return m_shown.request.edit.GetOrientation().Degrees(); }

ImageCore *OpenedPicture::GetImageCore() const { return m_levels; }

void OpenedPicture::slotMouseAt(QPointF scenePos) { m_mousePos = scenePos; }

/// The view keeps the nearest corner of a pixel; here it is the pixel that the mouse is on.
void OpenedPicture::slotReadPixel()
{
    SetMousePosition(QPoint(int(std::floor(m_mousePos.x())), int(std::floor(m_mousePos.y()))));
    emit UIConfigManager::GetInstance()->signalImageInfoChanged();
}
