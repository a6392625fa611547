// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frameledger.h"

struct CameraFrame;

constexpr quint64 UnknownFrameId = 0; ///< no camera uses it

/// Takes the frames of a CameraSession.
class FrameSink
{
public:
    virtual ~FrameSink() = default;

    /// Called in the camera's stream thread, one frame at a time. Take a copy and return soon: a slow sink loses
    /// frames in the camera. Must not call the session.
    virtual void OnFrame(const CameraFrame &frame) = 0;
    /// As OnFrame(): so many frames from this id on will never come whole. Before the first whole frame the ids are not
    /// known.
    virtual void OnLost(LossStage, quint64 /*firstId*/, quint64 /*frames*/) {}
};
