// SPDX-License-Identifier: GPL-3.0-or-later
#include "previewmanager.h"

#include "installedservice.h"

namespace {
InstalledService<PreviewManager> installed("PreviewManager");
}

PreviewManager::PreviewManager(QObject *parent)
    : QThread(parent)
{
    installed.Install(this);
}

PreviewManager::~PreviewManager()
{
    installed.Remove();
}

PreviewManager *PreviewManager::GetInstance()
{
    return installed.Required();
}
