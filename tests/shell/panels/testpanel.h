// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "uiplugin.h"

#include <QObject>
#include <QPointer>

/// A panel whose widget is named "panel<id>"; the widget's property "plugin" is the plug-in's root
/// object. Each update adds the id to the application's property "panelUpdates".
/// With the widget's property "fails" an update throws.
class TestPanel : public QObject, public UIPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GLOBALUI_UIPLUGIN_IID FILE "testpanel.json")
    Q_INTERFACES(UIPlugin)

public:
    QWidget *GetWidget() override;
    void UpdateUI() override;

private:
    QPointer<QWidget> m_widget;
};
