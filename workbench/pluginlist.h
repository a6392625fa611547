// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

struct UIPluginReport;

/// What the plug-in page and the command line say of the plug-ins that were found. GUI thread.
class PluginList
{
    Q_DECLARE_TR_FUNCTIONS(PluginList)

public:
    /// What the panel is called: its title, or the name of its file.
    static QString Name(const UIPluginReport &report);
    /// "Loaded", or why not.
    static QString State(const UIPluginReport &report);
    /// The folders of the plug-ins below each root, in the order they are searched.
    static QStringList Folders();
    /// Loads the plug-ins without a window and prints a line for each; false when one was not loaded. The services
    /// run already.
    static bool Print();
};
