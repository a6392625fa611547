// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "autocountmanager.h"

class FakeAutoCountManager : public AutoCountManager
{
public:
    bool counting = false;

    bool IsCounting() const override { return counting; }
};
