// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "recordingdesk.h"
#include "savesettings.h"
#include "scenariotest.h"

#include <QRect>
#include <QSignalSpy>

#include <memory>

/// Base of what a person does who records: the camera delivers a small region of the test chart, and a recording of 20
/// frames is set up, "run1.tif" in the test's folder.
class RecordingScenario : public ScenarioTest
{
    Q_OBJECT

protected slots:
    void init() override;
    void cleanup() override;

protected:
    static constexpr int MsToWait = 60000;
    static constexpr QRect SmallRegion{ 512, 512, 256, 128 };

    RecordingDesk *Desk() const { return m_workbench->services.Recording(); }
    void Apply() { Desk()->Settings()->Set(m_settings); }
    /// Waits for the end of the recording.
    RunReceipt Receipt();
    /// The chart stands still: every frame shows it.
    void CompareWithTheScene(const RunReceipt &receipt, int frames);

    std::unique_ptr<QSignalSpy> m_ended;
    RecordingSettings m_settings;
};
