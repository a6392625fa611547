// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrummanager.h"

#include "installedservice.h"

namespace {
InstalledService<SpectrumManager> installed("SpectrumManager");
}

SpectrumManager::SpectrumManager(QObject *parent)
    : QObject(parent)
{
    installed.Install(this);
}

SpectrumManager::~SpectrumManager()
{
    installed.Remove();
}

SpectrumManager *SpectrumManager::GetInstance()
{
    return installed.Required();
}
