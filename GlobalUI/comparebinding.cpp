// SPDX-License-Identifier: GPL-3.0-or-later
#include "comparebinding.h"

#include "camerastackedwidget.h"
#include "compareframe.h"
#include "globalmanager.h"
#include "gpudrawframe.h"
#include "imagemanager.h"
#include "imagestackedwidget.h"
#include "viewcodes.h"

namespace {

void ShowIn(StackedWidgetBase *stack, CompareFrame *compareFrame)
{
    if (stack->indexOf(compareFrame) < 0)
        stack->addWidget(compareFrame);
    stack->setCurrentWidget(compareFrame);
    stack->RaiseToolBars();
}

} // namespace

CompareBinding::CompareBinding(CompareFrame *compareFrame, CameraStackedWidget *cameraStack,
                               ImageStackedWidget *imageStack)
    : m_compareFrame(compareFrame)
    , m_cameraStack(cameraStack)
    , m_imageStack(imageStack)
{
}

void CompareBinding::SwitchTo(int view)
{
    if (view == CameraCompareView)
        ShowCameraCompare();
    else if (view == ImageCompareView)
        ShowImageCompare();
    else if (view != FileView) // the file browser is only a visit
        Leave();
}

bool CompareBinding::IsLeftShowingCamera() const
{
    return m_compareFrame->GetLeftFrame() == m_cameraStack->GetMainFrame();
}

void CompareBinding::ShowCameraCompare()
{
    ShowIn(m_cameraStack, m_compareFrame);

    const GPUDrawFrame *left = m_compareFrame->GetLeftFrame();
    if (!left || left == m_imageStack->GetMainFrame()) {
        ImageManager *image = GlobalManager::GetInstance()->GetActiveImageManager();
        m_compareFrame->DetachFrames();
        m_cameraStack->removeWidget(m_cameraStack->GetMainFrame());
        m_compareFrame->AttachLeftFrame(m_cameraStack->GetMainFrame(), nullptr, QString());
        m_compareFrame->AttachRightFrame(m_imageStack->GetMainFrame(), image, image->GetFileInfo());
    }
    m_compareFrame->show();
    m_imageStack->GetSecondFrame()->hide();
}

void CompareBinding::ShowImageCompare()
{
    ShowIn(m_imageStack, m_compareFrame);

    if (!m_compareFrame->GetLeftFrame() || IsLeftShowingCamera()) {
        const GlobalManager *global = GlobalManager::GetInstance();
        ImageManager *mainImage = global->GetMainImageManager();
        ImageManager *compareImage = global->GetCompareImageManager();
        const bool cameraFrameLent = IsLeftShowingCamera();
        m_compareFrame->DetachFrames();
        if (cameraFrameLent)
            m_cameraStack->RestoreMainPage();
        m_compareFrame->AttachLeftFrame(m_imageStack->GetMainFrame(), mainImage, mainImage->GetFileInfo());
        m_compareFrame->AttachRightFrame(m_imageStack->GetSecondFrame(), compareImage,
                                         compareImage->GetFileInfo());
    }
    m_compareFrame->show();
}

void CompareBinding::Leave()
{
    if (m_cameraStack->currentWidget() == m_compareFrame) {
        m_compareFrame->DetachFrames();
        m_cameraStack->RestoreMainPage();
        m_imageStack->RestoreMainPage();
        m_compareFrame->hide();
    } else if (m_imageStack->currentWidget() == m_compareFrame) {
        m_imageStack->RestoreMainPage();
        GlobalManager::GetInstance()->QuitCompare();
        GlobalManager::GetInstance()->GetCompareImageManager()->CloseImage();
        m_compareFrame->hide();
        m_compareFrame->DetachFrames();
        m_imageStack->GetSecondFrame()->hide();
    }
}
