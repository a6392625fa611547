// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class Picture;

/// Is told how far a frame is read by the formats that read it in parts: what is made of the samples is made soonest
/// while they still lie in the processor's cache.
class FrameRows
{
public:
    virtual ~FrameRows() = default;

    /// The frame has its shape and its place in memory, which it keeps; its samples come now.
    virtual void Begin(const Picture &frame) = 0;
    /// Rows `from` to before `to` are there. Each row comes once, in the thread that read it: two calls may be under way
    /// at the same time.
    virtual void Take(int from, int to) = 0;
};
