// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturedisplay.h"

#include "levelsfollower.h"
#include "levelsmodel.h"
#include "sampleview.h"
#include "scaledsamples.h"

#include <new>

bool PictureDisplay::HasLevels(const Picture &samples)
{
    return samples.Type() == SampleType::U8 || samples.Type() == SampleType::U16;
}

SampleView PictureDisplay::ViewOf(const Picture &samples)
{
    SampleView view;
    view.samples = samples.Data();
    view.width = samples.Width();
    view.height = samples.Height();
    view.strideBytes = int(samples.BytesPerRow());
    view.bitDepth = 8 * BytesPerSample(samples.Type());
    view.isColour = samples.Channels() == 3;
    return view;
}

PictureDisplay::PictureDisplay(const LevelsModel *levels)
    : m_levels(levels)
{
}

QImage PictureDisplay::Make(const Picture &samples, SampleRange &range)
{
    const QImage image = HasLevels(samples) ? MakeUnsigned(samples, range) : MakeScaled(samples, range);
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
