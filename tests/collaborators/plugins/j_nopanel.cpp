// SPDX-License-Identifier: GPL-3.0-or-later
#include "uiplugin.h"

#include <QObject>

/// A plug-in that has no widget to show.
class NoPanel : public QObject, public UIPlugin
{
    Q_OBJECT
    Q_INTERFACES(UIPlugin)
    Q_PLUGIN_METADATA(IID GLOBALUI_UIPLUGIN_IID FILE "j_nopanel.json")

public:
    QWidget *GetWidget() override { return nullptr; }
    void UpdateUI() override {}
};

#include "j_nopanel.moc"
