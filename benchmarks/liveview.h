// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakecameramainmanager.h"
#include "fakecoverconfigmanager.h"
#include "fakeglobalmanager.h"
#include "fakemeasureconfigmanager.h"
#include "fakemeasuremanager.h"
#include "fakereportmanager.h"
#include "fakeroimanager.h"
#include "fakeuiconfigmanager.h"
#include "gpudrawframe.h"

class PreviewManager;

/// The module's live view in a window of its own, drawn by the CPU, which shows what a real preview announces.
class LiveView
{
public:
    explicit LiveView(PreviewManager *preview);

private:
    FakeUIConfigManager m_uiConfig;
    FakeMeasureManager m_measure;
    FakeMeasureConfigManager m_measureConfig;
    FakeReportManager m_report;
    FakeGlobalManager m_global;
    FakeCoverConfigManager m_cover;
    FakeROIManager m_regions;
    FakeCameraMainManager m_camera;
    GPUDrawFrame m_frame{ nullptr };
};
