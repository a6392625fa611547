// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cameraframe.h"
#include "framesource.h"
#include "levelsmodel.h"
#include "livelevels.h"

/// Frames of known samples.
namespace TestFrames {

/// Sample (x, y) of a mono frame is (x + 10 * y + shift) modulo the full scale; of a colour frame red
/// is x, green y and blue the shift.
CameraFrame Make(int width, int height, PixelLayout layout, int shift = 0);

} // namespace TestFrames

/// The levels as a first start has them.
struct TestLevels
{
    LevelsModel model;
    LiveLevels live{&model};
};

/// A camera that sends what the test hands to the sink.
class TestFrameSource : public FrameSource
{
public:
    bool StartFrames(FrameSink *newSink) override
    {
        if (hasCamera)
            sink = newSink;
        return hasCamera;
    }
    void StopFrames() override { sink = nullptr; }
    bool IsStarted() const override { return sink; }

    bool hasCamera = true;
    FrameSink *sink = nullptr;
};
