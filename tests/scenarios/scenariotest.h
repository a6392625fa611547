// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "guardedtest.h"
#include "runningworkbench.h"

#include <QTemporaryDir>

#include <memory>

/// Base of what a person does with the whole program: each test function has a workbench of its own with a picture on
/// the screen, and its own folder. A subclass with an init() or cleanup() of its own calls these, or does their work.
class ScenarioTest : public GuardedTest
{
    Q_OBJECT

protected slots:
    void initTestCase();
    void init() override;
    /// Waits until the camera's threads are gone.
    void cleanup() override;

protected:
    /// Puts what the program is to find at its start into the folder.
    virtual void Prepare() {}
    void Start();
    /// Waits until the camera's threads are gone.
    void Stop();

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<RunningWorkbench> m_workbench;
};
