// SPDX-License-Identifier: GPL-3.0-or-later
#include "uiplugin.h"

#include <QLabel>
#include <QObject>
#include <QPointer>

#include <stdexcept>

/// Fails in its constructor.
class Throws : public QObject, public UIPlugin
{
    Q_OBJECT
    Q_INTERFACES(UIPlugin)
    Q_PLUGIN_METADATA(IID GLOBALUI_UIPLUGIN_IID FILE "o_throws.json")

public:
    Throws() { throw std::runtime_error("no lamp is connected"); }
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

#include "o_throws.moc"
