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
        UIPluginReport report;
        UIPluginEntry entry;
    };
    /// A panel's place in a tab widget.
    struct Page
    {
        QPointer<QScrollArea> area;
        QString title;
    };

    void Load(const QString &filePath, QWidget *parent, UIManagerBase *manager);
    void TakeOut(const LoadedPlugin &loaded, const QString &reason);
    void FillPage(int id);
    QWidget *PanelOf(int id) const;
    const Source *SourceOf(int id) const;

    std::vector<Source> sources;
    QSet<int> tabIds; ///< empty: not known
    QList<LoadedPlugin> plugins;
    QHash<int, Page> pages;
    QPointer<QTabWidget> bottomTabs;
};

void UIManagerBase::Private::Load(const QString &filePath, QWidget *parent, UIManagerBase *manager)
{
    UIPluginReport report;
    Source source;
    source.entry = UIPluginLoader::Load(filePath, Registry().takenIds, report);
    report.title = TitleText(*manager, report.title);
    source.entry.title = report.title;
    if (report.loaded && !source.entry.isBottomPage && !tabIds.isEmpty() && !tabIds.contains(report.id))
        report.reason = tr("no page here has a tab with the id %1; give it the place \"bottom\" and a title")
                            .arg(report.id);
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
    source.report = report;
    sources.push_back(std::move(source));
}

/// As if it had not been loaded. One of its own events may have brought us here, so its objects stay until that is over.
void UIManagerBase::Private::TakeOut(const LoadedPlugin &loaded, const QString &reason)
{
    const auto source = std::find_if(sources.begin(), sources.end(),
                                     [&](const Source &other) { return other.report.id == loaded.id; });
    if (source == sources.end())
        return; // it was brought up to date on the way and failed then, too
    source->report.loaded = false;
    source->report.reason = reason;
    AddReport(source->report);
    source->entry.root.release()->deleteLater();
    sources.erase(source);
    plugins.erase(std::remove_if(plugins.begin(), plugins.end(),
                                 [&](const LoadedPlugin &other) { return other.id == loaded.id; }),
                  plugins.end());
    Registry().takenIds.remove(loaded.id);

    if (QScrollArea *area = pages.value(loaded.id).area) {
        area->takeWidget();
        FillPage(loaded.id);
    }
    if (QWidget *panel = loaded.widget) {
        BottomPages::Remove(panel);
        panel->setParent(nullptr);
        panel->deleteLater();
    }
}

void UIManagerBase::Private::FillPage(int id)
{
    const Page &page = pages[id];
    if (QWidget *panel = PanelOf(id)) {
        page.area->setWidget(panel);
        return;
    }
    Registry().missing.insert(id, page.title);
    auto *notice = new QLabel(tr("The panel \"%1\" is not installed.").arg(page.title), page.area);
    notice->setAlignment(Qt::AlignCenter);
    notice->setWordWrap(true);
    page.area->setWidget(notice);
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
        std::find_if(sources.begin(), sources.end(), [=](const Source &source) { return source.report.id == id; });
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
    for (const Private::Page &page : qAsConst(m_private->pages)) {
        if (page.area && !page.area->parent())
            delete page.area;
    }
    for (const Private::Source &source : m_private->sources)
        Registry().takenIds.remove(source.report.id);
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
        const QList<LoadedPlugin> plugins = m_private->plugins; // one that fails is taken out
        for (const LoadedPlugin &loaded : plugins)
            UpdatePlugin(loaded);
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
    Private::Page &page = m_private->pages[id];
    if (page.area)
        return page.area;
    page.title = title;
    page.area = new QScrollArea; // reparented by the tab widget that takes it
    page.area->setObjectName(group + "ScrollArea");
    page.area->setFrameShape(QFrame::NoFrame);
    page.area->setWidgetResizable(true);
    page.area->setFocusPolicy(Qt::ClickFocus); // the Tab key goes on to what is in it
    m_private->FillPage(id);
    return page.area;
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
        table->setItem(row, 2, new QTableWidgetItem(source->report.version));
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

void UIManagerBase::SetTabIds(const QSet<int> &ids) { m_private->tabIds = ids; }

void UIManagerBase::UpdatePlugin(const LoadedPlugin &loaded)
{
    const QString reason = UIPluginLoader::Update(loaded.plugin);
    if (!reason.isEmpty())
        m_private->TakeOut(loaded, reason);
}

void UIManagerBase::slotPanelDestroyed(QObject *panel)
{
    QList<LoadedPlugin> &plugins = m_private->plugins;
    const auto isGone = [=](const LoadedPlugin &loaded) { return !loaded.widget || loaded.widget == panel; };
    plugins.erase(std::remove_if(plugins.begin(), plugins.end(), isGone), plugins.end());
}
