// SPDX-License-Identifier: GPL-3.0-or-later
#include "imagespectrumstackedwidget.h"

#include "displaymodemanager.h"
#include "displaymodeuimanager.h"
#include "globalmanager.h"
#include "imagemanager.h"
#include "spectrum2ddrawframebase.h"
#include "spectrumdrawviewbase.h"
#include "spectrumuimanager.h"
#include "spectrumview.h"

ImageSpectrumStackedWidget::ImageSpectrumStackedWidget(QWidget *parent)
    : SpectrumStackedWidgetBase(parent)
{
    ImageSpectrumStackedWidget::CreatePages();
    SpectrumDrawViewBase *imageView = m_spectrumView->GetDrawView();
    m_spectrumView->SetStaticMode(true);
    imageView->SetStaticMode(true);
    ImageManager *image = GlobalManager::GetInstance()->GetActiveImageManager();
    image->ConnectWidthDrawView(imageView, true);
    m_plot2D->SetStaticMode(true);

    connect(image, SIGNAL(sglUpdateHorizontalCurve(int *, int, int, int)), m_spectrumView,
            SLOT(SlotUpdateHorizontalCurve(int *, int, int, int)));
    connect(image, SIGNAL(sglUpdateVerticalCurve(int *, int, int, int)), m_spectrumView,
            SLOT(SlotUpdateVerticalCurve(int *, int, int, int)));
    connect(image, SIGNAL(signalUpdateLevel(int, int)), m_spectrumView, SLOT(SlotUpdateLevel(int, int)));
    connect(imageView, SIGNAL(SignalPressPosChangeStatic(QPointF, QRectF, bool)), m_spectrumView,
            SLOT(SlotPressPosChangeStatic(QPointF, QRectF, bool)));
    connect(imageView, SIGNAL(SignalNewRect(qreal, qreal, qreal, qreal)), this,
            SLOT(slotNewArea(qreal, qreal, qreal, qreal)));
    connect(image, SIGNAL(sglUpdateHorizontalCurve(int *, int, int, int)), m_plot2D,
            SLOT(SlotUpdateImageHorizontalCurve(int *, int, int, int)));
    connect(image, SIGNAL(sglUpdateVerticalCurve(int *, int, int, int)), m_plot2D,
            SLOT(SlotUpdateImageVerticalCurve(int *, int, int, int)));
    const SpectrumUIManager *spectrumUI = SpectrumUIManager::GetInstance();
    connect(spectrumUI, SIGNAL(signalDisplayModeChange()), imageView, SLOT(SlotDisplayModeChange()));
    connect(spectrumUI, SIGNAL(signalDisplayModePropertyChange()), imageView, SLOT(SlotDisplayModeChange()));
    m_spectrumView->ConnectImageRanges(spectrumUI->GetDisplayModeManager());
    connect(image, SIGNAL(signalResetImageInfo()), m_spectrumView, SLOT(slotResetImageInfo()));
    connect(image, SIGNAL(signalUpdatePseudoColor(const QVector<QColor>)), m_spectrumView,
            SLOT(SlotPseudoColorsChanged(const QVector<QColor>)));
    connect(image, SIGNAL(signalResetImageSize()), imageView, SLOT(slotResetImageInfo()));
    connect(image, SIGNAL(signalOpenSpefile()), this, SLOT(slotOpenSpefile()));
}

void ImageSpectrumStackedWidget::slotNewArea(qreal xmin, qreal xmax, qreal ymin, qreal ymax)
{
    const ImageManager *image = GlobalManager::GetInstance()->GetActiveImageManager();
    QString area = image ? image->GetExpansionArea() : QString();
    const bool valid = !area.isEmpty() && SpectrumUIManager::GetInstance()->IsValidConversation(&area);
    DisplayModeUIManager::GetInstance()->SetImageExpansionAreaFlag(valid);
    DisplayModeUIManager::GetInstance()->SetImageExpansionArea(area);
    SpectrumUIManager::GetInstance()->SlotImageNewArea(xmin, xmax, ymin, ymax);
}

void ImageSpectrumStackedWidget::slotOpenSpefile()
{
    SpectrumUIManager::GetInstance()->SetDirectionHorizontal();
}
