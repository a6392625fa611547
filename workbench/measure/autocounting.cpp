// SPDX-License-Identifier: GPL-3.0-or-later
#include "autocounting.h"

AutoCounting::AutoCounting(QObject *parent)
    : AutoCountManager(parent)
{
}

bool AutoCounting::IsCounting() const
{
    return false;
}
