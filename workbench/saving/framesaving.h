// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framesavemanager.h"

/// Saving of captured frames. Nothing is saved yet, so the thread never runs. GUI thread.
class FrameSaving : public FrameSaveManager
{
    Q_OBJECT

public:
    explicit FrameSaving(QObject *parent = nullptr);

    bool IsAutoStop() const override;
    bool IsTotalFrameChecked() const override;
    int GetProgressBarMaxValue() const override;
    bool IsRecordMode() const override;
};
