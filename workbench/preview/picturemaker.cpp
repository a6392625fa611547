// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturemaker.h"

#include "cameraframe.h"
#include "levelsfinder.h"
#include "sampleview.h"

#include <QImage>

namespace {
/// A few dead and hot pixels don't set the levels.
constexpr double DarkestPart = 0.001;
constexpr double BrightestPart = 0.999;
}

QImage PictureMaker::Make(const CameraFrame &frame)
{
    SampleView samples;
    samples.samples = frame.pixels.get();
    samples.width = frame.width;
    samples.height = frame.height;
    samples.strideBytes = frame.strideBytes;
    samples.bitDepth = frame.BitDepth();
    samples.isColour = frame.layout == PixelLayout::Rgb8;

    const DisplayLevels levels = samples.Has16BitSamples()
        ? LevelsFinder::FromPercentiles(samples, DarkestPart, BrightestPart)
        : DisplayLevels::FullRange(samples.bitDepth);
    QImage picture;
    m_converter.Convert(samples, levels, &picture);
    return picture;
}
