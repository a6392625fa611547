// SPDX-License-Identifier: GPL-3.0-or-later
#include "intensitymanager.h"

#include "installedservice.h"

namespace {
InstalledService<IntensityManager> installed("IntensityManager");
}

IntensityManager::IntensityManager(QObject *parent)
    : QObject(parent)
{
    installed.Install(this);
}

IntensityManager::~IntensityManager()
{
    installed.Remove();
}

IntensityManager *IntensityManager::GetInstance()
{
    return installed.Required();
}
