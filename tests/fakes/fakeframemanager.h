// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "framemanager.h"

class FakeFrameManager : public FrameManager
{
public:
    quint16 frameWidth = 0;
    quint16 frameHeight = 0;

    quint16 GetFrameWidth() const override { return frameWidth; }
    quint16 GetFrameHeight() const override { return frameHeight; }
};
