// SPDX-License-Identifier: GPL-3.0-or-later
#include "filesavemanager.h"

#include "installedservice.h"

namespace {
InstalledService<FileSaveManager> installed("FileSaveManager");
}

FileSaveManager::FileSaveManager(QObject *parent)
    : QObject(parent)
{
    installed.Install(this);
}

FileSaveManager::~FileSaveManager()
{
    installed.Remove();
}

FileSaveManager *FileSaveManager::GetInstance()
{
    return installed.Required();
}
