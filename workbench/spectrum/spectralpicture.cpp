// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectralpicture.h"

SpectralFrame SpectralPicture::Frame(bool isHorizontal) const
{
    SpectralFrame frame = SpectralFrame::Of({region, 1, orientation}, isHorizontal);
    if (!frame.IsNull())
        frame.fileExtent = frame.isAlongRows ? fileSize.width() : fileSize.height();
    return frame;
}
