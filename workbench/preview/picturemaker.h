// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "levelsconverter.h"

class LiveLevels;
struct CameraFrame;

/// Makes the picture of a frame for the screen, Grayscale8 or RGB888, through the live levels. One
/// maker for one thread at a time.
class PictureMaker
{
public:
    /// `levels` is borrowed and outlives this object.
    explicit PictureMaker(LiveLevels *levels);

    QImage Make(const CameraFrame &frame);

private:
    LiveLevels *m_levels;
    LevelsConverter m_converter;
};
