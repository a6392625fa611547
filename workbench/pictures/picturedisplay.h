// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framerows.h"
#include "levelsconverter.h"
#include "levelsreport.h"
#include "palette.h"
#include "picture.h"
#include "samplerange.h"
#include "usedpictures.h"

#include <QImage>

#include <atomic>

class LevelsModel;
struct SampleView;

/// Makes the picture for the screen of the samples of a file, whatever their type: unsigned 8 and 16 bit as
/// the live picture is shown, all others between levels in their own units, which are set or found from the finite
/// samples; what is no number is black. One for one thread; the model may be changed meanwhile.
class PictureDisplay : private FrameRows
{
public:
    static SampleKind KindOf(SampleType type);
    /// Samples like those of a camera, and the view of them.
    static bool IsLikeLive(const Picture &samples);
    static SampleView ViewOf(const Picture &samples);
    /// Of a picture that was made with the levels `range`. From a part of the rows of a large picture.
    static LevelsReport Report(const Picture &samples, const SampleRange &range, double gamma);

    /// `levels` is borrowed and outlives this object.
    explicit PictureDisplay(const LevelsModel *levels);

    /// Automatic levels are those of `range` when it is known. On return `range` is what was used. Throws
    /// std::bad_alloc when there is no memory.
    QImage Make(const Picture &samples, SampleRange &range);
    /// What is told of the frame that is read next and then given to Make(), which is done sooner for it; `range` as
    /// there. Borrowed until Make() or the next call.
    FrameRows *WhileRead(const SampleRange &range);
    /// The same in greys, without a mark where it is saturated: what a file of 8 bits keeps of the samples.
    QImage MakePlain(const Picture &samples, SampleRange &range);

private:
    /// What is for the eye alone.
    struct Colours
    {
        bool marksSaturated = false;
        Palette palette;
    };

    /// The picture of a frame that is being read; none when `samples` is null.
    struct BegunPicture
    {
        const uchar *samples = nullptr;
        SampleRange range;
        QImage image;
    };

    void Begin(const Picture &frame) override;
    void Take(int from, int to) override;

    QImage MakeWith(const Colours &colours, const Picture &samples, SampleRange &range);
    QImage MakeUnsigned(const Colours &colours, const Picture &samples, SampleRange &range);
    QImage MakeScaled(const Colours &colours, const Picture &samples, SampleRange &range) const;

    const LevelsModel *m_levels;
    LevelsConverter m_converter;
    UsedPictures m_usedPictures;
    BegunPicture m_begun;
    std::atomic<int> m_rowsTaken{ 0 };
};
