// SPDX-License-Identifier: GPL-3.0-or-later
#include "pluginlist.h"

#include "globalui.h"
#include "uimanagerbase.h"

#include <QDir>
#include <QFileInfo>
#include <QWidget>

#include <cstdio>
#include <memory>

QString PluginList::Name(const UIPluginReport &report)
{
    return report.title.isEmpty() ? QFileInfo(report.filePath).completeBaseName() : report.title;
}

QString PluginList::State(const UIPluginReport &report)
{
    if (!report.loaded)
        return tr("Not loaded: %1").arg(report.reason);
    return report.reason.isEmpty() ? tr("Loaded") : tr("Loaded, but not seen: %1").arg(report.reason);
}

QStringList PluginList::Folders()
{
    QStringList folders;
    for (const QString &root : UIManagerBase::PluginRoots())
        folders << QDir::toNativeSeparators(QDir(root).filePath("plugins"));
    return folders;
}

bool PluginList::Print()
{
    QWidget parent; // of the panels
    const std::unique_ptr<GlobalUI> module(GlobalUI::GetInstance());
    module->LoadPluginUI(&parent);
    bool isWhole = true;
    for (const UIPluginReport &report : UIManagerBase::PluginReports()) {
        printf("%s\t%d\t%s\t%s\n", qPrintable(Name(report)), report.id, qPrintable(report.filePath),
               qPrintable(State(report)));
        isWhole &= report.loaded;
    }
    return isWhole;
}
