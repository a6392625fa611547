// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrographscenario.h"

#include "camerasession.h"
#include "plotpicture.h"
#include "spectrographscene.h"

#include <qcustomplot.h>

namespace {
constexpr double FaintExposureUs = 2000;
}

void SpectrographScenario::init()
{
    ScenarioTest::init();
    m_workbench->link.SetScene(SpectrographScene::SceneName());
    m_workbench->link.SetPixelLayout(PixelLayout::Mono16);
    m_workbench->link.Session()->SetExposureUs(FaintExposureUs);
    QVERIFY(m_workbench->WaitForNextPicture());
}

QCustomPlot *SpectrographScenario::Plot() const
{
    return qobject_cast<QCustomPlot *>(VisiblePlot(m_workbench->window.centralWidget()));
}
