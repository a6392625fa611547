// SPDX-License-Identifier: GPL-3.0-or-later
#include "uiplugin.h"

#include <QLabel>
#include <QObject>
#include <QPointer>

#include <stdexcept>

/// A panel for a tab, as it should be, unless it has the property "fails".
class TabPanel : public QObject, public UIPlugin
{
    Q_OBJECT
    Q_INTERFACES(UIPlugin)
    Q_PLUGIN_METADATA(IID GLOBALUI_UIPLUGIN_IID FILE "a_tabpanel.json")

public:
    QWidget *GetWidget() override
    {
        if (!m_widget)
            m_widget = new QLabel("tab panel");
        return m_widget;
    }
    void UpdateUI() override
    {
        if (m_widget->property("fails").toBool())
            throw std::runtime_error("the lamp went out");
        m_widget->setProperty("updates", m_widget->property("updates").toInt() + 1);
    }

private:
    QPointer<QLabel> m_widget;
};

#include "a_tabpanel.moc"
