// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "camerasession.h"
#include "framecollector.h"
#include "guardedtest.h"

#include <memory>

/// Base of the tests of a session on the simulated camera.
class CameraSessionFixture : public GuardedTest
{
    Q_OBJECT

protected slots:
    void init() override;
    void cleanup() override;

protected:
    void OpenWithChart();
    /// Waits until the camera has taken all that was set.
    void Settle();

    std::unique_ptr<CameraSession> m_session;
    FrameCollector m_frames;
    QStringList m_faults;
};
