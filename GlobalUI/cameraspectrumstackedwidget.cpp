// SPDX-License-Identifier: GPL-3.0-or-later
#include "cameraspectrumstackedwidget.h"

#include "displaymodeuimanager.h"
#include "intensitymanager.h"
#include "spectrum2ddrawframebase.h"
#include "spectrummanager.h"
#include "spectrumuimanager.h"
#include "uiconfigmanager.h"
#include "useareamanager.h"

CameraSpectrumStackedWidget::CameraSpectrumStackedWidget(QWidget *parent)
    : SpectrumStackedWidgetBase(parent)
{
    CameraSpectrumStackedWidget::CreatePages();
    ConnectPlot2D();
    connect(UseAreaManager::GetInstance(), SIGNAL(signalUpdateUseArea()), this, SLOT(SlotUpdateUseArea()));
}

void CameraSpectrumStackedWidget::ConnectPlot2D()
{
    // Payloads come from the producers' threads.
    connect(IntensityManager::GetInstance(), SIGNAL(SignalUpdateCurve(void *)), m_plot2D,
            SLOT(SlotUpdateCurve(void *)), Qt::QueuedConnection);
    connect(SpectrumManager::GetInstance(), SIGNAL(SignalUpdateFVB(void *)), m_plot2D,
            SLOT(SlotUpdateFVB(void *)), Qt::QueuedConnection);
    connect(SpectrumManager::GetInstance(), SIGNAL(SignalUpdateMultiTrack(void *)), m_plot2D,
            SLOT(SlotUpdateMultiTrack(void *)), Qt::QueuedConnection);
    connect(SpectrumUIManager::GetInstance(), SIGNAL(SignalMultiTrackOnFlagChanged()), m_plot2D,
            SLOT(SlotMultitrackOnFlagChanged()));
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
