// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "uiplugin.h"

#include <QObject>
#include <QPointer>

class FeatureView;

/// The tab "Hardware": the camera's own features.
class HardwarePanel : public QObject, public UIPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GLOBALUI_UIPLUGIN_IID FILE "hardwarepanel.json")
    Q_INTERFACES(UIPlugin)

public:
    QWidget *GetWidget() override;
    /// The features come by themselves while they are shown.
    void UpdateUI() override {}

private:
    QPointer<FeatureView> m_view;
};
