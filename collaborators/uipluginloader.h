// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "collaboratorsexport.h"

#include <QCoreApplication>
#include <QSet>
#include <QString>
#include <QStringList>

#include <memory>

class QObject;
class QWidget;
class UIPlugin;

/// What became of one plug-in file, for the application's plug-in page.
struct UIPluginReport
{
    QString filePath; ///< empty: a panel was asked for, and no plug-in brings it
    QString title; ///< in the program's language, where that has it; may be empty
    QString version;
    int id = -1;
    bool loaded = false;
    QString reason; ///< why it was not loaded, or is not seen although it was
};

/// A plug-in that was loaded: its root object and what its metadata says.
struct UIPluginEntry
{
    std::unique_ptr<QObject> root;
    UIPlugin *plugin = nullptr; ///< the root object's interface
    QWidget *panel = nullptr;   ///< its widget
    bool isBottomPage = false;
    QString title;
    bool belongsToCamera = true; ///< left pages a bottom page is shown with
    bool belongsToImage = true;
};

/// Finds plug-in files and loads them. Judges a file by its metadata before any of its code runs.
class GLOBALUI_COLLABORATORS_EXPORT UIPluginLoader
{
    Q_DECLARE_TR_FUNCTIONS(UIPluginLoader)

public:
    /// Shared libraries of `directory` below each root, by name; one file reached twice counts once.
    /// Links to files that are gone are among them.
    static QStringList FindFiles(const QStringList &roots, const QString &directory);
    /// Loads one file and lets it make its panel. On failure report.reason says why, and the entry has no plug-in.
    static UIPluginEntry Load(const QString &filePath, const QSet<int> &takenIds, UIPluginReport &report);
    /// Lets the plug-in show the state anew. The reason when it failed; it is of no use any more then.
    static QString Update(UIPlugin *plugin);
};
