// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturedisplay.h"

#include "levelsfollower.h"
#include "levelsmodel.h"
#include "sampleview.h"
#include "scaledsamples.h"

#include <new>

namespace {

SampleView ViewOf(const Picture &picture)
{
    SampleView view;
    view.samples = picture.Data();
    view.width = picture.Width();
    view.height = picture.Height();
    view.strideBytes = int(picture.BytesPerRow());
    view.bitDepth = 8 * BytesPerSample(picture.Type());
    view.isColour = picture.Channels() == 3;
    return view;
}

} // namespace

PictureDisplay::PictureDisplay(const LevelsModel *levels)
    : m_levels(levels)
{
}

QImage PictureDisplay::Make(const Picture &samples, SampleRange &range)
{
    const bool isUnsigned = samples.Type() == SampleType::U8 || samples.Type() == SampleType::U16;
    const QImage image = isUnsigned ? MakeUnsigned(samples, range) : MakeScaled(samples, range);
    if (image.isNull())
        throw std::bad_alloc();
    return image;
}

QImage PictureDisplay::MakeUnsigned(const Picture &samples, SampleRange &range)
{
    const SampleView view = ViewOf(samples);
    const LevelsSetting setting = m_levels->Setting(view.bitDepth);
    const DisplayLevels levels = setting.mode == LevelsMode::Automatic && range.IsKnown()
                                     ? DisplayLevels{ int(range.left), int(range.right), setting.gamma }
                                     : LevelsFollower().Next(view, setting);
    range = { double(levels.left), double(levels.right) };
    QImage image;
    m_converter.Convert(view, levels, &image, m_levels->MarksSaturated());
    return image;
}

QImage PictureDisplay::MakeScaled(const Picture &samples, SampleRange &range) const
{
    const LevelsSetting setting = m_levels->Setting(LevelsModel::MostDepth);
    const bool takesAll = setting.mode == LevelsMode::MinimumMaximum || setting.mode == LevelsMode::FullRange;
    if (takesAll || !range.IsKnown())
        range = takesAll ? ScaledSamples::FullRange(samples) : ScaledSamples::TypicalRange(samples);
    return ScaledSamples::Image(samples, range, setting.gamma);
}
