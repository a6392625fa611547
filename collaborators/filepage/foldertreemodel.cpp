// SPDX-License-Identifier: GPL-3.0-or-later
#include "foldertreemodel.h"

#include "filenametext.h"
#include "foldertreeworker.h"

#include <QApplication>
#include <QSet>
#include <QStyle>

#include <algorithm>

FolderTreeModel::FolderTreeModel(QObject *parent)
    : QAbstractItemModel(parent)
    , m_top(std::make_unique<Node>())
    , m_worker(new FolderTreeWorker)
{
    auto root = std::make_unique<Node>();
    root->name = "/";
    root->parent = m_top.get();
    m_top->children.push_back(std::move(root));
    m_top->isRead = true;

    qRegisterMetaType<FolderBranches>();
    m_worker->moveToThread(&m_thread);
    connect(&m_thread, SIGNAL(finished()), m_worker, SLOT(deleteLater()));
    connect(m_worker, SIGNAL(signalRead(QString,FolderBranches)), this, SLOT(slotRead(QString,FolderBranches)));
    connect(m_worker, SIGNAL(signalChanged(QString)), this, SLOT(slotChanged(QString)));
    m_thread.setObjectName("FolderTree");
    m_thread.start(QThread::LowPriority);
}

FolderTreeModel::~FolderTreeModel()
{
    m_thread.quit();
    m_thread.wait();
}

void FolderTreeModel::SetWatched(bool watched)
{
    m_isWatched = watched;
    Watch();
    if (!watched)
        return;
    QStringList read;
    CollectRead(m_top->children.front().get(), read);
    for (const QString &path : qAsConst(read))
        slotChanged(path);
}

QModelIndex FolderTreeModel::Seek(const QString &path)
{
    m_sought = path;
    Node *known = Known(path);
    if (!known->isRead && PathOf(known) != path)
        Ask(known);
    return IndexOf(known);
}

FolderTreeModel::Node *FolderTreeModel::Known(const QString &path) const
{
    Node *node = m_top->children.front().get();
    const QStringList names = path.split('/', Qt::SkipEmptyParts);
    for (const QString &name : names) {
        const auto child = std::find_if(node->children.begin(), node->children.end(),
                                        [&](const auto &one) { return one->name == name; });
        if (child == node->children.end())
            break;
        node = child->get();
    }
    return node;
}

void FolderTreeModel::Ask(Node *node)
{
    if (node->isAsked)
        return;
    node->isAsked = true;
    const QString path = PathOf(node);
    // A hidden folder is shown only when somebody goes there.
    const QString prefix = path.endsWith('/') ? path : path + '/';
    const QString always = m_sought.startsWith(prefix) ? m_sought.mid(prefix.size()).section('/', 0, 0) : QString();
    QMetaObject::invokeMethod(m_worker, "slotRead", Q_ARG(QString, path), Q_ARG(QString, always));
}

void FolderTreeModel::slotChanged(const QString &path)
{
    Node *node = Known(path);
    if (PathOf(node) == path)
        Ask(node);
}

void FolderTreeModel::slotRead(const QString &path, const FolderBranches &branches)
{
    Node *node = Known(path);
    if (PathOf(node) != path)
        return; // it is gone meanwhile
    node->isAsked = false;
    const bool isNew = !node->isRead;
    node->isRead = true;
    node->fault = branches.fault;
    Take(node, branches.names);
    const QModelIndex index = IndexOf(node);
    emit dataChanged(index, index); // whether it can be opened
    if (isNew)
        Watch();
    if (isNew && (m_sought.startsWith(path + '/') || path == "/"))
        emit signalNearer();
}

