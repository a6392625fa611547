// SPDX-License-Identifier: GPL-3.0-or-later
#include "uiplugin.h"

#include <QObject>

/// Claims to be a panel in its metadata only.
class NotAPanel : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GLOBALUI_UIPLUGIN_IID FILE "i_notapanel.json")
};

#include "i_notapanel.moc"
