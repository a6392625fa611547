// SPDX-License-Identifier: GPL-3.0-or-later
#include "uipluginloader.h"

#include "uiplugin.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonObject>
#include <QLibrary>
#include <QPluginLoader>

namespace {

/// A whole number that is not negative, otherwise -1.
int IdOf(const QJsonObject &metaData)
{
    const double value = metaData.value("id").toDouble(-1.0);
    const int id = metaData.value("id").toInt(-1);
    return id >= 0 && value == id ? id : -1;
}

/// Why the metadata does not describe a panel that can be placed; empty when it does.
QString FaultOf(const QJsonObject &information, const QSet<int> &takenIds)
{
    const QJsonObject metaData = information.value("MetaData").toObject();
    if (information.isEmpty())
        return UIPluginLoader::tr("it is not a plug-in");
    if (information.value("IID").toString() != GLOBALUI_UIPLUGIN_IID)
        return UIPluginLoader::tr("it is a plug-in for another interface: \"%1\"")
            .arg(information.value("IID").toString());
    const int id = IdOf(metaData);
    if (id < 0)
        return UIPluginLoader::tr("its metadata has no valid \"id\"");
    if (takenIds.contains(id))
        return UIPluginLoader::tr("another plug-in has the id %1 already").arg(id);
    const QString place = metaData.value("place").toString();
    if (place != "tab" && place != "bottom")
        return UIPluginLoader::tr("its metadata has no valid \"place\"");
    if (place == "bottom" && metaData.value("title").toString().isEmpty())
        return UIPluginLoader::tr("its metadata has no \"title\" for the bottom page");
    const QString page = metaData.value("page").toString("both");
    if (page != "camera" && page != "image" && page != "both")
        return UIPluginLoader::tr("its metadata has no valid \"page\"");
    return QString();
}

UIPluginEntry EntryOf(const QJsonObject &metaData)
{
    UIPluginEntry entry;
    const QString page = metaData.value("page").toString("both");
    entry.isBottomPage = metaData.value("place").toString() == "bottom";
    entry.title = metaData.value("title").toString();
    entry.belongsToCamera = page != "image";
    entry.belongsToImage = page != "camera";
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
    const QJsonObject information = loader.metaData();
    const QJsonObject metaData = information.value("MetaData").toObject();
    report = UIPluginReport();
    report.filePath = filePath;
    report.version = metaData.value("version").toString();
    report.id = IdOf(metaData);
    report.reason = FaultOf(information, takenIds);
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
