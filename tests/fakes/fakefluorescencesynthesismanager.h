// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "fluorescencesynthesismanager.h"

class FakeFluorescenceSynthesisManager : public FluorescenceSynthesisManager
{
public:

};
