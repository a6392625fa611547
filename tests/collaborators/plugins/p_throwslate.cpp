// SPDX-License-Identifier: GPL-3.0-or-later
#include "uiplugin.h"

#include <QLabel>
#include <QObject>
#include <QPointer>

/// Fails with something that is no exception of the standard library when it makes its panel.
class ThrowsLate : public QObject, public UIPlugin
{
    Q_OBJECT
    Q_INTERFACES(UIPlugin)
    Q_PLUGIN_METADATA(IID GLOBALUI_UIPLUGIN_IID FILE "p_throwslate.json")

public:
    QWidget *GetWidget() override
    {
        throw 47;
    }
    void UpdateUI() override {}

private:
    QPointer<QLabel> m_widget;
};

#include "p_throwslate.moc"
