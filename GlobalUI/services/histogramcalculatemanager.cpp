// SPDX-License-Identifier: GPL-3.0-or-later
#include "histogramcalculatemanager.h"

#include "installedservice.h"

namespace {
InstalledService<HistogramCalculateManager> installed("HistogramCalculateManager");
}

HistogramCalculateManager::HistogramCalculateManager(QObject *parent)
    : QObject(parent)
{
    installed.Install(this);
}

HistogramCalculateManager::~HistogramCalculateManager()
{
    installed.Remove();
}

HistogramCalculateManager *HistogramCalculateManager::GetInstance()
{
    return installed.Required();
}
