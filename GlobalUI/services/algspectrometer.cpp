// SPDX-License-Identifier: GPL-3.0-or-later
#include "algspectrometer.h"

#include "installedservice.h"

namespace {
InstalledService<AlgSpectrometer> installed("AlgSpectrometer");
}

AlgSpectrometer::AlgSpectrometer(QObject *parent)
    : QObject(parent)
{
    installed.Install(this);
}

AlgSpectrometer::~AlgSpectrometer()
{
    installed.Remove();
}

AlgSpectrometer *AlgSpectrometer::GetInstance()
{
    return installed.Required();
}
