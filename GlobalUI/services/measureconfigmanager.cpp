// SPDX-License-Identifier: GPL-3.0-or-later
#include "measureconfigmanager.h"

#include "installedservice.h"

namespace {
InstalledService<MeasureConfigManager> installed("MeasureConfigManager");
}

MeasureConfigManager::MeasureConfigManager(QObject *parent)
    : QObject(parent)
{
    installed.Install(this);
}

MeasureConfigManager::~MeasureConfigManager()
{
    installed.Remove();
}

MeasureConfigManager *MeasureConfigManager::GetInstance()
{
    return installed.Required();
}
