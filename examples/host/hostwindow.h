// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>

class QDockWidget;

/// The main window: the module's centre with its three panels docked around it.
class HostWindow : public QMainWindow
{
    Q_OBJECT

public:
    HostWindow();

private slots:
    /// The docks follow the folding buttons of the centre.
    void slotUpdateDocks();

private:
    QDockWidget *AddDock(const QString &title, Qt::DockWidgetArea area, QWidget *content);

    QDockWidget *m_left = nullptr;
    QDockWidget *m_right = nullptr;
    QDockWidget *m_bottom = nullptr;
};
