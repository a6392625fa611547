// SPDX-License-Identifier: GPL-3.0-or-later
#include "uiplugin.h"

#include <QLabel>
#include <QObject>
#include <QPointer>

/// A plug-in for the interface after this one.
class OtherVersion : public QObject, public UIPlugin
{
    Q_OBJECT
    Q_INTERFACES(UIPlugin)
    Q_PLUGIN_METADATA(IID "globalui.UIPlugin/2" FILE "m_otherversion.json")

public:
    QWidget *GetWidget() override
    {
        if (!m_widget)
            m_widget = new QLabel("never seen");
        return m_widget;
    }
    void UpdateUI() override {}

private:
    QPointer<QLabel> m_widget;
};

#include "m_otherversion.moc"
