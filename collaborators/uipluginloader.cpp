// SPDX-License-Identifier: GPL-3.0-or-later
#include "uipluginloader.h"

#include "uiplugin.h"
#include "uipluginmetadata.h"

#include <QDir>
#include <QFileInfo>
#include <QLibrary>
#include <QPluginLoader>

#include <exception>

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

/// Runs code of a plug-in; what it throws ends here and becomes the reason.
template<typename Function>
void RunGuarded(Function function, QString *reason)
{
    try {
        function();
    } catch (const std::exception &exception) {
        *reason = UIPluginLoader::tr("it failed when it was made: %1").arg(QString::fromLocal8Bit(exception.what()));
    } catch (...) {
        *reason = UIPluginLoader::tr("it failed when it was made");
    }
}

/// Nothing of the file has run before. The entry is whole when no reason against it comes back.
QString MakePanel(QPluginLoader *loader, UIPluginEntry *entry)
{
    QString reason;
    RunGuarded([&] { entry->root.reset(loader->instance()); }, &reason);
    if (!entry->root)
        return reason.isEmpty() ? loader->errorString() : reason;
    entry->plugin = qobject_cast<UIPlugin *>(entry->root.get());
    if (!entry->plugin)
        return UIPluginLoader::tr("its root object is not a panel");
    RunGuarded([&] { entry->panel = entry->plugin->GetWidget(); }, &reason);
    if (!entry->panel && reason.isEmpty())
        return UIPluginLoader::tr("it has no panel");
    return reason;
}

} // namespace

QStringList UIPluginLoader::FindFiles(const QStringList &roots, const QString &directory)
{
    QStringList files;
    QSet<QString> seen;
    for (const QString &root : roots) {
        const QDir folder(QDir(root).filePath(directory));
        for (const QFileInfo &file : folder.entryInfoList(QDir::Files | QDir::System, QDir::Name)) {
            const QString canonicalPath = file.exists() ? file.canonicalFilePath() : file.absoluteFilePath();
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
    report = UIPluginReport();
    report.filePath = filePath;
    const QFileInfo file(filePath);
    if (!file.exists()) {
        report.reason = UIPluginLoader::tr("the file is missing: it is a link to %1").arg(file.symLinkTarget());
        return UIPluginEntry();
    }
    QPluginLoader loader(filePath);
    // Missing symbols are found now and not at the first click.
    loader.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    const UIPluginMetaData metaData(loader.metaData());
    report.title = metaData.Title();
    report.version = metaData.Version();
    report.id = metaData.Id();
    report.reason = metaData.Fault(takenIds);
    if (!report.reason.isEmpty())
        return UIPluginEntry();

    UIPluginEntry entry = EntryOf(metaData);
    report.reason = MakePanel(&loader, &entry);
    if (!report.reason.isEmpty())
        return UIPluginEntry();
    report.loaded = true;
    return entry;
}
