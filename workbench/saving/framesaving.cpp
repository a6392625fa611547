// SPDX-License-Identifier: GPL-3.0-or-later
#include "framesaving.h"

FrameSaving::FrameSaving(QObject *parent)
    : FrameSaveManager(parent)
{
}

bool FrameSaving::IsAutoStop() const
{
    return false;
}

bool FrameSaving::IsTotalFrameChecked() const
{
    return false;
}

int FrameSaving::GetProgressBarMaxValue() const
{
    return 0;
}

bool FrameSaving::IsRecordMode() const
{
    return false;
}
