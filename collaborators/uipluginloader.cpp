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

/// Runs code of a plug-in; what it throws ends here. False then, and what it says of itself, if anything.
template<typename Function>
bool RunGuarded(Function function, QString *what)
{
    try {
        function();
        return true;
    } catch (const std::exception &exception) {
        *what = QString::fromLocal8Bit(exception.what());
    } catch (...) {
        what->clear();
    }
    return false;
}

QString MadeFault(const QString &what)
{
    return what.isEmpty() ? UIPluginLoader::tr("it failed when it was made")
                          : UIPluginLoader::tr("it failed when it was made: %1").arg(what);
}

/// Nothing of the file has run before. The entry is whole when no reason against it comes back.
QString MakePanel(QPluginLoader *loader, UIPluginEntry *entry)
{
    QString what;
    if (!RunGuarded([&] { entry->root.reset(loader->instance()); }, &what))
        return MadeFault(what);
    if (!entry->root)
        return loader->errorString();
    entry->plugin = qobject_cast<UIPlugin *>(entry->root.get());
    if (!entry->plugin)
        return UIPluginLoader::tr("its root object is not a panel");
    if (!RunGuarded([&] { entry->panel = entry->plugin->GetWidget(); }, &what))
        return MadeFault(what);
    return entry->panel ? QString() : UIPluginLoader::tr("it has no panel");
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
    const UIPluginMetaData metaData(loader.metaData(),
                                    loader.metaData().isEmpty() ? loader.errorString() : QString());
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

QString UIPluginLoader::Update(UIPlugin *plugin)
{
    QString what;
    if (RunGuarded([=] { plugin->UpdateUI(); }, &what))
        return QString();
    return what.isEmpty() ? UIPluginLoader::tr("it failed when it was brought up to date")
                          : UIPluginLoader::tr("it failed when it was brought up to date: %1").arg(what);
}
