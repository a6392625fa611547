// SPDX-License-Identifier: GPL-3.0-or-later
#include "cameralist.h"

CameraList::CameraList(QObject *parent)
    : QObject(parent)
{
}

CameraList::~CameraList() = default;
