// SPDX-License-Identifier: GPL-3.0-or-later
#include "autocountmanager.h"

#include "installedservice.h"

namespace {
InstalledService<AutoCountManager> installed("AutoCountManager");
}

AutoCountManager::AutoCountManager(QObject *parent)
    : QObject(parent)
{
    installed.Install(this);
}

AutoCountManager::~AutoCountManager()
{
    installed.Remove();
}

AutoCountManager *AutoCountManager::GetInstance()
{
    return installed.Required();
}
