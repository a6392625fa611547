// SPDX-License-Identifier: GPL-3.0-or-later
#include "framesavemanager.h"

#include "installedservice.h"

namespace {
InstalledService<FrameSaveManager> installed("FrameSaveManager");
}

FrameSaveManager::FrameSaveManager(QObject *parent)
    : QThread(parent)
{
    installed.Install(this);
}

FrameSaveManager::~FrameSaveManager()
{
    installed.Remove();
}

FrameSaveManager *FrameSaveManager::GetInstance()
{
    return installed.Required();
}
