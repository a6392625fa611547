// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrumstackedwidgetbase.h"

#include "spectrum2ddrawframebase.h"
#include "spectrum3ddrawframebase.h"
#include "spectrumdrawviewbase.h"
#include "spectrumuimanager.h"
#include "spectrumview.h"
#include "useareamanager.h"

SpectrumStackedWidgetBase::SpectrumStackedWidgetBase(QWidget *parent)
    : QStackedWidget(parent)
{
}

void SpectrumStackedWidgetBase::CreatePages()
{
    m_spectrumView = new SpectrumView(this);
    insertWidget(PhysicsPage, m_spectrumView);
    m_plot2D = new Spectrum2DDrawFrameBase(this);
    insertWidget(Plot2DPage, m_plot2D);
    insertWidget(Plot3DPage, new QWidget(this)); // until 3D is first shown
    connect(SpectrumUIManager::GetInstance(), SIGNAL(SignalSpectralPropertyChanged()), m_spectrumView,
            SLOT(SlotSpectralPropertyChanged()));
    connect(SpectrumUIManager::GetInstance(), SIGNAL(SignalSpectralPropertyChanged()), m_plot2D,
            SLOT(SlotSpectralPropertyChanged()));
    connect(UseAreaManager::GetInstance(), SIGNAL(signalSpectrumUIUpdate()), m_spectrumView,
            SLOT(SlotSpectrumUIChange()));
    connect(UseAreaManager::GetInstance(), SIGNAL(signalUpdateUseArea()), m_spectrumView,
            SLOT(SlotSpectrumUIChange()));
}

void SpectrumStackedWidgetBase::slotDisplayModeChange()
{
    const SpectrumUIManager *spectrumUI = SpectrumUIManager::GetInstance();
    if (spectrumUI->IsDisplayModePhysics())
        setCurrentIndex(PhysicsPage);
    else if (spectrumUI->IsDisplayMode2D() || spectrumUI->IsDisplayMode2DPeak())
        setCurrentIndex(Plot2DPage);
    else if (spectrumUI->IsDisplayMode3D())
        ShowPlot3D();
}

void SpectrumStackedWidgetBase::ShowPlot3D()
{
    QWidget *page = widget(Plot3DPage);
    if (!page->inherits("Spectrum3DDrawFrameBase")) {
        removeWidget(page); // remains our child
        page = new Spectrum3DDrawFrameBase(this);
        insertWidget(Plot3DPage, page);
        page->resize(size());
    }
    setCurrentIndex(Plot3DPage);
}

void SpectrumStackedWidgetBase::resizeEvent(QResizeEvent *event)
{
    QStackedWidget::resizeEvent(event);
    for (int page = 0; page < count(); ++page) {
        widget(page)->resize(size());
        if (page == PhysicsPage)
            m_spectrumView->GetDrawView()->RestoreView(false);
    }
}
