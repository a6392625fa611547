// SPDX-License-Identifier: GPL-3.0-or-later
#include "cameranamemanager.h"

#include "installedservice.h"

namespace {
InstalledService<CameraNameManager> installed("CameraNameManager");
}

CameraNameManager::CameraNameManager(QObject *parent)
    : QObject(parent)
{
    installed.Install(this);
}

CameraNameManager::~CameraNameManager()
{
    installed.Remove();
}

CameraNameManager *CameraNameManager::GetInstance()
{
    return installed.Required();
}
