// SPDX-License-Identifier: GPL-3.0-or-later
#include "imagespectrumstackedwidget.h"

#include "displaymodeuimanager.h"
#include "globalmanager.h"
#include "imagemanager.h"
#include "spectrum2ddrawframebase.h"
#include "spectrumuimanager.h"

ImageSpectrumStackedWidget::ImageSpectrumStackedWidget(QWidget *parent)
    : SpectrumStackedWidgetBase(parent)
{
    ImageSpectrumStackedWidget::CreatePages();
    m_plot2D->SetStaticMode(true);
    const ImageManager *image = GlobalManager::GetInstance()->GetActiveImageManager();
    connect(image, SIGNAL(sglUpdateHorizontalCurve(int *, int, int, int)), m_plot2D,
            SLOT(SlotUpdateImageHorizontalCurve(int *, int, int, int)));
    connect(image, SIGNAL(sglUpdateVerticalCurve(int *, int, int, int)), m_plot2D,
            SLOT(SlotUpdateImageVerticalCurve(int *, int, int, int)));
    connect(image, SIGNAL(signalOpenSpefile()), this, SLOT(slotOpenSpefile()));
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