/// `names` are those that there are now, in order.
void FolderTreeModel::Take(Node *node, const QStringList &names)
{
    const QModelIndex parent = IndexOf(node);
    const QSet<QString> wanted(names.begin(), names.end());
    for (int row = int(node->children.size()) - 1; row >= 0; --row) {
        if (wanted.contains(node->children[size_t(row)]->name))
            continue;
        beginRemoveRows(parent, row, row);
        node->children.erase(node->children.begin() + row);
        endRemoveRows();
    }
    const auto isKnown = [node](int row, const QString &name) {
        return row < int(node->children.size()) && node->children[size_t(row)]->name == name;
    };
    for (int row = 0; row < names.size(); ++row) {
        if (isKnown(row, names[row]))
            continue;
        int behind = row + 1; // all new ones in a row at once
        while (behind < names.size() && !isKnown(row, names[behind]))
            ++behind;
        beginInsertRows(parent, row, behind - 1);
        std::vector<std::unique_ptr<Node>> added;
        for (int i = row; i < behind; ++i) {
            added.push_back(std::make_unique<Node>());
            added.back()->name = names[i];
            added.back()->parent = node;
        }
        node->children.insert(node->children.begin() + row, std::make_move_iterator(added.begin()),
                              std::make_move_iterator(added.end()));
        endInsertRows();
        row = behind - 1;
    }
}

void FolderTreeModel::Watch()
{
    QStringList paths;
    if (m_isWatched)
        CollectRead(m_top->children.front().get(), paths);
    QMetaObject::invokeMethod(m_worker, "slotWatch", Q_ARG(QStringList, paths));
}

void FolderTreeModel::CollectRead(const Node *node, QStringList &paths) const
{
    if (!node->isRead)
        return;
    paths << PathOf(node);
    for (const auto &child : node->children)
        CollectRead(child.get(), paths);
}

FolderTreeModel::Node *FolderTreeModel::NodeOf(const QModelIndex &index) const
{
    return index.isValid() ? static_cast<Node *>(index.internalPointer()) : m_top.get();
}

QModelIndex FolderTreeModel::IndexOf(const Node *node) const
{
    if (!node->parent)
        return QModelIndex();
    const auto &siblings = node->parent->children;
    const auto place = std::find_if(siblings.begin(), siblings.end(), [&](const auto &one) { return one.get() == node; });
    return createIndex(int(place - siblings.begin()), 0, const_cast<Node *>(node));
}

QString FolderTreeModel::PathOf(const Node *node) const
{
    if (node->parent == m_top.get())
        return node->name;
    const QString parent = PathOf(node->parent);
    return parent.endsWith('/') ? parent + node->name : parent + '/' + node->name;
}

QModelIndex FolderTreeModel::index(int row, int column, const QModelIndex &parent) const
{
    const Node *node = NodeOf(parent);
    if (column != 0 || row < 0 || row >= int(node->children.size()))
        return QModelIndex();
    return createIndex(row, 0, node->children[size_t(row)].get());
}

QModelIndex FolderTreeModel::parent(const QModelIndex &index) const
{
    return index.isValid() ? IndexOf(NodeOf(index)->parent) : QModelIndex();
}

int FolderTreeModel::rowCount(const QModelIndex &parent) const
{
    return int(NodeOf(parent)->children.size());
}

int FolderTreeModel::columnCount(const QModelIndex &) const
{
    return 1;
}

QVariant FolderTreeModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const Node *node = NodeOf(index);
    switch (role) {
    case Qt::DisplayRole:
        return FileNameText(node->name);
    case Qt::ToolTipRole:
        return FileNameText(node->fault.isEmpty() ? PathOf(node) : node->fault).toHtmlEscaped();
    case Qt::DecorationRole:
        return QApplication::style()->standardIcon(QStyle::SP_DirIcon);
    case PathRole:
        return PathOf(node);
    default:
        return QVariant();
    }
}

bool FolderTreeModel::hasChildren(const QModelIndex &parent) const
{
    const Node *node = NodeOf(parent);
    return !node->isRead || !node->children.empty();
}

bool FolderTreeModel::canFetchMore(const QModelIndex &parent) const
{
    const Node *node = NodeOf(parent);
    return !node->isRead && !node->isAsked;
}

void FolderTreeModel::fetchMore(const QModelIndex &parent)
{
    if (canFetchMore(parent))
        Ask(NodeOf(parent));
}
