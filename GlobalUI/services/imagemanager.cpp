// SPDX-License-Identifier: GPL-3.0-or-later
#include "imagemanager.h"

#include "advancedprocessmanager.h"
#include "fluorescencesynthesismanager.h"

ImageManager::ImageManager(QObject *parent)
    : ReportManager(parent)
{
}

ImageManager::~ImageManager() = default;

AdvancedProcessManager *ImageManager::GetAdvancedProcessManager()
{
    return AdvancedProcessManager::GetInstance();
}

FluorescenceSynthesisManager *ImageManager::GetFluorescenceSynthesisManager()
{
    return FluorescenceSynthesisManager::GetInstance();
}
