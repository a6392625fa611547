// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "uiplugin.h"

#include <QObject>
#include <QPointer>

class FieldForm;

/// The tab "Automatic Counting": what counts as an object of the opened picture, and how many there are.
class CountingPanel : public QObject, public UIPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GLOBALUI_UIPLUGIN_IID FILE "countingpanel.json")
    Q_INTERFACES(UIPlugin)

public:
    QWidget *GetWidget() override;
    void UpdateUI() override;

private:
    QPointer<FieldForm> m_form;
};
