// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictureprocessing.h"

PictureProcessing::PictureProcessing(QObject *parent)
    : AdvancedProcessManager(parent)
{
}

void PictureProcessing::slotMergeImages(QList<QString> fileNames)
{
    emit signalMergeWanted(fileNames);
}
