// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "measureconfigmanager.h"

class FakeMeasureConfigManager : public MeasureConfigManager
{
public:

};
