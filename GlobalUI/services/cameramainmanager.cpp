// SPDX-License-Identifier: GPL-3.0-or-later
#include "cameramainmanager.h"

#include "installedservice.h"

namespace {
InstalledService<CameraMainManager> installed("CameraMainManager");
}

CameraMainManager::CameraMainManager(QObject *parent)
    : QObject(parent)
{
    installed.Install(this);
}

CameraMainManager::~CameraMainManager()
{
    installed.Remove();
}

CameraMainManager *CameraMainManager::GetInstance()
{
    return installed.Optional();
}
