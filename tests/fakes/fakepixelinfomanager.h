// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "pixelinfomanager.h"

class FakePixelInfoManager : public PixelInfoManager
{
public:
    void slotUpdateMousePosition(QPointF scenePos) override
    {
        CallLog::Add("PixelInfoManager::slotUpdateMousePosition", {Text(scenePos)});
    }
};
