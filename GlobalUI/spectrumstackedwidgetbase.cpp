// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrumstackedwidgetbase.h"

#include "spectrumuimanager.h"

#include <QLabel>

SpectrumStackedWidgetBase::SpectrumStackedWidgetBase(QWidget *parent)
    : QStackedWidget(parent)
{
}

void SpectrumStackedWidgetBase::CreatePages()
{
    for (int page = PhysicsPage; page <= Plot2DPage; ++page) {
        auto *notice = new QLabel(tr("The spectrum display is not part of this version."), this);
        notice->setAlignment(Qt::AlignCenter);
        notice->setWordWrap(true);
        insertWidget(page, notice);
    }
    insertWidget(Plot3DPage, new QWidget(this));
}

void SpectrumStackedWidgetBase::slotDisplayModeChange()
{
    const SpectrumUIManager *spectrumUI = SpectrumUIManager::GetInstance();
    if (spectrumUI->IsDisplayModePhysics())
        setCurrentIndex(PhysicsPage);
    else if (spectrumUI->IsDisplayMode2D() || spectrumUI->IsDisplayMode2DPeak())
        setCurrentIndex(Plot2DPage);
    else if (spectrumUI->IsDisplayMode3D())
        setCurrentIndex(Plot3DPage);
}

void SpectrumStackedWidgetBase::resizeEvent(QResizeEvent *event)
{
    QStackedWidget::resizeEvent(event);
    for (int page = 0; page < count(); ++page)
        widget(page)->resize(size());
}
