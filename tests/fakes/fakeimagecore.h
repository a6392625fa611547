// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "imagecore.h"

class FakeImageCore : public ImageCore
{
public:
    int depth = 1;
    int leftLevel = 0;
    int rightLevel = 255;
    double curveFactor = 1.0;

    int GetDepth() const override { return depth; }
    int GetLeftLevel() const override { return leftLevel; }
    int GetRightLevel() const override { return rightLevel; }
    double GetCurveFactor() const override { return curveFactor; }
};
