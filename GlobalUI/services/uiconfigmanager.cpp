// SPDX-License-Identifier: GPL-3.0-or-later
#include "uiconfigmanager.h"

#include "installedservice.h"

namespace {
InstalledService<UIConfigManager> installed("UIConfigManager");
}

UIConfigManager::UIConfigManager(QObject *parent)
    : QObject(parent)
{
    installed.Install(this);
}

UIConfigManager::~UIConfigManager()
{
    installed.Remove();
}

UIConfigManager *UIConfigManager::GetInstance()
{
    return installed.Required();
}
