// SPDX-License-Identifier: GPL-3.0-or-later
#include "centerstackedwidget.h"

#include "cameramainmanager.h"
#include "framesavemanager.h"
#include "globalclass.h"
#include "previewmanager.h"
#include "restyle.h"
#include "uiconfigmanager.h"
#include "viewcodes.h"

#include <QPushButton>

CenterStackedWidget::CenterStackedWidget(QWidget *parent)
    : QStackedWidget(parent)
{
    setObjectName("CenterStackedWidget");
    m_leftButton = AddButton("pushButtonLeft", tr("Left Panel"), true);
    m_rightButton = AddButton("pushButtonRight", tr("Hide the Right Panel"), false);
    m_analysisButton = AddButton("analysisPushButton", tr("Show the Right Panel"), false);
    m_analysisButton->setIconSize(QSize(GlobalClass::GetActualSize(20), GlobalClass::GetActualSize(90)));
    m_bottomButton = AddButton("pushButtonBottom", tr("Bottom Panel"), true);
    m_captureButton = AddButton("pushButtonCustomCapture", tr("Capture"), true);
    ConnectButtons();

    connect(FrameSaveManager::GetInstance(), &FrameSaveManager::signalSaveThreadRunningChanged, this,
            &CenterStackedWidget::onFrameSaveThreadRunningChanged, Qt::QueuedConnection);
    slotUpdateUI();
    // Asked for from inside our own slots too: run after the current event.
    connect(UIConfigManager::GetInstance(), SIGNAL(signalUpdateCameraControlUI()), this, SLOT(slotUpdateUI()),
            Qt::QueuedConnection);
}

QPushButton *CenterStackedWidget::AddButton(const QString &objectName, const QString &name, bool checkable)
{
    auto *button = new QPushButton(this);
    button->setObjectName(objectName);
    button->setAccessibleName(name);
    button->setCheckable(checkable);
    return button;
}

void CenterStackedWidget::ConnectButtons()
{
    connect(m_leftButton, SIGNAL(clicked(bool)), this, SLOT(slotSetLeftPanelVisible(bool)));
    connect(m_rightButton, SIGNAL(clicked()), this, SLOT(slotSetRightPanelVisible()));
    connect(m_analysisButton, SIGNAL(clicked()), this, SLOT(slotSetAnalysisPanelVisible()));
    connect(m_bottomButton, SIGNAL(clicked(bool)), this, SLOT(slotSetBottomPanelVisible(bool)));
    connect(m_captureButton, SIGNAL(clicked()), this, SLOT(slotCaptureClicked()));
}

void CenterStackedWidget::RaiseFloatingButtons()
{
    m_leftButton->raise();
    m_bottomButton->raise();
    m_rightButton->raise();
    m_analysisButton->raise();
    m_captureButton->raise();
}

void CenterStackedWidget::resizeEvent(QResizeEvent *event)
{
    QStackedWidget::resizeEvent(event);

    const QRect r = rect();
    const int longSide = GlobalClass::GetActualSize(60);
    const int shortSide = GlobalClass::GetActualSize(16);
    const int border = GlobalClass::GetActualSize(2);
    const int analysisHeight = GlobalClass::GetActualSize(90);
    const int analysisWidth = GlobalClass::GetActualSize(20);
    const int iconSide = GlobalClass::GetActualSize(40);
    const int middleX = r.x() + r.width() / 2;
    const int middleY = r.y() + r.height() / 2;

    // The border of each button hangs over the edge.
    m_leftButton->setGeometry(r.x() + 1 - border, middleY - longSide / 2, shortSide, longSide);
    m_bottomButton->setGeometry(middleX - longSide / 2, r.y() + r.height() + border - shortSide, longSide,
                                shortSide);
    m_rightButton->setGeometry(r.x() + r.width() + border - shortSide, middleY - longSide / 2, shortSide,
                               longSide);
    m_analysisButton->setGeometry(r.x() + r.width() + border - analysisWidth, middleY - analysisHeight / 2,
                                  analysisWidth, analysisHeight);
    m_captureButton->setGeometry(r.x() + longSide, r.y() + longSide, longSide, longSide);
    m_captureButton->setIconSize(QSize(iconSide, iconSide));
    m_captureButton->setStyleSheet("");
    RaiseFloatingButtons();
}

void CenterStackedWidget::slotSetLeftPanelVisible(bool value)
{
    UIConfigManager::GetInstance()->SetLeftUIChecked(value);
    slotUpdateUI();
}

void CenterStackedWidget::slotSetRightPanelVisible()
{
    UIConfigManager::GetInstance()->SetRightUIChecked(false);
    slotUpdateUI();
}

void CenterStackedWidget::slotSetAnalysisPanelVisible()
{
    UIConfigManager::GetInstance()->SetRightUIChecked(true);
    slotUpdateUI();
}

void CenterStackedWidget::slotSetBottomPanelVisible(bool value)
{
    UIConfigManager::GetInstance()->SetBottomUIChecked(value);
    slotUpdateUI();
}

void CenterStackedWidget::slotUpdateUI()
{
    const UIConfigManager *config = UIConfigManager::GetInstance();

    const bool leftShown = config->IsLeftUIChecked();
    m_leftButton->setVisible(config->IsLeftToggleVisible());
    m_leftButton->setChecked(leftShown);
    RenameAndRestyle(m_leftButton, leftShown ? "pushButtonLeft" : "pushButtonRight");

    const bool rightShown = config->IsRightUIChecked();
    m_rightButton->setVisible(config->IsRightButtonsAvailable() && rightShown);
    m_analysisButton->setVisible(config->IsRightButtonsAvailable() && !rightShown);

    const bool bottomShown = config->IsBottomUIChecked();
    m_bottomButton->setVisible(config->IsBottomToggleVisible());
    m_bottomButton->setChecked(bottomShown);
    RenameAndRestyle(m_bottomButton, bottomShown ? "pushButtonBottom" : "pushButtonTop");

    UpdateCaptureButton();
    m_captureButton->setVisible(!leftShown && config->GetCurrentView() == CameraView);

    emit signalUpdateDockWidget();
}

void CenterStackedWidget::UpdateCaptureButton()
{
    const bool cameraPresent = CameraMainManager::GetInstance() != nullptr;
    m_captureButton->setEnabled(cameraPresent);
    if (cameraPresent)
        ShowCaptureState(FrameSaveManager::GetInstance()->isRunning());
}

void CenterStackedWidget::ShowCaptureState(bool saving)
{
    m_captureButton->setChecked(saving);
    RenameAndRestyle(m_captureButton, saving ? "pushButtonCustomCaptureChecked" : "pushButtonCustomCapture");
}

void CenterStackedWidget::slotSetBlackBackground(bool value)
{
    setStyleSheet(value ? "CenterStackedWidget{background-color: rgb(0, 0, 0);}"
                        : "CenterStackedWidget{background-color: rgb(68, 73, 86);}");
}

void CenterStackedWidget::slotCaptureClicked()
{
    PreviewManager::GetInstance()->FrameSave(false, false);
    slotUpdateUI();
}

void CenterStackedWidget::onFrameSaveThreadRunningChanged(bool saveRunning)
{
    if (CameraMainManager::GetInstance())
        ShowCaptureState(saveRunning);
}
