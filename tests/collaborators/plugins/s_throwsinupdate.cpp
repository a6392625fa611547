// SPDX-License-Identifier: GPL-3.0-or-later
#include "uiplugin.h"

#include <QLabel>
#include <QObject>
#include <QPointer>

#include <stdexcept>

/// Has a panel, and fails when it is to show the state for the first time.
class ThrowsInUpdate : public QObject, public UIPlugin
{
    Q_OBJECT
    Q_INTERFACES(UIPlugin)
    Q_PLUGIN_METADATA(IID GLOBALUI_UIPLUGIN_IID FILE "s_throwsinupdate.json")

public:
    QWidget *GetWidget() override
    {
        if (!m_widget)
            m_widget = new QLabel("never seen");
        return m_widget;
    }
    void UpdateUI() override { throw std::runtime_error("the lamp does not answer"); }

private:
    QPointer<QLabel> m_widget;
};

#include "s_throwsinupdate.moc"
