// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>

struct SpectrumCurvePayload;

/// The samples of one intensity curve and the part of the picture's side that it spans (pixels).
/// The samples belong to the producer, which leaves them alone until the next exchange.
struct ProfilePart
{
    int *samples = nullptr;
    int size = 0;
    int offset = 0;
    int count = 0;
};

/// What one exchange brings to the GUI thread.
struct ExchangedProfiles
{
    ProfilePart horizontal;
    ProfilePart vertical;
    int leftLevel = 0;
    int rightLevel = 0;
};

/// Takes the newest row and column profile: exchanges the fill and the show buffers under the
/// payload's lock. False, with the payload untouched, where it has no lock or no buffer, or where
/// its sizes or its region do not belong to a frame of this size.
bool ExchangeProfiles(SpectrumCurvePayload *payload, const QSize &frameSize, ExchangedProfiles *profiles);
