// SPDX-License-Identifier: GPL-3.0-or-later
#include "uiplugin.h"

#include <QLabel>
#include <QObject>
#include <QPointer>

/// A plug-in that says it was built for a later Qt.
class OtherQt : public QObject, public UIPlugin
{
    Q_OBJECT
    Q_INTERFACES(UIPlugin)
    Q_PLUGIN_METADATA(IID GLOBALUI_UIPLUGIN_IID FILE "n_otherqt.json")

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

// What the metadata below is made of.
#undef QT_VERSION_MINOR
#define QT_VERSION_MINOR 99
#include "n_otherqt.moc"
