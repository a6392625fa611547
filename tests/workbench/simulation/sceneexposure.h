// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "scene.h"

#include <vector>

/// Exposes a scene into memory of its own, with guard bytes after every row, and gives the samples back.
class SceneExposure
{
public:
    /// The whole sensor, width x height.
    SceneExposure(int width, int height, int bitDepth, bool isColour = false);

    /// Settings may be changed between exposures.
    SceneFrame &Settings() { return m_frame; }
    void Expose(Scene &scene);

    /// A mono sample, or one channel of a colour pixel.
    int SampleAt(int x, int y, int channel = 0) const;
    double Mean() const;
    int Maximum() const;
    const std::vector<uchar> &Bytes() const { return m_bytes; }
    /// True when Expose() wrote only where samples are.
    bool IsPaddingUntouched() const;

private:
    int Channels() const { return m_frame.isColour ? 3 : 1; }
    int RowBytes() const;

    SceneFrame m_frame;
    std::vector<uchar> m_bytes;
};
