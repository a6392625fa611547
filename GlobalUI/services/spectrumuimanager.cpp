// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrumuimanager.h"

#include "installedservice.h"

namespace {
InstalledService<SpectrumUIManager> installed("SpectrumUIManager");
}

SpectrumUIManager::SpectrumUIManager(QObject *parent)
    : QObject(parent)
{
    installed.Install(this);
}

SpectrumUIManager::~SpectrumUIManager()
{
    installed.Remove();
}

SpectrumUIManager *SpectrumUIManager::GetInstance()
{
    return installed.Required();
}
