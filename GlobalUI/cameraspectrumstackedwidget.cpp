// SPDX-License-Identifier: GPL-3.0-or-later
#include "cameraspectrumstackedwidget.h"

#include "displaymodemanager.h"
#include "displaymodeuimanager.h"
#include "intensitymanager.h"
#include "previewmanager.h"
#include "spectrum2ddrawframebase.h"
#include "spectrumdrawviewbase.h"
#include "spectrummanager.h"
#include "spectrumuimanager.h"
#include "spectrumview.h"
#include "uiconfigmanager.h"
#include "useareamanager.h"

CameraSpectrumStackedWidget::CameraSpectrumStackedWidget(QWidget *parent)
    : SpectrumStackedWidgetBase(parent)
{
    CameraSpectrumStackedWidget::CreatePages();
    ConnectSpectrumView();
    ConnectPlot2D();
    connect(IntensityManager::GetInstance(), SIGNAL(SignalPseudoColorsUpdate(const QVector<QColor>)), m_spectrumView,
            SLOT(SlotPseudoColorsChanged(const QVector<QColor>)));
    connect(SpectrumUIManager::GetInstance(), SIGNAL(SignalMultiTrackOnFlagChanged()), m_plot2D,
            SLOT(SlotMultitrackOnFlagChanged()));
    connect(UseAreaManager::GetInstance(), SIGNAL(signalUpdateUseArea()), this, SLOT(SlotUpdateUseArea()));
}

void CameraSpectrumStackedWidget::ConnectSpectrumView()
{
    SpectrumDrawViewBase *imageView = m_spectrumView->GetDrawView();
    connect(PreviewManager::GetInstance(), SIGNAL(signalPreviewImage(QImage)), imageView,
            SLOT(slotPaintPreview(QImage)));
    connect(PreviewManager::GetInstance(), SIGNAL(signalSetUpdatesEnabled(bool)), imageView,
            SLOT(slotSetUpdatesEnabled(bool)));
    // The payload comes from the preview's thread.
    connect(IntensityManager::GetInstance(), SIGNAL(SignalUpdateCurve(void *)), m_spectrumView,
            SLOT(SlotUpdateCurve(void *)), Qt::QueuedConnection);
    connect(imageView, SIGNAL(SignalPressPosChange(QPointF, QRectF)), m_spectrumView,
            SLOT(SlotPressPosChange(QPointF, QRectF)));
    connect(imageView, SIGNAL(SignalNewRect(qreal, qreal, qreal, qreal)), this,
            SLOT(SlotNewArea(qreal, qreal, qreal, qreal)));
    m_spectrumView->ConnectLiveRanges(SpectrumUIManager::GetInstance()->GetDisplayModeManager());
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
