// SPDX-License-Identifier: GPL-3.0-or-later
#include "panelscenario.h"

#include "cutofftexts.h"

#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QSettings>
#include <QTabBar>
#include <QTabWidget>

void PanelScenario::OpenAllPanels(UseArea area)
{
    QSettings settings(m_folder->filePath("workbench.ini"), QSettings::IniFormat);
    settings.setValue("settings/version", 1);
    for (const char *panel : { "left", "right", "bottom" })
        settings.setValue(QString("panels/") + panel, true);
    settings.setValue("useArea/type", int(area));
    settings.sync();
}

QTabWidget *PanelScenario::Tabs(const char *name) const
{
    return m_workbench->window.findChild<QTabWidget *>(name);
}

QDockWidget *PanelScenario::Dock(const char *name) const
{
    return m_workbench->window.findChild<QDockWidget *>(name);
}

QTabWidget *PanelScenario::RightTabs() const { return qobject_cast<QTabWidget *>(Dock("DockRight")->widget()); }

QTabWidget *PanelScenario::BottomTabs() const { return Tabs("BottomTabWidget"); }

QWidget *PanelScenario::Panel(const QString &name) const
{
    return m_workbench->window.findChild<QWidget *>(name);
}

QStringList PanelScenario::Texts(const QTabWidget *tabs)
{
    QStringList texts;
    for (int i = 0; i < tabs->count(); ++i)
        texts << tabs->tabText(i);
    return texts;
}

void PanelScenario::ClickTab(QTabWidget *tabs, const QString &text)
{
    const int index = Texts(tabs).indexOf(text);
    QVERIFY2(index >= 0, qPrintable(text));
    QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, Qt::NoModifier, tabs->tabBar()->tabRect(index).center());
}

QString PanelScenario::Note(const char *panel, const char *name) const
{
    const auto *label = Panel(panel)->findChild<QLabel *>(name);
    return label ? label->text() : QString("no such line");
}

void PanelScenario::GoTo(QTabWidget *tabs, const QString &tab, const char *panel)
{
    ClickTab(tabs, tab);
    m_panel = Panel(panel);
    QVERIFY2(m_panel, panel);
    QTRY_VERIFY2(m_panel->isVisible(), panel);
}

QWidget *PanelScenario::Widget(const char *name) const { return m_panel->findChild<QWidget *>(name); }

QString PanelScenario::Note(const char *name) const
{
    return Note(qPrintable(m_panel->objectName()), name);
}

QStringList PanelScenario::CutOff() const
{
    QStringList names = CutOffTexts(m_panel);
    if (m_panel->width() > m_panel->parentWidget()->width())
        names << m_panel->objectName();
    return names;
}

void PanelScenario::Reveal(QWidget *widget)
{
    for (QWidget *parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
        if (auto *area = qobject_cast<QScrollArea *>(parent))
            area->ensureWidgetVisible(widget);
    }
}

void PanelScenario::Click(const char *name)
{
    QWidget *button = Widget(name);
    QVERIFY2(button && button->isEnabled(), name);
    Reveal(button);
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(8, button->height() / 2));
}

void PanelScenario::Choose(const char *name, int index)
{
    auto *box = m_panel->findChild<QComboBox *>(name);
    QVERIFY2(box && box->isEnabled() && index >= 0 && index < box->count(), name);
    Reveal(box);
    box->setFocus();
    const Qt::Key key = box->currentIndex() < index ? Qt::Key_Down : Qt::Key_Up;
    const int steps = qAbs(index - box->currentIndex());
    // Each one may change the other fields, and make their widgets anew: the focus stays.
    for (int i = 0; i < steps; ++i)
        QTest::keyClick(QApplication::focusWidget(), key);
    const auto *focused = qobject_cast<QComboBox *>(QApplication::focusWidget());
    QVERIFY2(focused && focused->objectName() == name, name);
    QCOMPARE(focused->currentIndex(), index);
}

void PanelScenario::Choose(const char *name, const QString &text)
{
    const auto *box = m_panel->findChild<QComboBox *>(name);
    QVERIFY2(box, name);
    Choose(name, box->findText(text));
}

void PanelScenario::Type(const char *name, const QString &text)
{
    QWidget *field = Widget(name);
    QVERIFY2(field && field->isEnabled(), name);
    auto *line = qobject_cast<QLineEdit *>(field);
    if (!line)
        line = field->findChild<QLineEdit *>();
    Reveal(field);
    field->setFocus();
    line->selectAll();
    QTest::keyClicks(field, text);
    QTest::keyClick(field, Qt::Key_Return);
}
