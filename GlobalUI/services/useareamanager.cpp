// SPDX-License-Identifier: GPL-3.0-or-later
#include "useareamanager.h"

#include "installedservice.h"

namespace {
InstalledService<UseAreaManager> installed("UseAreaManager");
}

UseAreaManager::UseAreaManager(QObject *parent)
    : QObject(parent)
{
    installed.Install(this);
}

UseAreaManager::~UseAreaManager()
{
    installed.Remove();
}

UseAreaManager *UseAreaManager::GetInstance()
{
    return installed.Required();
}

bool UseAreaManager::IsSpectrumPagePresent() const
{
    return GetUseAreaType() == SpectrumUseArea && !IsSpectrumHidden();
}
