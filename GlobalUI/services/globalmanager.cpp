// SPDX-License-Identifier: GPL-3.0-or-later
#include "globalmanager.h"

#include "installedservice.h"

namespace {
InstalledService<GlobalManager> installed("GlobalManager");
}

GlobalManager::GlobalManager(QObject *parent)
    : QObject(parent)
{
    installed.Install(this);
}

GlobalManager::~GlobalManager()
{
    installed.Remove();
}

GlobalManager *GlobalManager::GetInstance()
{
    return installed.Required();
}
