// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakeadvancedprocessmanager.h"
#include "fakealgspectrometer.h"
#include "fakeautocountmanager.h"
#include "fakecameraconfigmanager.h"
#include "fakecameralist.h"
#include "fakecameramanager.h"
#include "fakecameranamemanager.h"
#include "fakecomparesaver.h"
#include "fakecoverconfigmanager.h"
#include "fakedisplaymodemanager.h"
#include "fakedisplaymodeuimanager.h"
#include "fakefilesavemanager.h"
#include "fakefluorescencesynthesismanager.h"
#include "fakeframemanager.h"
#include "fakeframeprocessmanager.h"
#include "fakeframesavemanager.h"
#include "fakeglobalmanager.h"
#include "fakehistogramcalculatemanager.h"
#include "fakeimagecore.h"
#include "fakeimagemanager.h"
#include "fakeintensitymanager.h"
#include "fakemeasureconfigmanager.h"
#include "fakemeasuremanager.h"
#include "fakepixelinfomanager.h"
#include "fakepreviewmanager.h"
#include "fakereportmanager.h"
#include "fakeroimanager.h"
#include "fakespectrummanager.h"
#include "fakespectrumuimanager.h"
#include "fakethumbnaillist.h"
#include "fakeuiconfigmanager.h"
#include "fakeuseareamanager.h"

#include <QPointer>

/// Every required service as a fake, wired to one another as a host does it: the camera's report
/// manager is the active one, the main image manager has the focus, nothing is open. There is no
/// camera; a test that wants one puts a FakeCameraMainManager on the stack.
struct FakeServices
{
    FakeServices();
    ~FakeServices();

    FakeUIConfigManager uiConfig;
    FakeUseAreaManager useArea;
    FakeMeasureManager cameraMeasure;
    FakeMeasureManager mainMeasure;
    FakeMeasureManager compareMeasure;
    FakeReportManager cameraReport;
    FakeImageCore imageCore;
    FakeImageManager mainImage;
    FakeImageManager compareImage;
    FakeCameraManager cameraManager;
    FakeCameraList cameraList;
    FakeGlobalManager global;
    FakeAdvancedProcessManager advancedProcess;
    FakeFluorescenceSynthesisManager fluorescence;
    FakePreviewManager preview;
    FakePixelInfoManager pixelInfo;
    FakeIntensityManager intensity;
    FakeHistogramCalculateManager histogram;
    FakeFrameProcessManager frameProcess;
    FakeFrameManager frame;
    FakeFrameSaveManager frameSave;
    FakeFileSaveManager fileSave;
    FakeCameraNameManager cameraName;
    FakeCameraConfigManager cameraConfig;
    FakeCoverConfigManager cover;
    FakeROIManager roi;
    FakeMeasureConfigManager measureConfig;
    FakeAutoCountManager autoCount;
    FakeDisplayModeManager displayMode;
    FakeSpectrumUIManager spectrumUI;
    FakeSpectrumManager spectrum;
    FakeDisplayModeUIManager displayModeUI;
    FakeAlgSpectrometer algorithm;
    FakeCompareSaver compareSaver;
    /// Goes with the widget that takes it; otherwise with this object.
    QPointer<FakeThumbnailList> thumbnails;
};
