// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "collaboratorsexport.h"
#include "uipluginloader.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QString>
#include <QStringList>

#include <memory>

class QTabWidget;
class QTableWidget;
class QWidget;
class UIPlugin;

/// Base of the control-panel managers: loads the UI plug-ins of a folder and hands their widgets
/// out, as tabs of a panel or as pages of the bottom tab widget. GUI thread.
class GLOBALUI_COLLABORATORS_EXPORT UIManagerBase : public QObject
{
    Q_OBJECT

public:
    explicit UIManagerBase(QObject *parent = nullptr);
    ~UIManagerBase() override;

    /// Loads every plug-in of `directory`, looked for below each of PluginRoots(). One that can't
    /// be loaded is skipped, logged with its reason and reported. With `complete` this was the
    /// manager's last folder: its panels show the state of the services for the first time.
    /// Titles are translated in the context of the manager's class. `parent` owns the panels until
    /// they are placed.
    void LoadUIPluginAndInitUI(const QString &directory, QWidget *parent, bool complete);
    /// A new tab widget with the panels firstId to lastId under `tabNames`, each in a scroll area.
    /// The caller owns it. `group` names it for the style sheet: "<group>TabWidget".
    QWidget *GetScrollArea(int firstId, int lastId, const QStringList &tabNames, const QString &group);
    /// The panel with this id in a scroll area; without such a plug-in a page that says so. There is
    /// one page per id: asked for again, it moves to its new place.
    QWidget *GetWidget(int id, const QString &title, const QString &group);
    /// Adds this manager's bottom pages to `bottomTabs`, those that belong to the left page last
    /// shown.
    void SetBottomControlUIPanel(QTabWidget *bottomTabs);
    /// Brings the bottom page with this text to the front.
    void setBottomPanelCurrentIndex(const QString &tabText);
    /// Shows the bottom pages that belong to this left page (a LeftPage), of all managers. Pages that
    /// are not theirs stay. The current page stays current if it is still there; otherwise the first
    /// one takes its place until it comes back. `currentChanged` is emitted once, if at all.
    static void UpdateBottomTabWidget(int leftPage);
    /// Adds the manager's rows to the application's table of configurable panels.
    virtual void AddUIConfigItem(QTableWidget *table, int row);

    /// Folders below which the plug-in folders stand, in the order they are searched.
    static QStringList PluginRoots();
    /// All plug-ins found so far, of all managers, in the order they were found; then the panels that were asked for
    /// and that none brings, by id.
    static QList<UIPluginReport> PluginReports();
    /// What loading them took so far, in all; what they have to show is not there before they are seen.
    static int PluginLoadMs();

protected:
    /// A plug-in that was loaded.
    struct LoadedPlugin
    {
        int id = -1;
        UIPlugin *plugin = nullptr;
        QPointer<QWidget> widget;
    };
    /// The tabs that this manager's pages ask for. A plug-in for another tab is reported as not seen; without this
    /// nothing is said of any.
    void SetTabIds(const QSet<int> &ids);
    /// Those whose panel still lives.
    const QList<LoadedPlugin> &Plugins() const;
    /// Lets one of them show the state anew. If it throws it is taken out of the list and reported as not loaded.
    void UpdatePlugin(const LoadedPlugin &loaded);

private slots:
    void slotPanelDestroyed(QObject *panel);

private:
    class Private;
    std::unique_ptr<Private> m_private;
};
