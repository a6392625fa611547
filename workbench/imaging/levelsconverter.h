// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "displaylevels.h"

#include <QImage>
#include <vector>

struct SampleView;

/// Makes the picture that a display shows from raw samples: Grayscale8 from mono, RGB888 from colour.
/// Straight levels cost about as much as copying the samples; a gamma goes through a table that is kept until the
/// levels change. One converter for one thread.
class LevelsConverter
{
public:
    /// Writes into `picture`, whose memory is used again when it fits and nobody shares it. Empty samples give a null
    /// picture. Levels that make no sense are guarded, see DisplayLevels::Guarded().
    void Convert(const SampleView &samples, const DisplayLevels &levels, QImage *picture);

private:
    void PrepareTable(const DisplayLevels &levels, size_t size);

    std::vector<uchar> m_table; ///< grey of every sample value
    DisplayLevels m_tableLevels;
};
