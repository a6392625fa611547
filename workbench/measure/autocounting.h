// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "autocountmanager.h"

/// Automatic counting, which never runs yet. GUI thread.
class AutoCounting : public AutoCountManager
{
    Q_OBJECT

public:
    explicit AutoCounting(QObject *parent = nullptr);

    bool IsCounting() const override;
};
