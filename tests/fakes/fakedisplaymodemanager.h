// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "displaymodemanager.h"

class FakeDisplayModeManager : public DisplayModeManager
{
public:

};
