// SPDX-License-Identifier: GPL-3.0-or-later
#include "filesystemview.h"

#include "foldertreemodel.h"

#include <QDir>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardPaths>
#include <QTimer>
#include <QTreeView>

namespace {

/// As typed: "~" stands for the home folder.
QString PathTyped(const QString &text)
{
    const QString path = QDir::fromNativeSeparators(text);
    return path == "~" || path.startsWith("~/") ? QDir::homePath() + path.mid(1) : path;
}

} // namespace

FileSystemView::FileSystemView(QWidget *parent)
    : QWidget(parent)
    , m_model(new FolderTreeModel(this))
    , m_path(new QLineEdit(this))
{
    auto *backButton = new QPushButton(tr("Back"), this);
    backButton->setObjectName("pushButtonBack");
    backButton->setToolTip(tr("Back to the view before (Ctrl+P)"));
    m_path->setObjectName("lineEditPath");
    m_path->setAccessibleName(tr("Folder"));
    m_path->setPlaceholderText(tr("Path of a folder"));
    m_path->setToolTip(tr("Type the path of a folder and press Enter"));
    m_tree = new QTreeView(this); // the Tab key comes to them in the order they are made
    m_tree->setObjectName("treeViewFolders");
    m_tree->setAccessibleName(tr("Folders"));
    auto *row = new QHBoxLayout;
    row->addWidget(m_path);
    row->addWidget(backButton);
    auto *column = new QVBoxLayout(this);
    column->addLayout(row);
    column->addWidget(m_tree);

    m_tree->setHeaderHidden(true);
    m_tree->setUniformRowHeights(true);
    m_tree->setModel(m_model);

    connect(m_model, SIGNAL(signalNearer()), this, SLOT(slotNearer()));
    connect(m_tree, SIGNAL(clicked(QModelIndex)), this, SLOT(slotFolderClicked(QModelIndex)));
    connect(m_tree, SIGNAL(activated(QModelIndex)), this, SLOT(slotFolderClicked(QModelIndex)));
    connect(m_path, SIGNAL(returnPressed()), this, SLOT(slotPathEntered()));
    connect(backButton, SIGNAL(clicked()), this, SIGNAL(sglSwitchToPreviousView()));
}

void FileSystemView::StartFolderChecked()
{
    m_model->SetWatched(true);
    if (!m_folder.isEmpty()) {
        slotNearer();
        return;
    }
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    slotShowFolder(QDir(pictures).exists() ? pictures : QDir::homePath());
}

void FileSystemView::StopFolderChecked()
{
    m_model->SetWatched(false);
}

void FileSystemView::BindingConnectionsWithWidget(QWidget *fileThumbnail)
{
    connect(this, SIGNAL(signalFolderChanged(QString)), fileThumbnail, SLOT(slotOpenFileDirectory(QString)));
    connect(fileThumbnail, SIGNAL(signalFolderChanged(QString)), this, SLOT(slotShowFolder(QString)));
}

void FileSystemView::slotShowFolder(QString folder)
{
    const QString path = QDir::cleanPath(folder);
    if (folder.isEmpty() || !QDir::isAbsolutePath(path) || path == m_folder)
        return;
    m_folder = path;
    m_path->setText(QDir::toNativeSeparators(path));
    slotNearer();
    emit signalFolderChanged(path);
}

void FileSystemView::slotFolderClicked(const QModelIndex &index)
{
    slotShowFolder(index.data(FolderTreeModel::PathRole).toString());
}

void FileSystemView::slotPathEntered()
{
    slotShowFolder(PathTyped(m_path->text()));
    m_path->setText(QDir::toNativeSeparators(m_folder)); // what is no path was refused
}

/// The tree is read from the top down; each step leads nearer to the folder.
void FileSystemView::slotNearer()
{
    const QModelIndex index = m_model->Seek(m_folder);
    m_tree->setCurrentIndex(index);
    m_tree->expand(index);
    m_tree->scrollTo(index);
    // The view puts new rows in their places a moment later.
    QTimer::singleShot(0, m_tree, [this] { m_tree->scrollTo(m_tree->currentIndex()); });
}
