// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturedisplay.h"

#include "levelsfollower.h"
#include "levelsmodel.h"
#include "sampleview.h"
#include "scaledsamples.h"

#include <algorithm>
#include <new>
#include <type_traits>
#include <utility>

namespace {

bool IsKnownBefore(const LevelsSetting &setting, const SampleRange &range)
{
    return setting.mode == LevelsMode::Manual || setting.mode == LevelsMode::FullRange
           || (setting.mode == LevelsMode::Automatic && range.IsKnown());
}

DisplayLevels LevelsOf(const SampleView &samples, const LevelsSetting &setting, const SampleRange &range)
{
    return setting.mode == LevelsMode::Automatic && range.IsKnown()
               ? DisplayLevels{ int(range.left), int(range.right), setting.gamma }
               : LevelsFollower().Next(samples, setting);
}

} // namespace

bool PictureDisplay::IsLikeLive(const Picture &samples)
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

SampleKind PictureDisplay::KindOf(SampleType type)
{
    return VisitSampleType(type, [](auto sample) {
        using Sample = decltype(sample);
        const auto number = std::is_floating_point_v<Sample> ? SampleKind::Floating
                            : std::is_signed_v<Sample>       ? SampleKind::Signed
                                                             : SampleKind::Unsigned;
        return SampleKind(number, 8 * int(sizeof sample));
    });
}

LevelsReport PictureDisplay::Report(const Picture &samples, const SampleRange &range, double gamma)
{
    if (IsLikeLive(samples))
        return LevelsReport::Of(ViewOf(samples), { int(range.left), int(range.right), gamma });
    LevelsReport report;
    report.kind = KindOf(samples.Type());
    report.levels = range;
    report.gamma = gamma;
    const int rowStep = std::max(1, samples.Height() / LevelsReport::HistogramRows);
    report.axis = ScaledSamples::FullRange(samples, rowStep);
    report.histogram = ScaledSamples::Histogram(samples, report.axis, LevelsReport::HistogramColumns, rowStep);
    return report;
}

PictureDisplay::PictureDisplay(const LevelsModel *levels)
    : m_levels(levels)
{
}

QImage PictureDisplay::Make(const Picture &samples, SampleRange &range)
{
    const BegunPicture begun = std::exchange(m_begun, BegunPicture());
    if (begun.samples && begun.samples == samples.Data() && m_rowsTaken == samples.Height()) {
        range = begun.range;
        m_usedPictures.Remember(begun.image);
        return begun.image;
    }
    return MakeWith({ m_levels->MarksSaturated(), m_levels->GetPalette() }, samples, range);
}

FrameRows *PictureDisplay::WhileRead(const SampleRange &range)
{
    m_begun = BegunPicture();
    m_begun.range = range;
    return this;
}

void PictureDisplay::Begin(const Picture &frame)
{
    const SampleView view = ViewOf(frame);
    const LevelsSetting setting = m_levels->Setting(view.bitDepth);
    if (!IsLikeLive(frame) || !IsKnownBefore(setting, m_begun.range))
        return;
    const DisplayLevels levels = LevelsOf(view, setting, m_begun.range);
    m_begun.range = { double(levels.left), double(levels.right) };
    m_begun.image = m_usedPictures.Take(frame.Size());
    m_rowsTaken = 0;
    if (m_converter.Begin(view, levels, &m_begun.image, m_levels->MarksSaturated(), m_levels->GetPalette()))
        m_begun.samples = view.samples;
}

void PictureDisplay::Take(int from, int to)
{
    if (!m_begun.samples)
        return;
    m_converter.ConvertRows(from, to);
    m_rowsTaken += to - from;
}

QImage PictureDisplay::MakePlain(const Picture &samples, SampleRange &range)
{
    return MakeWith(Colours(), samples, range);
}

QImage PictureDisplay::MakeWith(const Colours &colours, const Picture &samples, SampleRange &range)
{
    const QImage image =
        IsLikeLive(samples) ? MakeUnsigned(colours, samples, range) : MakeScaled(colours, samples, range);
    if (image.isNull())
        throw std::bad_alloc();
    return image;
}

QImage PictureDisplay::MakeUnsigned(const Colours &colours, const Picture &samples, SampleRange &range)
{
    const SampleView view = ViewOf(samples);
    const LevelsSetting setting = m_levels->Setting(view.bitDepth);
    const DisplayLevels levels = LevelsOf(view, setting, range);
    range = { double(levels.left), double(levels.right) };
    QImage image = m_usedPictures.Take(samples.Size());
    m_converter.Convert(view, levels, &image, colours.marksSaturated, colours.palette);
    m_usedPictures.Remember(image);
    return image;
}

QImage PictureDisplay::MakeScaled(const Colours &colours, const Picture &samples, SampleRange &range) const
{
    const SampleKind kind = KindOf(samples.Type());
    const LevelsSetting setting = m_levels->Setting(kind);
    switch (setting.mode) {
    case LevelsMode::Automatic:
        if (!range.IsKnown())
            range = ScaledSamples::TypicalRange(samples);
        break;
    case LevelsMode::Manual:
        range = { setting.left, setting.right };
        break;
    default:
        range = setting.mode == LevelsMode::FullRange && kind.IsWhole() ? SampleRange{ kind.Least(), kind.Most() }
                                                                        : ScaledSamples::FullRange(samples);
    }
    const QImage image = ScaledSamples::Image(samples, range, setting.gamma, colours.palette);
    return colours.marksSaturated ? ScaledSamples::WithSaturationMarks(samples, image) : image;
}
