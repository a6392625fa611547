// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturemaker.h"

#include "cameraframe.h"
#include "livelevels.h"
#include "sampleview.h"

PictureMaker::PictureMaker(LiveLevels *levels)
    : m_levels(levels)
{
}

SampleView PictureMaker::ViewOf(const CameraFrame &frame)
{
    SampleView samples;
    samples.samples = frame.pixels.get();
    samples.width = frame.width;
    samples.height = frame.height;
    samples.strideBytes = frame.strideBytes;
    samples.bitDepth = frame.BitDepth();
    samples.isColour = frame.layout == PixelLayout::Rgb8;
    return samples;
}

QImage PictureMaker::Make(const CameraFrame &frame)
{
    const SampleView samples = ViewOf(frame);
    m_usedLevels = m_levels->Next(samples);
    QImage picture = m_usedPictures.Take(QSize(frame.width, frame.height));
    m_converter.Convert(samples, m_usedLevels, &picture, m_levels->MarksSaturated(), m_levels->GetPalette());
    m_usedPictures.Remember(picture);
    return picture;
}
