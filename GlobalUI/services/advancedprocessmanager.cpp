// SPDX-License-Identifier: GPL-3.0-or-later
#include "advancedprocessmanager.h"

#include "installedservice.h"

namespace {
InstalledService<AdvancedProcessManager> installed("AdvancedProcessManager");
}

AdvancedProcessManager::AdvancedProcessManager(QObject *parent)
    : QObject(parent)
{
    installed.Install(this);
}

AdvancedProcessManager::~AdvancedProcessManager()
{
    installed.Remove();
}

AdvancedProcessManager *AdvancedProcessManager::GetInstance()
{
    return installed.Required();
}
