// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturelevels.h"

PictureLevels::PictureLevels(QObject *parent)
    : ImageCore(parent)
{
}

int PictureLevels::GetDepth() const
{
    return 1;
}

int PictureLevels::GetLeftLevel() const
{
    return 0;
}

int PictureLevels::GetRightLevel() const
{
    return 255;
}
