// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "uiplugin.h"

#include <QObject>
#include <QPointer>

class PictureRate;

/// The plug-in: makes the panel and hands it out. The metadata say where it goes.
class PictureRatePlugin : public QObject, public UIPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GLOBALUI_UIPLUGIN_IID FILE "picturerate.json")
    Q_INTERFACES(UIPlugin)

public:
    QWidget *GetWidget() override;
    void UpdateUI() override;

private:
    QPointer<PictureRate> m_panel; ///< owned by the tab that it is placed in
};
