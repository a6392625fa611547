// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "folderreading.h"

#include <QAbstractItemModel>
#include <QThread>

#include <memory>
#include <vector>

class FolderTreeWorker;

/// The folders of the computer as a tree that is read, branch by branch, when somebody looks: in a thread of
/// its own, and only folders, however many files lie beside them. GUI thread.
class FolderTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Role
    {
        PathRole = Qt::UserRole
    };

    explicit FolderTreeModel(QObject *parent = nullptr);
    ~FolderTreeModel() override;

    /// Changes of the folders read so far are followed from now on, or not any more. Reads them anew at once.
    void SetWatched(bool watched);
    /// The folder, or the nearest one above it that is known by now. What is missing is read, and
    /// signalNearer() tells.
    QModelIndex Seek(const QString &path);

    QModelIndex index(int row, int column, const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool hasChildren(const QModelIndex &parent = QModelIndex()) const override;
    bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;

signals:
    /// A folder on the way to the one sought was read.
    void signalNearer();

private slots:
    void slotRead(const QString &path, const FolderBranches &branches);
    void slotChanged(const QString &path);

private:
    struct Node
    {
        QString name;
        Node *parent = nullptr;
        std::vector<std::unique_ptr<Node>> children;
        bool isRead = false;
        bool isAsked = false;
        QString fault;
    };

    Node *NodeOf(const QModelIndex &index) const;
    QModelIndex IndexOf(const Node *node) const;
    QString PathOf(const Node *node) const;
    /// The deepest known node on the way to `path`.
    Node *Known(const QString &path) const;
    void Ask(Node *node);
    void Take(Node *node, const QStringList &names);
    void Watch();
    void CollectRead(const Node *node, QStringList &paths) const;

    std::unique_ptr<Node> m_top; ///< above "/", invisible
    QString m_sought;
    bool m_isWatched = false;
    QThread m_thread;
    FolderTreeWorker *m_worker; ///< lives in the thread
};
Q_DECLARE_METATYPE(FolderBranches)
