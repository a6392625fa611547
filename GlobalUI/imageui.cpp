// SPDX-License-Identifier: GPL-3.0-or-later
#include "imageui.h"

#include "autocountmanager.h"
#include "controlpage.h"
#include "displaymodeuimanager.h"
#include "globalmanager.h"
#include "imagemanager.h"
#include "imagenavigateui.h"
#include "imagespectrumstackedwidget.h"
#include "imagestackedwidget.h"
#include "multiimagewidget.h"
#include "uiconfigmanager.h"
#include "uiplugin.h"

#include <QTabBar>
#include <QTabWidget>

namespace {

enum ImagePanelId
{
    FirstImagePanel = 4,
    ProcessPanel = 5,
    LastImagePanel = 6
};

} // namespace

ImageUI::ImageUI()
{
    SetTabIds({ FirstImagePanel, ProcessPanel, LastImagePanel });
    connect(UIConfigManager::GetInstance(), SIGNAL(signalUpdateImageControlUI()), this,
            SLOT(slotUpdateImageControlUI()));
}

void ImageUI::LoadPluginUI(QWidget *parent) { LoadUIPluginAndInitUI("plugins/image/ui", parent, true); }

QWidget *ImageUI::GetControlScrollArea()
{
    m_navigateUI = new ImageNavigateUI(nullptr); // reparented by the control page
    const QStringList tabNames{ tr("Adjustment"), tr("Process"), tr("Automatic Counting") };
    if (m_leftTabWidget) // it loses its panels to the new one, which is no choice of the user's
        disconnect(m_leftTabWidget, SIGNAL(currentChanged(int)), this, SLOT(slotImageTabWidgetCurrentChanged(int)));
    m_leftTabWidget =
        qobject_cast<QTabWidget *>(GetScrollArea(FirstImagePanel, LastImagePanel, tabNames, "Image"));
    m_leftTabWidget->tabBar()->setAccessibleName(tr("Image Panels"));
    m_leftTabWidget->setCurrentIndex(UIConfigManager::GetInstance()->GetLeftUIIndex());
    connect(m_leftTabWidget, SIGNAL(currentChanged(int)), this, SLOT(slotImageTabWidgetCurrentChanged(int)));
    return MakeControlPage(m_navigateUI, m_leftTabWidget);
}

QWidget *ImageUI::CreateCenterWidget(QWidget *parent)
{
    m_imageStack = new ImageStackedWidget(parent);
    m_spectrumStack = new ImageSpectrumStackedWidget(parent);
    m_centerStack = new QStackedWidget(parent);
    m_centerStack->addWidget(m_imageStack);
    m_centerStack->addWidget(m_spectrumStack);
    m_multiImageWidget = new MultiImageWidget(parent);
    m_multiImageWidget->SetView(m_centerStack);
    ImageManager *image = GlobalManager::GetInstance()->GetActiveImageManager();
    connect(image, SIGNAL(signalCurrentFileFrameNumber(int)), m_multiImageWidget,
            SLOT(SlotCurrentFileFrameNumber(int)));
    connect(image, SIGNAL(signalCurrentFrame(int)), m_multiImageWidget, SLOT(SlotCurrentFrame(int)));
    return m_multiImageWidget;
}

ImageStackedWidget *ImageUI::GetImageStack() const { return m_imageStack; }

void ImageUI::OnDisplayModeChange()
{
    if (!m_centerStack)
        return; // the window is not built yet, or gone
    m_centerStack->setCurrentIndex(DisplayModeUIManager::GetInstance()->GetCurrentDisplayMode() != 0 ? 1 : 0);
    m_spectrumStack->slotDisplayModeChange();
}

void ImageUI::slotImageTabWidgetCurrentChanged(int index)
{
    UIConfigManager::GetInstance()->SetLeftUIIndex(index);
}

void ImageUI::slotUpdateImageControlUI()
{
    if (m_imageStack)
        m_imageStack->UpdateViewOverlays();
    if (AutoCountManager::GetInstance()->IsCounting())
        return; // the panels stay as they are while counting runs

    const GlobalManager *global = GlobalManager::GetInstance();
    const bool enabled = global->IsImageEnabled() && !global->GetActiveImageManager()->Is32BitMat();
    const QList<LoadedPlugin> plugins = Plugins();
    for (int i = plugins.size() - 1; i >= 0; --i) {
        UpdatePlugin(plugins.at(i));
        if (plugins.at(i).widget)
            plugins.at(i).widget->setEnabled(enabled);
    }
    if (m_navigateUI)
        m_navigateUI->slotUpdateUI();
    if (m_centerStack) {
        m_centerStack->setDisabled(global->GetMainImageManager()->IsNonImage()
                                   && global->GetCompareImageManager()->IsNonImage());
    }
}
