// SPDX-License-Identifier: GPL-3.0-or-later
#include "scenariotest.h"

#include "camerasession.h"

#include <QOffscreenSurface>
#include <QOpenGLContext>

void ScenarioTest::initTestCase()
{
    // The OpenGL driver starts threads with its first context and keeps them.
    QOffscreenSurface surface;
    surface.create();
    QOpenGLContext context;
    QVERIFY(context.create() && context.makeCurrent(&surface));
}

void ScenarioTest::init()
{
    StartGuard();
    m_folder = std::make_unique<QTemporaryDir>();
    Prepare();
    Start();
}

void ScenarioTest::cleanup()
{
    Stop();
    m_folder.reset();
    EndGuard();
}

void ScenarioTest::Start()
{
    m_workbench = std::make_unique<RunningWorkbench>(m_folder->path());
    QVERIFY(m_workbench->WaitForPicture());
}

void ScenarioTest::Stop()
{
    m_workbench.reset();
    QVERIFY(CameraSession::WaitForTeardown(5000));
}
