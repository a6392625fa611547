// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "displaylevels.h"

#include <QtGlobal>

#include <vector>

/// The grey of every value that a sample can take, for levels with a gamma. Kept until the levels change; making it
/// anew takes some tens of microseconds, so that levels may change with every picture.
class GammaTable
{
public:
    /// `levels` are guarded; `size` is 256 or 65536.
    void Prepare(const DisplayLevels &levels, int size);

    void LookUp(const quint8 *samples, int count, uchar *grey) const;
    void LookUp(const quint16 *samples, int count, uchar *grey) const;

private:
    int FirstValueOf(int grey) const;
    int GreyOf(int value) const;

    DisplayLevels m_levels;
    std::vector<uchar> m_greys;
};
