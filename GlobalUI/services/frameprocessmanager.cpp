// SPDX-License-Identifier: GPL-3.0-or-later
#include "frameprocessmanager.h"

#include "installedservice.h"

namespace {
InstalledService<FrameProcessManager> installed("FrameProcessManager");
}

FrameProcessManager::FrameProcessManager(QObject *parent)
    : QObject(parent)
{
    installed.Install(this);
}

FrameProcessManager::~FrameProcessManager()
{
    installed.Remove();
}

FrameProcessManager *FrameProcessManager::GetInstance()
{
    return installed.Required();
}
