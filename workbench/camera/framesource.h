// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class FrameSink;

/// Where live frames come from. GUI thread.
class FrameSource
{
public:
    virtual ~FrameSource() = default;

    /// Frames go to `sink` from now on; false when there is no camera that could send any.
    virtual bool StartFrames(FrameSink *sink) = 0;
    /// After this no frame reaches the sink any more. Does not wait for a camera that is gone.
    virtual void StopFrames() = 0;
    /// Frames come, or will when a lost camera is back. False once they failed, though nobody stopped them.
    virtual bool IsStarted() const = 0;
};
