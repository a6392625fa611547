// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frameledger.h"

struct CameraFrame;

/// Takes the frames of a CameraSession.
class FrameSink
{
public:
    virtual ~FrameSink() = default;

    /// Called in the camera's stream thread, one frame at a time. Take a copy and return soon: a slow sink loses
    /// frames in the camera. Must not call the session.
    virtual void OnFrame(const CameraFrame &frame) = 0;
    /// As OnFrame(): frames of these ids, on end, will never come whole.
    virtual void OnLost(LossStage, quint64 /*firstId*/, quint64 /*frames*/) {}
};
