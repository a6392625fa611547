// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "comparesaver.h"

class FakeCompareSaver : public CompareSaver
{
public:

};
