// SPDX-License-Identifier: GPL-3.0-or-later
#include "pixelinfomanager.h"

#include "installedservice.h"

namespace {
InstalledService<PixelInfoManager> installed("PixelInfoManager");
}

PixelInfoManager::PixelInfoManager(QObject *parent)
    : QObject(parent)
{
    installed.Install(this);
}

PixelInfoManager::~PixelInfoManager()
{
    installed.Remove();
}

PixelInfoManager *PixelInfoManager::GetInstance()
{
    return installed.Required();
}
