// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shellfixture.h"

#include <QScopedPointer>
#include <QSet>
#include <QTabWidget>
#include <QWidget>

/// Services, the tests' panels and a window around one manager.
template <class Manager>
struct Bench
{
    Bench()
    {
        ShellHost::UsePanels(ShellHost::WithPanels);
        manager.reset(new Manager);
    }

    void Load()
    {
        manager->LoadPluginUI(&window);
        TakePanelUpdates();
    }
    QWidget *Panel(int id) const { return window.findChild<QWidget *>(QString("panel%1").arg(id)); }
    QSet<int> Disabled(const QList<int> &ids) const
    {
        QSet<int> disabled;
        for (int id : ids) {
            if (!Panel(id)->isEnabledTo(Panel(id)->parentWidget()))
                disabled << id;
        }
        return disabled;
    }
    /// A control page, placed in the window like the left stack does.
    QTabWidget *Place(QWidget *page)
    {
        page->setParent(&window);
        return page->findChild<QTabWidget *>();
    }

    DisplayScale scale{ 1.0 };
    ShellServices services;
    QWidget window;
    QScopedPointer<Manager> manager;
};
