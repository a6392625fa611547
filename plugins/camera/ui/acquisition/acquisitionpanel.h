// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "uiplugin.h"

#include <QObject>
#include <QPointer>

class FieldForm;

/// The tab "Acquisition": what the next recording is to be and what its file is called.
class AcquisitionPanel : public QObject, public UIPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GLOBALUI_UIPLUGIN_IID FILE "acquisitionpanel.json")
    Q_INTERFACES(UIPlugin)

public:
    QWidget *GetWidget() override;
    void UpdateUI() override;

private:
    QPointer<FieldForm> m_form;
};
