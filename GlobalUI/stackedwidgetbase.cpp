// SPDX-License-Identifier: GPL-3.0-or-later
#include "stackedwidgetbase.h"

#include "autocountmanager.h"
#include "compareframe.h"
#include "drawframebase.h"
#include "drawviewbase.h"
#include "globalclass.h"
#include "globalmanager.h"
#include "gpudrawframe.h"
#include "imageinfoui.h"
#include "imagemanager.h"
#include "spectrumuimanager.h"
#include "uiconfigmanager.h"
#include "useareamanager.h"
#include "viewtoolbar.h"

#include <QLayout>

StackedWidgetBase::StackedWidgetBase(QWidget *parent)
    : QStackedWidget(parent)
{
}

void StackedWidgetBase::CreateDrawFrame()
{
    m_mainFrame = new GPUDrawFrame(this);
    addWidget(m_mainFrame);

    DrawViewBase *view = GetMainDrawView();
    connect(this, SIGNAL(signalScaleView(ReportManager *, int)), view,
            SLOT(slotScaleView(ReportManager *, int)));
    connect(this, SIGNAL(signalSetScaleFactor(ReportManager *, double)), view,
            SLOT(slotSetScaleFactor(ReportManager *, double)));
    connect(m_toolBar, SIGNAL(signalSetZoomType(int)), this, SLOT(slotScaleView(int)));
    connect(m_toolBar, SIGNAL(signalUpdatePos()), this, SLOT(slotUpdateToolBarPosition()));
    connect(m_toolBar, SIGNAL(signalCloseCompare()), this, SLOT(slotCloseCompare()));
    connect(m_infoBar, SIGNAL(signalSetZoomRatio(double)), this, SLOT(slotSetScaleFactor(double)));
    connect(view, SIGNAL(signalEnableScaleFactor(QPoint)), m_infoBar, SLOT(slotEnableScaleFactor(QPoint)));
    connect(m_mainFrame->GetDrawFrame(), SIGNAL(signalEnableScaleFactor(QPoint)), m_infoBar,
            SLOT(slotEnableScaleFactor(QPoint)));
    connect(view, SIGNAL(signalUpdateImageSize(QString)), m_infoBar, SLOT(slotUpdateImageSize(QString)));
    connect(UIConfigManager::GetInstance(), SIGNAL(signalImageInfoChanged()), this,
            SLOT(slotUpdateImageInfoUI()));
}

GPUDrawFrame *StackedWidgetBase::GetMainFrame() const { return m_mainFrame; }

DrawViewBase *StackedWidgetBase::GetMainDrawView() const
{
    return m_mainFrame ? m_mainFrame->GetDrawFrame()->GetDrawView() : nullptr;
}

void StackedWidgetBase::UpdateViewOverlays()
{
    slotUpdateImageInfoUI();
    m_toolBar->setVisible(UseAreaManager::GetInstance()->IsToolBarVisible());
    m_infoBar->setVisible(UseAreaManager::GetInstance()->IsInfoBarVisible());
}

void StackedWidgetBase::RestoreMainPage()
{
    if (!m_mainFrame)
        return;
    insertWidget(0, m_mainFrame);
    QWidget *page = PageOfDisplayMode();
    setCurrentWidget(page);
    if (page == m_mainFrame) {
        m_mainFrame->raise();
        m_mainFrame->show();
        layout()->setGeometry(rect()); // a hidden stack would leave the frame as wide as its compare half
        GetMainDrawView()->ZoomFit();
    }
    RaiseToolBars();
}

QWidget *StackedWidgetBase::PageOfDisplayMode() const
{
    const SpectrumUIManager *spectrumUI = SpectrumUIManager::GetInstance();
    QWidget *page = spectrumUI->IsDisplayModeGeneral() ? nullptr : widget(spectrumUI->GetDisplayMode());
    return page && !qobject_cast<CompareFrame *>(page) ? page : m_mainFrame.data();
}

void StackedWidgetBase::RaiseToolBars()
{
    m_infoBar->raise();
    m_toolBar->raise();
}

void StackedWidgetBase::resizeEvent(QResizeEvent *event)
{
    QStackedWidget::resizeEvent(event);
    PlaceInfoBar();
    slotUpdateToolBarPosition();
    if (DrawViewBase *view = GetMainDrawView())
        view->ZoomFit();
}

void StackedWidgetBase::PlaceInfoBar()
{
    const int bottomMargin = 5;
    m_infoBar->move(0, height() - bottomMargin - m_infoBar->height());
    m_infoBar->raise();
}

void StackedWidgetBase::PlaceToolBar()
{
    m_toolBar->move(width() - GlobalClass::GetActualSize(30) - m_toolBar->width(),
                    height() / 2 - m_toolBar->height() / 2);
}

void StackedWidgetBase::slotUpdateToolBarPosition()
{
    PlaceToolBar();
    m_toolBar->raise();
}

void StackedWidgetBase::slotCloseCompare()
{
    if (AutoCountManager::GetInstance()->IsCounting())
        GlobalManager::GetInstance()->GetMainImageManager()->SetProcessType(0);
    else
        UIConfigManager::GetInstance()->SetCompareView();
}

void StackedWidgetBase::slotUpdateImageInfoUI() {}

void StackedWidgetBase::slotScaleView(int type)
{
    emit signalScaleView(GlobalManager::GetInstance()->GetReportManager(), type);
}

void StackedWidgetBase::slotSetScaleFactor(double scaleFactor)
{
    emit signalSetScaleFactor(GlobalManager::GetInstance()->GetReportManager(), scaleFactor);
}

void StackedWidgetBase::ShowSizeAndScale(const ReportManager &viewManager)
{
    const QSize size = viewManager.GetImageSize();
    m_infoBar->UpdateImageSize(size.width(), size.height());
    m_infoBar->slotUpdateScaleFactor(double(viewManager.GetScaleFactor()));
}
