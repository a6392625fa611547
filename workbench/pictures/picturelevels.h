// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "imagecore.h"
#include "samplerange.h"
#include "sampletype.h"

/// Pixel depth and display levels of an opened picture; while nothing is open, those of an 8-bit
/// picture shown as it is. Owned by its OpenedPicture. GUI thread.
class PictureLevels : public ImageCore
{
    Q_OBJECT

public:
    explicit PictureLevels(QObject *parent = nullptr);

    void Set(SampleType type, const SampleRange &range);

    int GetDepth() const override;
    int GetLeftLevel() const override;
    int GetRightLevel() const override;

private:
    SampleType m_type = SampleType::U8;
    SampleRange m_range = { 0, 255 };
};
