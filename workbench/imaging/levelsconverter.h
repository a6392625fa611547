// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "displaylevels.h"
#include "gammatable.h"
#include "palette.h"
#include "sampleview.h"

#include <QImage>

/// Makes the picture that a display shows from raw samples: Grayscale8 from mono, RGB888 from colour and from mono
/// with saturated samples marked or in a palette. Straight levels cost about as much as copying the samples; a gamma goes through a
/// table. A large picture is shared with a second thread while it is made. One converter for one thread.
class LevelsConverter
{
public:
    /// Writes into `picture`, whose memory is used again when it fits and nobody shares it. Empty samples give a null
    /// picture. Levels that make no sense are guarded, see DisplayLevels::Guarded(). With `marksSaturated` a pixel with
    /// a sample at full scale is pure red, whatever the levels. The palette colours mono samples.
    void Convert(const SampleView &samples, const DisplayLevels &levels, QImage *picture,
                 bool marksSaturated = false, const Palette &palette = Palette());

    /// The same for samples that are yet to come: `picture` is as large as it will be, and ConvertRows() writes into it,
    /// as long as the samples and the picture stay where they are. False where Convert() gives a null picture.
    bool Begin(const SampleView &samples, const DisplayLevels &levels, QImage *picture, bool marksSaturated,
               const Palette &palette);
    /// Rows `from` to before `to` of the picture that was begun last. Several threads may share them.
    void ConvertRows(int from, int to) const;

private:
    void ConvertRow(int y, uchar *grey) const;
    void MarkColourRow(int y, uchar *rgb) const;
    /// `greyRow` is room for the greys of the row.
    void PaintMonoRow(int y, uchar *greyRow, uchar *rgb) const;

    GammaTable m_gammaTable;
    // Of the picture that is being made.
    SampleView m_samples;
    DisplayLevels m_levels;
    bool m_marksSaturated = false;
    Palette m_palette;
    bool m_isPainted = false;
    uchar *m_rows = nullptr;
    qptrdiff m_stride = 0;
};
