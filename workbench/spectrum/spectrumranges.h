// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "displaymodemanager.h"

/// Announces the value ranges of the spectrum rulers; SpectrumSettings says when. GUI thread.
class SpectrumRanges : public DisplayModeManager
{
    Q_OBJECT

public:
    explicit SpectrumRanges(QObject *parent = nullptr);
};
