// SPDX-License-Identifier: GPL-3.0-or-later
#include "imagenavigateui.h"

#include "cameralist.h"
#include "cameramainmanager.h"
#include "globalclass.h"
#include "globalmanager.h"
#include "imagemanager.h"
#include "uiconfigmanager.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace {

QPushButton *MakeButton(const QString &objectName, QWidget *parent)
{
    auto *button = new QPushButton(parent);
    button->setObjectName(objectName);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    button->setMinimumSize(0, 40);
    const int iconSide = GlobalClass::GetActualSize(45);
    button->setIconSize(QSize(iconSide, iconSide));
    return button;
}

} // namespace

ImageNavigateUI::ImageNavigateUI(QWidget *parent)
    : QWidget(parent)
{
    SetupForm();
    m_cameraButton->setToolTip("(Ctrl+Q)");
    connect(GlobalManager::GetInstance()->GetCameraList(), SIGNAL(signalUpdateCameraList()), this,
            SLOT(slotUpdateUI()));
    slotUpdateUI();
}

void ImageNavigateUI::SetupForm()
{
    setObjectName("ImageNavigateUI");
    setWindowTitle("Form");
    resize(339, 72);
    m_cameraButton = MakeButton("pushButtonCamera", this);
    m_newImageCopyButton = MakeButton("pushButtonNewImageCopy", this);

    auto *row = new QHBoxLayout(this);
    row->setObjectName("horizontalLayout");
    row->addItem(new QSpacerItem(71, 20, QSizePolicy::Expanding, QSizePolicy::Minimum));
    row->addLayout(MakeColumn("verticalLayout_2", m_cameraButton, "labelLive", tr("Return Camera")));
    row->addItem(new QSpacerItem(72, 20, QSizePolicy::Expanding, QSizePolicy::Minimum));
    row->addLayout(MakeColumn("verticalLayout", m_newImageCopyButton, "labelCapture", tr("Apply")));
    row->addItem(new QSpacerItem(68, 20, QSizePolicy::Expanding, QSizePolicy::Minimum));

    QMetaObject::connectSlotsByName(this);
}

QVBoxLayout *ImageNavigateUI::MakeColumn(const QString &layoutName, QPushButton *button,
                                         const QString &labelName, const QString &labelText)
{
    auto *label = new QLabel(labelText, this);
    label->setObjectName(labelName);
    button->setAccessibleName(labelText);
    label->setAlignment(Qt::AlignCenter);

    auto *column = new QVBoxLayout;
    column->setObjectName(layoutName);
    column->setSpacing(0);
    column->setContentsMargins(-1, -1, 0, -1);
    column->addWidget(button);
    column->addWidget(label);
    return column;
}

void ImageNavigateUI::slotUpdateUI()
{
    m_cameraButton->setEnabled(CameraMainManager::GetInstance() != nullptr);
}

void ImageNavigateUI::on_pushButtonCamera_clicked() { UIConfigManager::GetInstance()->SetCameraView(); }

void ImageNavigateUI::on_pushButtonNewImageCopy_clicked()
{
    GlobalManager::GetInstance()->GetActiveImageManager()->SetAdjustApply(0);
}
