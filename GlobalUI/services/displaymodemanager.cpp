// SPDX-License-Identifier: GPL-3.0-or-later
#include "displaymodemanager.h"

DisplayModeManager::DisplayModeManager(QObject *parent)
    : QObject(parent)
{
}

DisplayModeManager::~DisplayModeManager() = default;
