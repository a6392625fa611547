// SPDX-License-Identifier: GPL-3.0-or-later
#include "cameraspectrumstackedwidget.h"

#include "displaymodeuimanager.h"
#include "spectrumuimanager.h"
#include "uiconfigmanager.h"
#include "useareamanager.h"

CameraSpectrumStackedWidget::CameraSpectrumStackedWidget(QWidget *parent)
    : SpectrumStackedWidgetBase(parent)
{
    CameraSpectrumStackedWidget::CreatePages();
    connect(UseAreaManager::GetInstance(), SIGNAL(signalUpdateUseArea()), this, SLOT(SlotUpdateUseArea()));
}

void CameraSpectrumStackedWidget::SlotNewArea(qreal xmin, qreal xmax, qreal ymin, qreal ymax)
{
    DisplayModeUIManager::GetInstance()->SetImageExpansionAreaFlag(false);
    SpectrumUIManager::GetInstance()->SlotNewArea(xmin, xmax, ymin, ymax);
}

void CameraSpectrumStackedWidget::SlotUpdateUseArea()
{
    SpectrumUIManager *spectrumUI = SpectrumUIManager::GetInstance();
    spectrumUI->SetFocusAssitanceFlag(false);
    spectrumUI->SetFVBOnFlag(0);
    spectrumUI->SetMultiTrackOnFlag(false);
    if (!UseAreaManager::GetInstance()->IsSpectrumPagePresent())
        spectrumUI->SetDisplayModeGeneral();
    UIConfigManager::GetInstance()->UpdateCameraControlUI();
}
