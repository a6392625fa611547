// SPDX-License-Identifier: GPL-3.0-or-later
#include "imagespectrumstackedwidget.h"

#include "displaymodeuimanager.h"
#include "globalmanager.h"
#include "imagemanager.h"
#include "spectrumuimanager.h"

ImageSpectrumStackedWidget::ImageSpectrumStackedWidget(QWidget *parent)
    : SpectrumStackedWidgetBase(parent)
{
    ImageSpectrumStackedWidget::CreatePages();
    connect(GlobalManager::GetInstance()->GetActiveImageManager(), SIGNAL(signalOpenSpefile()), this,
            SLOT(slotOpenSpefile()));
}

void ImageSpectrumStackedWidget::slotNewArea(qreal xmin, qreal xmax, qreal ymin, qreal ymax)
{
    QString area = GlobalManager::GetInstance()->GetActiveImageManager()->GetExpansionArea();
    const bool valid = !area.isEmpty() && SpectrumUIManager::GetInstance()->IsValidConversation(&area);
    DisplayModeUIManager::GetInstance()->SetImageExpansionAreaFlag(valid);
    DisplayModeUIManager::GetInstance()->SetImageExpansionArea(area);
    SpectrumUIManager::GetInstance()->SlotImageNewArea(xmin, xmax, ymin, ymax);
}

void ImageSpectrumStackedWidget::slotOpenSpefile()
{
    SpectrumUIManager::GetInstance()->SetDirectionHorizontal();
}
