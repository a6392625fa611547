// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "levelsconverter.h"

struct CameraFrame;
class QImage;

/// Makes the picture of a frame for the screen, Grayscale8 or RGB888: 8-bit samples as they are,
/// deeper ones through levels that follow the frame's own darkest and brightest parts. One maker for
/// one thread at a time.
class PictureMaker
{
public:
    QImage Make(const CameraFrame &frame);

private:
    LevelsConverter m_converter;
};
