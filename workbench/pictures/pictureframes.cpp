// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictureframes.h"

PictureFrames::PictureFrames(QObject *parent)
    : FrameProcessManager(parent)
{
}

void PictureFrames::slotScaleFactorChanged(double) {}
