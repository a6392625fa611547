// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturerate.h"

#include "cameramainmanager.h"
#include "previewmanager.h"

PictureRate::PictureRate(QWidget *parent)
    : QLabel(parent)
{
    setObjectName("PictureRate");
    setMargin(10);
    setAlignment(Qt::AlignTop | Qt::AlignLeft);
    connect(PreviewManager::GetInstance(), &PreviewManager::signalPreviewImage, this, &PictureRate::slotPictureCame);
    connect(&m_second, &QTimer::timeout, this, &PictureRate::slotSecondPassed);
    m_second.start(1000);
}

void PictureRate::slotUpdate()
{
    if (!CameraMainManager::GetInstance())
        setText(tr("No camera is open."));
}

void PictureRate::slotPictureCame()
{
    ++m_pictures;
}

void PictureRate::slotSecondPassed()
{
    if (CameraMainManager::GetInstance())
        setText(tr("%n pictures came in the last second.", nullptr, m_pictures));
    m_pictures = 0;
}
