// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakeservices.h"

FakeServices::FakeServices()
    : thumbnails(new FakeThumbnailList)
{
    cameraReport.measureManager = &cameraMeasure;
    mainImage.measureManager = &mainMeasure;
    mainImage.imageCore = &imageCore;
    compareImage.measureManager = &compareMeasure;
    compareImage.imageCore = &imageCore;
    global.cameraReportManager = &cameraReport;
    global.reportManager = &cameraReport;
    global.activeImageManager = &mainImage;
    global.mainImageManager = &mainImage;
    global.compareImageManager = &compareImage;
    global.cameraManager = &cameraManager;
    global.cameraList = &cameraList;
    global.cameraView = true;
    spectrumUI.displayModeManager = &displayMode;
    thumbnails->compareSaver = &compareSaver;
    CallLog::Clear();
}

FakeServices::~FakeServices()
{
    delete thumbnails;
}
