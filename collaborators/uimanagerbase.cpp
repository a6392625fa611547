// SPDX-License-Identifier: GPL-3.0-or-later
#include "uimanagerbase.h"

#include "bottompages.h"
#include "uiplugin.h"
#include "viewcodes.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QHash>
#include <QLabel>
#include <QMap>
#include <QScrollArea>
#include <QStandardPaths>
#include <QTabWidget>
#include <QTableWidget>

#include <algorithm>
#include <vector>

namespace {

/// What all managers share. GUI thread.
struct ManagerRegistry
{
    QSet<int> takenIds;
    QList<UIPluginReport> reports;
    QMap<int, QString> missing; ///< id and title of the panels that were asked for and not found
    qint64 loadNs = 0;
    int managers = 0;
    int leftPage = CameraControlPage; ///< the one last shown
};

ManagerRegistry &Registry()
{
    static ManagerRegistry registry;
    return registry;
}

/// A file that is looked at again replaces what was reported of it.
void AddReport(const UIPluginReport &report)
{
    QList<UIPluginReport> &reports = Registry().reports;
    const auto known = std::find_if(reports.begin(), reports.end(), [&](const UIPluginReport &old) {
        return old.filePath == report.filePath;
    });
    if (known != reports.end())
        *known = report;
    else
        reports.append(report);
    if (!report.loaded)
        qWarning("GlobalUI: plug-in %s is not loaded: %s", qPrintable(report.filePath),
                 qPrintable(report.reason));
}

/// A plug-in brings no catalogue: its title is a text of the manager that loads it.
QString TitleText(const UIManagerBase &manager, const QString &title)
{
    if (title.isEmpty())
        return title;
    return QCoreApplication::translate(manager.metaObject()->className(), title.toUtf8().constData());
}

} // namespace

class UIManagerBase::Private
{
public:
    /// A loaded plug-in's metadata and root object; same order as `plugins` began with.
    struct Source
    {
        int id = -1;
        QString version;
        UIPluginEntry entry;
    };

    void Load(const QString &filePath, QWidget *parent, UIManagerBase *manager);
    QWidget *PanelOf(int id) const;
    const Source *SourceOf(int id) const;

    std::vector<Source> sources;
    QList<LoadedPlugin> plugins;
    QHash<int, QPointer<QScrollArea>> pages;
    QPointer<QTabWidget> bottomTabs;
};

void UIManagerBase::Private::Load(const QString &filePath, QWidget *parent, UIManagerBase *manager)
{
    UIPluginReport report;
    Source source;
    source.entry = UIPluginLoader::Load(filePath, Registry().takenIds, report);
    report.title = TitleText(*manager, report.title);
    source.entry.title = report.title;
    AddReport(report);
    if (!report.loaded)
        return;

    QWidget *panel = source.entry.panel;
    panel->setParent(parent);
    panel->hide();
    connect(panel, SIGNAL(destroyed(QObject*)), manager, SLOT(slotPanelDestroyed(QObject*)));
    plugins.append({report.id, source.entry.plugin, panel});
    Registry().takenIds.insert(report.id);
    Registry().missing.remove(report.id);
    source.id = report.id;
    source.version = report.version;
    sources.push_back(std::move(source));
}

QWidget *UIManagerBase::Private::PanelOf(int id) const
{
    for (const LoadedPlugin &loaded : plugins) {
        if (loaded.id == id)
            return loaded.widget;
    }
    return nullptr;
}

const UIManagerBase::Private::Source *UIManagerBase::Private::SourceOf(int id) const
{
    const auto found =
        std::find_if(sources.begin(), sources.end(), [=](const Source &source) { return source.id == id; });
    return found != sources.end() ? &*found : nullptr;
}

UIManagerBase::UIManagerBase(QObject *parent)
    : QObject(parent)
    , m_private(new Private)
{
    ++Registry().managers;
}

UIManagerBase::~UIManagerBase()
{
    for (const LoadedPlugin &loaded : qAsConst(m_private->plugins)) {
        disconnect(loaded.widget, nullptr, this, nullptr);
        if (!loaded.widget->parent())
            delete loaded.widget; // nobody has placed it
    }
    for (const QPointer<QScrollArea> &page : qAsConst(m_private->pages)) {
        if (page && !page->parent())
            delete page;
    }
    for (const Private::Source &source : m_private->sources)
        Registry().takenIds.remove(source.id);
    if (--Registry().managers > 0)
        return;
    Registry().leftPage = CameraControlPage;
    Registry().missing.clear();
}

void UIManagerBase::LoadUIPluginAndInitUI(const QString &directory, QWidget *parent, bool complete)
{
    QElapsedTimer timer;
    timer.start();
    for (const QString &file : UIPluginLoader::FindFiles(PluginRoots(), directory))
        m_private->Load(file, parent, this);
    if (complete) {
        for (const LoadedPlugin &loaded : qAsConst(m_private->plugins))
            loaded.plugin->UpdateUI();
    }
    Registry().loadNs += timer.nsecsElapsed();
}

