// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtPlugin>

class QWidget;

/// A panel that a plug-in brings. The plug-in's metadata (a JSON object) says where it goes:
///   "id"     number; camera panels 0 to 3, image panels 4 to 6, measure side 7, 8, 9, 11, 13, 64
///   "place"  "tab", or "bottom" for a page of the bottom tab widget
///   "title"  tab text of a bottom page; otherwise what the list of plug-ins calls the panel
///   "page"   left page a bottom page belongs to: "camera", "image" or "both"
///   "version"
/// Made on the GUI thread when its folder is loaded; lives until the manager that loaded it goes.
class UIPlugin
{
public:
    virtual ~UIPlugin() = default;

    /// The panel's widget, made on the first call; whoever places it owns it. It may outlive this
    /// object, so it keeps no pointer to it.
    virtual QWidget *GetWidget() = 0;
    /// Shows the state of the services anew.
    virtual void UpdateUI() = 0;
};

#define GLOBALUI_UIPLUGIN_IID "globalui.UIPlugin/1"
Q_DECLARE_INTERFACE(UIPlugin, GLOBALUI_UIPLUGIN_IID)
