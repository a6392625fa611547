// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "useareamanager.h"

class FakeUseAreaManager : public UseAreaManager
{
public:
    int useAreaType = 1;
    bool spectrumHidden = false;
    bool axisVisible = true;
    bool curveVisible = true;
    bool colorCardVisible = true;
    bool toolBarVisible = true;
    bool infoBarVisible = true;

    int GetUseAreaType() const override { return useAreaType; }
    bool IsSpectrumHidden() const override { return spectrumHidden; }
    bool IsAxisVisible() const override { return axisVisible; }
    bool IsCurveVisible() const override { return curveVisible; }
    bool IsColorCardVisible() const override { return colorCardVisible; }
    bool IsToolBarVisible() const override { return toolBarVisible; }
    bool IsInfoBarVisible() const override { return infoBarVisible; }
};
