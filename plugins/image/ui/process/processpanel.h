// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "uiplugin.h"

#include <QObject>
#include <QPointer>

class FieldForm;

/// The tab "Process": one step of processing at a time, tried on the opened picture and applied.
class ProcessPanel : public QObject, public UIPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GLOBALUI_UIPLUGIN_IID FILE "processpanel.json")
    Q_INTERFACES(UIPlugin)

public:
    QWidget *GetWidget() override;
    void UpdateUI() override;

private:
    QPointer<FieldForm> m_form;
};
