// SPDX-License-Identifier: GPL-3.0-or-later
#include "roimanager.h"

#include "installedservice.h"

namespace {
InstalledService<ROIManager> installed("ROIManager");
}

ROIManager::ROIManager(QObject *parent)
    : QObject(parent)
{
    installed.Install(this);
}

ROIManager::~ROIManager()
{
    installed.Remove();
}

ROIManager *ROIManager::GetInstance()
{
    return installed.Required();
}
