// SPDX-License-Identifier: GPL-3.0-or-later
#include "uiplugin.h"

#include <QLabel>
#include <QObject>
#include <QPointer>

/// A plug-in of another program.
class OtherInterface : public QObject, public UIPlugin
{
    Q_OBJECT
    Q_INTERFACES(UIPlugin)
    Q_PLUGIN_METADATA(IID "some.other.Interface/1" FILE "e_otherinterface.json")

public:
    QWidget *GetWidget() override
    {
        if (!m_widget)
            m_widget = new QLabel("never seen");
        return m_widget;
    }
    void UpdateUI() override { m_widget->setProperty("updates", m_widget->property("updates").toInt() + 1); }

private:
    QPointer<QLabel> m_widget;
};

#include "e_otherinterface.moc"
