// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "levelsconverter.h"
#include "usedpictures.h"

class LiveLevels;
struct CameraFrame;
struct SampleView;

/// Makes the picture of a frame for the screen, Grayscale8 or RGB888, through the live levels and the palette. One
/// maker for one thread at a time.
class PictureMaker
{
public:
    /// `levels` is borrowed and outlives this object.
    explicit PictureMaker(LiveLevels *levels);

    static SampleView ViewOf(const CameraFrame &frame);

    QImage Make(const CameraFrame &frame);
    /// Those of the picture that was made last.
    const DisplayLevels &UsedLevels() const { return m_usedLevels; }

private:
    LiveLevels *m_levels;
    LevelsConverter m_converter;
    UsedPictures m_usedPictures;
    DisplayLevels m_usedLevels;
};
