// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "displaylevels.h"
#include "orientation.h"
#include "sampleview.h"

/// A frame of the camera on its way to the screen.
struct AnalysedFrame
{
    SampleView samples; ///< as measured; valid during the call
    Orientation orientation; ///< that the picture is seen in
    DisplayLevels levels;    ///< that it is shown with
};

/// Works something out from the raw samples of every frame that is shown.
class FrameAnalysis
{
public:
    virtual ~FrameAnalysis() = default;

    /// In the preview's thread, after the picture was sent and before the next frame is taken; of a standing picture
    /// that is shown again in the GUI thread. Never in both at once.
    virtual void Analyse(const AnalysedFrame &frame) = 0;
};
