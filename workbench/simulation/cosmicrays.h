// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "scene.h"

#include <QPoint>

#include <vector>

/// Particles that leave charge along a short straight way through the sensor, each in one frame only. Where and when
/// follows from the seed and the number of the frame.
class CosmicRays
{
public:
    /// `ratePerSecond` on the whole sensor.
    CosmicRays(quint32 seed, double ratePerSecond);

    struct Hit
    {
        QPoint pixel; ///< on the sensor
        int electrons;
    };
    /// All pixels that were hit during the exposure; one that was hit twice stands there twice.
    std::vector<Hit> HitsIn(const SceneFrame &frame) const;
    /// Adds them to the samples of the frame, up to full scale.
    void Strike(const SceneFrame &frame) const;

private:
    quint32 m_seed;
    double m_ratePerSecond;
};
