// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "scenariotest.h"

#include <QString>
#include <QStringList>

class QDockWidget;
class QTabWidget;

/// Base of what a person does in the panels: brings one to the front and works in it by mouse and keyboard.
class PanelScenario : public ScenarioTest
{
    Q_OBJECT

protected:
    enum UseArea { Microscope = 0, Spectrometer = 1 };
    /// All three panels are open when the program starts. For Prepare().
    void OpenAllPanels(UseArea area);

    QTabWidget *Tabs(const char *name) const;
    QDockWidget *Dock(const char *name) const;
    QTabWidget *RightTabs() const;
    QTabWidget *BottomTabs() const;
    QWidget *Panel(const QString &name) const;
    static QStringList Texts(const QTabWidget *tabs);
    static void ClickTab(QTabWidget *tabs, const QString &text);
    /// The line of a panel that tells something.
    QString Note(const char *panel, const char *name) const;

    /// Clicks the tab and works in the panel from then on.
    void GoTo(QTabWidget *tabs, const QString &tab, const char *panel);
    /// The panel that is worked in, and what it holds.
    QWidget *Current() const { return m_panel; }
    QWidget *Widget(const char *name) const;
    QString Note(const char *name) const;
    /// What of it does not fit its column or has not the width that its text needs.
    QStringList CutOff() const;
    /// In sight, as the user brings it there.
    static void Reveal(QWidget *widget);
    void Click(const char *name);
    /// With the keyboard, as far up or down as the choice is.
    void Choose(const char *name, int index);
    void Choose(const char *name, const QString &text);
    /// Into a line or a number, instead of what stands there.
    void Type(const char *name, const QString &text);

private:
    QWidget *m_panel = nullptr;
};
