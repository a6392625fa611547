// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frameprocessmanager.h"

class OpenedPicture;

/// Frames of the main picture, turned, cropped and brought to the screen's levels, on their way to its
/// view. GUI thread.
class PictureFrames : public FrameProcessManager
{
    Q_OBJECT

public:
    /// `picture` is borrowed.
    explicit PictureFrames(const OpenedPicture *picture, QObject *parent = nullptr);

public slots:
    /// Frames are made in full size, whatever the scale.
    void slotScaleFactorChanged(double scaleFactor) override;
};
