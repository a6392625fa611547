// SPDX-License-Identifier: GPL-3.0-or-later
#include "displaymodeuimanager.h"

#include "installedservice.h"

namespace {
InstalledService<DisplayModeUIManager> installed("DisplayModeUIManager");
}

DisplayModeUIManager::DisplayModeUIManager(QObject *parent)
    : QObject(parent)
{
    installed.Install(this);
}

DisplayModeUIManager::~DisplayModeUIManager()
{
    installed.Remove();
}

DisplayModeUIManager *DisplayModeUIManager::GetInstance()
{
    return installed.Required();
}
