// SPDX-License-Identifier: GPL-3.0-or-later
#include "framemanager.h"

#include "installedservice.h"

namespace {
InstalledService<FrameManager> installed("FrameManager");
}

FrameManager::FrameManager(QObject *parent)
    : QObject(parent)
{
    installed.Install(this);
}

FrameManager::~FrameManager()
{
    installed.Remove();
}

FrameManager *FrameManager::GetInstance()
{
    return installed.Required();
}
