// SPDX-License-Identifier: GPL-3.0-or-later
#include "cameramanager.h"

CameraManager::CameraManager(QObject *parent)
    : QObject(parent)
{
}

CameraManager::~CameraManager() = default;
