// SPDX-License-Identifier: GPL-3.0-or-later
#include "hostwindow.h"

#include <globalui.h>
#include <uiconfigmanager.h>

#include <QDockWidget>
#include <QStackedWidget>
#include <QTabWidget>

HostWindow::HostWindow()
{
    GlobalUI *ui = GlobalUI::GetInstance();
    ui->InitMainUI(this);

    setCentralWidget(ui->GetCenterStackedWidget());
    m_left = AddDock(tr("Controls"), Qt::LeftDockWidgetArea, ui->GetLeftStackedWidget());
    m_right = AddDock(tr("Tools"), Qt::RightDockWidgetArea, ui->GetRightTabWidget());
    m_bottom = AddDock(tr("Files"), Qt::BottomDockWidgetArea, ui->GetBottomTabWidget());
    connect(ui->GetCenterStackedWidget(), SIGNAL(signalUpdateDockWidget()), this, SLOT(slotUpdateDocks()));
    slotUpdateDocks();
}

void HostWindow::slotUpdateDocks()
{
    const UIConfigManager *config = UIConfigManager::GetInstance();
    m_left->setVisible(config->IsLeftUIChecked());
    m_right->setVisible(config->IsRightUIChecked());
    m_bottom->setVisible(config->IsBottomUIChecked());
}

QDockWidget *HostWindow::AddDock(const QString &title, Qt::DockWidgetArea area, QWidget *content)
{
    auto *dock = new QDockWidget(title, this);
    dock->setWidget(content);
    addDockWidget(area, dock);
    return dock;
}
