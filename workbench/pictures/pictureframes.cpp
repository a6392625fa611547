// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictureframes.h"

#include "openedpicture.h"

PictureFrames::PictureFrames(const OpenedPicture *picture, QObject *parent)
    : FrameProcessManager(parent)
{
    connect(picture, SIGNAL(signalShowPicture(QImage)), this, SIGNAL(signalDraw(QImage)));
}

void PictureFrames::slotScaleFactorChanged(double) {}
