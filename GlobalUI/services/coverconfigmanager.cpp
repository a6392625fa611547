// SPDX-License-Identifier: GPL-3.0-or-later
#include "coverconfigmanager.h"

#include "installedservice.h"

namespace {
InstalledService<CoverConfigManager> installed("CoverConfigManager");
}

CoverConfigManager::CoverConfigManager(QObject *parent)
    : QObject(parent)
{
    installed.Install(this);
}

CoverConfigManager::~CoverConfigManager()
{
    installed.Remove();
}

CoverConfigManager *CoverConfigManager::GetInstance()
{
    return installed.Required();
}
