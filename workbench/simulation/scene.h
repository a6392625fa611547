// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QtGlobal>

/// One exposure that a scene is asked to draw: where the samples go and how the sensor was set.
/// The picture is a region of a larger sensor, so a smaller region shows a crop of the same scene.
struct SceneFrame
{
    uchar *pixels = nullptr;
    int width = 0;
    int height = 0;
    int strideBytes = 0; ///< from one row to the next; a multiple of 2 for 16-bit samples
    int offsetX = 0;     ///< left edge of the region on the sensor, sensor pixels
    int offsetY = 0;
    int sensorWidth = 0;
    int sensorHeight = 0;
    int bitDepth = 8;      ///< 8, 12 or 16; more than 8 bits take a 16-bit sample in host byte order
    bool isColour = false; ///< three interleaved 8-bit samples: red, green, blue
    double exposureUs = 10000;
    double gainDb = 0;
    quint64 frameNumber = 0; ///< moves the scene on and picks the noise
};

/// What a simulated camera looks at.
/// Fill() runs in the camera's stream thread, never in two threads at once. The same seed and the same SceneFrame give the same samples.
class Scene
{
public:
    virtual ~Scene() = default;

    virtual QString Name() const = 0;
    /// Writes width x height samples; never touches the padding at the end of a row.
    virtual void Fill(const SceneFrame &frame) = 0;
};
