// SPDX-License-Identifier: GPL-3.0-or-later
#include "fluorescencesynthesismanager.h"

#include "installedservice.h"

namespace {
InstalledService<FluorescenceSynthesisManager> installed("FluorescenceSynthesisManager");
}

FluorescenceSynthesisManager::FluorescenceSynthesisManager(QObject *parent)
    : QObject(parent)
{
    installed.Install(this);
}

FluorescenceSynthesisManager::~FluorescenceSynthesisManager()
{
    installed.Remove();
}

FluorescenceSynthesisManager *FluorescenceSynthesisManager::GetInstance()
{
    return installed.Required();
}
