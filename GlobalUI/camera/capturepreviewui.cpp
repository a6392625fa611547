// SPDX-License-Identifier: GPL-3.0-or-later
#include "capturepreviewui.h"

#include "cameraconfigmanager.h"
#include "cameramainmanager.h"
#include "framesavemanager.h"
#include "globalclass.h"
#include "loglocation.h"
#include "previewmanager.h"
#include "restyle.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

CapturePreviewUI::CapturePreviewUI(QWidget *parent)
    : QWidget(parent)
{
    BuildForm();
    connect(FrameSaveManager::GetInstance(), &FrameSaveManager::signalSaveThreadRunningChanged,
            this, &CapturePreviewUI::onFrameSaveThreadRunningChanged);
    slotUpdateUI();

    const int iconSize = GlobalClass::GetActualSize(45);
    m_capture->setIconSize(QSize(iconSize, iconSize));
    m_preview->setIconSize(QSize(iconSize, iconSize));
    connect(CameraConfigManager::GetInstance(), SIGNAL(signalPreviewStateChanged()), this, SLOT(slotUpdateUI()));
}

void CapturePreviewUI::BuildForm()
{
    setObjectName("CapturePreviewUI");
    setWindowTitle(tr("Form"));
    resize(400, 78);
    auto *row = new QHBoxLayout(this);
    row->setObjectName("horizontalLayout");
    const QMargins margins = row->contentsMargins();
    row->setContentsMargins(margins.left(), 6, margins.right(), 6);

    auto *captureCaption = new QLabel(tr("Capture"), this);
    captureCaption->setObjectName("labelCapture");
    m_live = new QLabel(tr("Live"), this);
    m_live->setObjectName("labelLive");

    row->addSpacerItem(new QSpacerItem(68, 20, QSizePolicy::Expanding, QSizePolicy::Minimum));
    m_capture = AddButtonOverCaption(row, "verticalLayout", "pushButtonCapture", captureCaption);
    row->addSpacerItem(new QSpacerItem(40, 20, QSizePolicy::Expanding, QSizePolicy::Minimum));
    m_preview = AddButtonOverCaption(row, "verticalLayout_2", "pushButtonPreview", m_live);
    row->addSpacerItem(new QSpacerItem(68, 20, QSizePolicy::Expanding, QSizePolicy::Minimum));

    m_capture->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_capture->setToolTip("F10");

    QMetaObject::connectSlotsByName(this);
}

QPushButton *CapturePreviewUI::AddButtonOverCaption(QHBoxLayout *row, const char *layoutName, const char *buttonName,
                                                    QLabel *caption)
{
    auto *column = new QVBoxLayout;
    row->addLayout(column);
    column->setObjectName(layoutName);
    column->setSpacing(0);
    QMargins margins = column->contentsMargins();
    margins.setRight(0);
    column->setContentsMargins(margins);

    auto *button = new QPushButton(this);
    button->setObjectName(buttonName);
    button->setMinimumSize(0, 40);
    button->setIconSize(QSize(45, 45));
    column->addWidget(button);
    button->setAccessibleName(caption->text()); // it shows an icon only
    caption->setAlignment(Qt::AlignCenter);
    column->addWidget(caption);
    return button;
}

void CapturePreviewUI::slotUpdateUI()
{
    qDebug("CapturePreviewUI::UpdateUI()");
    const bool hasCamera = CameraMainManager::GetInstance() != nullptr;
    setEnabled(hasCamera);
    if (!hasCamera)
        return; // no camera open: the buttons keep their last look
    const bool previewing = PreviewManager::GetInstance()->isRunning();
    RenameAndRestyle(m_preview, previewing ? "pushButtonPreviewChecked" : "pushButtonPreview");
    m_live->setText(previewing ? tr("Stop") : tr("Live"));
    m_preview->setAccessibleName(m_live->text());
    ShowCaptureState(FrameSaveManager::GetInstance()->isRunning());
}

void CapturePreviewUI::on_pushButtonCapture_clicked()
{
    PreviewManager::GetInstance()->FrameSave(false, false);
}

void CapturePreviewUI::on_pushButtonPreview_clicked()
{
    const char *function = "CapturePreviewUI::on_pushButtonPreview_clicked";
    qDebug("%s ", qPrintable(LogLocation(__FILE__, __LINE__, function)));
    PreviewManager *preview = PreviewManager::GetInstance();
    if (preview->isRunning())
        preview->StopPreview();
    else
        preview->StartPreview();
    emit CameraConfigManager::GetInstance()->signalPreviewStateChanged();
    qDebug("%s ", qPrintable(LogLocation(__FILE__, __LINE__, function)));
}

void CapturePreviewUI::onFrameSaveThreadRunningChanged(bool saveRunning)
{
    if (!CameraMainManager::GetInstance())
        return; // no camera open: the button keeps its last look
    ShowCaptureState(saveRunning);
}

void CapturePreviewUI::ShowCaptureState(bool active)
{
    m_capture->setChecked(active); // without effect while the button is not checkable
    RenameAndRestyle(m_capture, active ? "pushButtonCaptureChecked" : "pushButtonCapture");
}
