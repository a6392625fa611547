// SPDX-License-Identifier: GPL-3.0-or-later
#include "uiplugin.h"

#include <QLabel>
#include <QObject>
#include <QPointer>

void AFunctionThatIsNowhere();

/// Calls a function that no library has.
class Unresolved : public QObject, public UIPlugin
{
    Q_OBJECT
    Q_INTERFACES(UIPlugin)
    Q_PLUGIN_METADATA(IID GLOBALUI_UIPLUGIN_IID FILE "h_unresolved.json")

public:
    QWidget *GetWidget() override
    {
        if (!m_widget)
            AFunctionThatIsNowhere();
        return m_widget;
    }
    void UpdateUI() override { m_widget->setProperty("updates", m_widget->property("updates").toInt() + 1); }

private:
    QPointer<QLabel> m_widget;
};

#include "h_unresolved.moc"