QWidget *UIManagerBase::GetScrollArea(int firstId, int lastId, const QStringList &tabNames,
                                      const QString &group)
{
    auto *tabs = new QTabWidget; // the caller owns it
    tabs->setObjectName(group + "TabWidget");
    for (int id = firstId; id <= lastId; ++id) {
        const QString name = tabNames.value(id - firstId);
        tabs->addTab(GetWidget(id, name, group), name);
    }
    return tabs;
}

QWidget *UIManagerBase::GetWidget(int id, const QString &title, const QString &group)
{
    QPointer<QScrollArea> &page = m_private->pages[id];
    if (page)
        return page;
    page = new QScrollArea; // reparented by the tab widget that takes it
    page->setObjectName(group + "ScrollArea");
    page->setFrameShape(QFrame::NoFrame);
    page->setWidgetResizable(true);
    if (QWidget *panel = m_private->PanelOf(id)) {
        page->setWidget(panel);
        return page;
    }
    Registry().missing.insert(id, title);
    auto *notice = new QLabel(tr("The panel \"%1\" is not installed.").arg(title), page);
    notice->setAlignment(Qt::AlignCenter);
    notice->setWordWrap(true);
    page->setWidget(notice);
    return page;
}

void UIManagerBase::SetBottomControlUIPanel(QTabWidget *bottomTabs)
{
    m_private->bottomTabs = bottomTabs;
    QList<LoadedPlugin> ordered = m_private->plugins;
    std::stable_sort(ordered.begin(), ordered.end(),
                     [](const auto &a, const auto &b) { return a.id < b.id; });
    BottomPages *pages = BottomPages::Of(bottomTabs);
    for (const LoadedPlugin &loaded : qAsConst(ordered)) {
        const UIPluginEntry &entry = m_private->SourceOf(loaded.id)->entry;
        if (!entry.isBottomPage)
            continue;
        pages->Add({loaded.widget, entry.title, entry.belongsToCamera, entry.belongsToImage});
    }
    pages->Show(Registry().leftPage);
}

void UIManagerBase::setBottomPanelCurrentIndex(const QString &tabText)
{
    QTabWidget *tabs = m_private->bottomTabs;
    for (int i = 0; tabs && i < tabs->count(); ++i) {
        if (tabs->tabText(i) == tabText) {
            tabs->setCurrentIndex(i);
            return;
        }
    }
}

void UIManagerBase::UpdateBottomTabWidget(int leftPage)
{
    Registry().leftPage = leftPage;
    for (BottomPages *pages : BottomPages::All())
        pages->Show(leftPage);
}

void UIManagerBase::AddUIConfigItem(QTableWidget *table, int row)
{
    for (const LoadedPlugin &loaded : qAsConst(m_private->plugins)) {
        const Private::Source *source = m_private->SourceOf(loaded.id);
        table->insertRow(row);
        table->setItem(row, 0, new QTableWidgetItem(QString::number(loaded.id)));
        table->setItem(row, 1, new QTableWidgetItem(source->entry.title));
        table->setItem(row, 2, new QTableWidgetItem(source->version));
        ++row;
    }
}

QStringList UIManagerBase::PluginRoots()
{
    const QString programFolder = QCoreApplication::applicationDirPath();
    QStringList roots;
    roots << programFolder;
    roots << QDir::cleanPath(QDir(programFolder + "/..").absoluteFilePath(GLOBALUI_PLUGIN_FOLDER));
    roots << qEnvironmentVariable("GLOBALUI_PLUGIN_PATH").split(QDir::listSeparator(), Qt::SkipEmptyParts);
    roots << QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/globalui";
    return roots;
}

QList<UIPluginReport> UIManagerBase::PluginReports()
{
    QList<UIPluginReport> reports = Registry().reports;
    const QMap<int, QString> &missing = Registry().missing;
    for (auto panel = missing.cbegin(); panel != missing.cend(); ++panel) {
        UIPluginReport report;
        report.id = panel.key();
        report.title = panel.value();
        report.reason = tr("no plug-in brings this panel");
        reports.append(report);
    }
    return reports;
}

int UIManagerBase::PluginLoadMs()
{
    constexpr qint64 nsPerMs = 1000000;
    return int(Registry().loadNs / nsPerMs);
}

const QList<UIManagerBase::LoadedPlugin> &UIManagerBase::Plugins() const
{
    return m_private->plugins;
}

void UIManagerBase::slotPanelDestroyed(QObject *panel)
{
    QList<LoadedPlugin> &plugins = m_private->plugins;
    const auto isGone = [=](const LoadedPlugin &loaded) { return !loaded.widget || loaded.widget == panel; };
    plugins.erase(std::remove_if(plugins.begin(), plugins.end(), isGone), plugins.end());
}
