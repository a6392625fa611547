// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frameprocessmanager.h"

/// Frames of the opened picture, of which there are none yet. GUI thread.
class PictureFrames : public FrameProcessManager
{
    Q_OBJECT

public:
    explicit PictureFrames(QObject *parent = nullptr);

public slots:
    void slotScaleFactorChanged(double scaleFactor) override;
};
