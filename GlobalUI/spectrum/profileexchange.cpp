// SPDX-License-Identifier: GPL-3.0-or-later
#include "profileexchange.h"

#include "payloadlocker.h"
#include "spectrumcurvepayload.h"

#include <utility>

namespace {

// Comparisons with NaN are false.
bool IsPartOfSide(double from, double to) { return from >= 0.0 && from <= to && to <= 1.0; }

// In the width and height slots a region carries its right and bottom.
bool FitsFrame(const SpectrumCurvePayload &payload, const QSize &frameSize)
{
    const QRectF &region = payload.region;
    return payload.horizontalFill && payload.horizontalShow && payload.verticalFill && payload.verticalShow
           && payload.horizontalSize > 0 && payload.horizontalSize <= frameSize.width()
           && payload.verticalSize > 0 && payload.verticalSize <= frameSize.height()
           && IsPartOfSide(region.x(), region.width()) && IsPartOfSide(region.y(), region.height());
}

ProfilePart PartOf(int *samples, int size, double from, double to, int side)
{
    return { samples, size, static_cast<int>(from * side), static_cast<int>((to - from) * side) };
}

bool HoldsSamples(const ProfilePart &part) { return part.count <= part.size - part.offset; }

} // namespace

bool ExchangeProfiles(SpectrumCurvePayload *payload, const QSize &frameSize, ExchangedProfiles *profiles)
{
    if (!payload || !payload->lock)
        return false;
    const PayloadLocker locker(payload->lock);
    if (!FitsFrame(*payload, frameSize))
        return false;
    // The fill buffers become those that are shown.
    const QRectF &region = payload->region;
    const ProfilePart horizontal = PartOf(payload->horizontalFill, payload->horizontalSize, region.x(),
                                          region.width(), frameSize.width());
    const ProfilePart vertical =
        PartOf(payload->verticalFill, payload->verticalSize, region.y(), region.height(), frameSize.height());
    if (!HoldsSamples(horizontal) || !HoldsSamples(vertical))
        return false;
    std::swap(payload->horizontalFill, payload->horizontalShow);
    std::swap(payload->verticalFill, payload->verticalShow);
    *profiles = { horizontal, vertical, payload->leftLevel, payload->rightLevel };
    return true;
}
