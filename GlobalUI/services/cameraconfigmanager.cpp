// SPDX-License-Identifier: GPL-3.0-or-later
#include "cameraconfigmanager.h"

#include "installedservice.h"

namespace {
InstalledService<CameraConfigManager> installed("CameraConfigManager");
}

CameraConfigManager::CameraConfigManager(QObject *parent)
    : QObject(parent)
{
    installed.Install(this);
}

CameraConfigManager::~CameraConfigManager()
{
    installed.Remove();
}

CameraConfigManager *CameraConfigManager::GetInstance()
{
    return installed.Required();
}
