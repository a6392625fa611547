// SPDX-License-Identifier: GPL-3.0-or-later
#include "rangehistory.h"

void RangeHistory::StepBack()
{
    if (!IsAtFirst())
        m_ranges.pop_back();
}
