// SPDX-License-Identifier: GPL-3.0-or-later
#include "uipluginloader.h"

#include "uiplugin.h"
#include "uipluginmetadata.h"

#include <QDir>
#include <QFileInfo>
#include <QLibrary>
#include <QPluginLoader>

namespace {

UIPluginEntry EntryOf(const UIPluginMetaData &metaData)
{
    UIPluginEntry entry;
    entry.isBottomPage = metaData.IsBottomPage();
    entry.title = metaData.Title();
    entry.belongsToCamera = metaData.BelongsToCamera();
    entry.belongsToImage = metaData.BelongsToImage();
    return entry;
}

} // namespace

QStringList UIPluginLoader::FindFiles(const QStringList &roots, const QString &directory)
{
    QStringList files;
    QSet<QString> seen;
    for (const QString &root : roots) {
        const QDir folder(QDir(root).filePath(directory));
        for (const QFileInfo &file : folder.entryInfoList(QDir::Files, QDir::Name)) {
            const QString canonicalPath = file.canonicalFilePath();
            if (!QLibrary::isLibrary(file.fileName()) || seen.contains(canonicalPath))
                continue;
            seen.insert(canonicalPath);
            files << file.absoluteFilePath();
        }
    }
    return files;
}

UIPluginEntry UIPluginLoader::Load(const QString &filePath, const QSet<int> &takenIds, UIPluginReport &report)
{
    QPluginLoader loader(filePath);
    // Missing symbols are found now and not at the first click.
    loader.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    const UIPluginMetaData metaData(loader.metaData());
    report = UIPluginReport();
    report.filePath = filePath;
    report.version = metaData.Version();
    report.id = metaData.Id();
    report.reason = metaData.Fault(takenIds);
    if (!report.reason.isEmpty())
        return UIPluginEntry();

    UIPluginEntry entry = EntryOf(metaData);
    entry.root.reset(loader.instance());
    if (!entry.root) {
        report.reason = loader.errorString();
        return UIPluginEntry();
    }
    entry.plugin = qobject_cast<UIPlugin *>(entry.root.get());
    if (!entry.plugin) {
        report.reason = UIPluginLoader::tr("its root object is not a panel");
        return UIPluginEntry();
    }
    report.loaded = true;
    return entry;
}
