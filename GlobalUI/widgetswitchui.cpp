// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgetswitchui.h"

#include "globalclass.h"
#include "thumbnaillist.h"
#include "uiconfigmanager.h"
#include "viewcodes.h"

#include <QHBoxLayout>
#include <QPushButton>

WidgetSwitchUI::WidgetSwitchUI(QWidget *parent)
    : QFrame(parent)
{
    SetupForm()->addWidget(ThumbnailList::GetInstance());
    m_showFileDirButton->setToolTip(tr("Show File Directory") + "(Ctrl+P)");
    m_returnButton->hide();
    connect(UIConfigManager::GetInstance(), SIGNAL(signalSwitchView()), this, SLOT(slotUpdateUI()));
}

QHBoxLayout *WidgetSwitchUI::SetupForm()
{
    setObjectName("WidgetSwitchUI");
    setWindowTitle("Form");
    resize(400, 300);

    const double largeIcon = 0.8;
    const double smallIcon = 0.6;
    m_showFileDirButton = MakeButton("pushButtonShowFileDirTreeView", tr("Show File Directory"), largeIcon);
    m_returnButton = MakeButton("pushButtonReturn", tr("Back to the View Before"), largeIcon);
    QPushButton *modifyDPIButton = MakeButton("pushButtonModifyDPI", tr("Modify DPI"), smallIcon);
    modifyDPIButton->setToolTip(modifyDPIButton->accessibleName());
    QPushButton *convertCSVButton = MakeButton("pushButtonConvertCSV", tr("Convert to CSV"), smallIcon);
    convertCSVButton->setToolTip(convertCSVButton->accessibleName());

    auto *column = new QVBoxLayout;
    column->setObjectName("verticalLayout");
    column->addWidget(m_showFileDirButton);
    column->addWidget(m_returnButton);
    column->addWidget(modifyDPIButton);
    column->addWidget(convertCSVButton);
    column->addItem(new QSpacerItem(20, 40, QSizePolicy::Minimum, QSizePolicy::Expanding));

    auto *row = new QHBoxLayout;
    row->setObjectName("horizontalLayout");
    row->setSpacing(0);
    row->addLayout(column);

    auto *outerRow = new QHBoxLayout(this);
    outerRow->setObjectName("horizontalLayout_2");
    outerRow->setContentsMargins(0, 0, 0, 0);
    outerRow->addLayout(row);

    QMetaObject::connectSlotsByName(this);
    return row;
}

QPushButton *WidgetSwitchUI::MakeButton(const QString &objectName, const QString &name, double iconRatio)
{
    const int side = GlobalClass::GetActualSize(30);
    const int iconSide = int(side * iconRatio);
    auto *button = new QPushButton(this);
    button->setObjectName(objectName);
    button->setAccessibleName(name);
    button->setFixedSize(side, side);
    button->setIconSize(QSize(iconSide, iconSide));
    return button;
}

void WidgetSwitchUI::slotUpdateUI()
{
    const bool fileView = UIConfigManager::GetInstance()->GetCurrentView() == FileView;
    m_returnButton->setVisible(fileView);
    m_showFileDirButton->setVisible(m_returnButton->isHidden());
}

void WidgetSwitchUI::on_pushButtonShowFileDirTreeView_clicked()
{
    UIConfigManager::GetInstance()->SetFileView();
}

void WidgetSwitchUI::on_pushButtonReturn_clicked() { UIConfigManager::GetInstance()->FileViewReturn(); }

void WidgetSwitchUI::on_pushButtonModifyDPI_clicked() { UIConfigManager::GetInstance()->slotModifyDPI(); }

void WidgetSwitchUI::on_pushButtonConvertCSV_clicked() { UIConfigManager::GetInstance()->slotConvertToCSV(); }
