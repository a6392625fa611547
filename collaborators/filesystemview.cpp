// SPDX-License-Identifier: GPL-3.0-or-later
#include "filesystemview.h"

#include <QDir>
#include <QFileSystemModel>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardPaths>
#include <QTreeView>

FileSystemView::FileSystemView(QWidget *parent)
    : QWidget(parent)
    , m_model(new QFileSystemModel(this))
    , m_tree(new QTreeView(this))
    , m_path(new QLineEdit(this))
{
    auto *backButton = new QPushButton(tr("Back"), this);
    backButton->setObjectName("pushButtonBack");
    m_path->setObjectName("lineEditPath");
    m_tree->setObjectName("treeViewFolders");
    auto *row = new QHBoxLayout;
    row->addWidget(m_path);
    row->addWidget(backButton);
    auto *column = new QVBoxLayout(this);
    column->addLayout(row);
    column->addWidget(m_tree);

    m_model->setFilter(QDir::Dirs | QDir::Drives | QDir::NoDotAndDotDot);
    m_model->setOption(QFileSystemModel::DontWatchForChanges);
    m_model->setOption(QFileSystemModel::DontUseCustomDirectoryIcons);
    m_tree->setModel(m_model);
    m_tree->setHeaderHidden(true);
    for (int column = 1; column < m_model->columnCount(); ++column)
        m_tree->hideColumn(column);

    connect(m_tree, SIGNAL(clicked(QModelIndex)), this, SLOT(slotFolderClicked(QModelIndex)));
    connect(m_tree, SIGNAL(activated(QModelIndex)), this, SLOT(slotFolderClicked(QModelIndex)));
    connect(m_path, SIGNAL(returnPressed()), this, SLOT(slotPathEntered()));
    connect(backButton, SIGNAL(clicked()), this, SIGNAL(sglSwitchToPreviousView()));
}

void FileSystemView::StartFolderChecked()
{
    m_model->setOption(QFileSystemModel::DontWatchForChanges, false);
    m_model->setRootPath(QDir::rootPath());
    if (!m_folder.isEmpty())
        return;
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    slotShowFolder(QDir(pictures).exists() ? pictures : QDir::homePath());
}

void FileSystemView::StopFolderChecked()
{
    m_model->setOption(QFileSystemModel::DontWatchForChanges, true);
}

void FileSystemView::BindingConnectionsWithWidget(QWidget *fileThumbnail)
{
    connect(this, SIGNAL(signalFolderChanged(QString)), fileThumbnail, SLOT(slotOpenFileDirectory(QString)));
    connect(fileThumbnail, SIGNAL(signalFolderChanged(QString)), this, SLOT(slotShowFolder(QString)));
}

void FileSystemView::slotShowFolder(QString folder)
{
    const QString path = QDir::cleanPath(folder);
    if (folder.isEmpty() || path == m_folder || !QDir(path).exists())
        return;
    m_folder = path;
    m_path->setText(QDir::toNativeSeparators(path));
    const QModelIndex index = m_model->index(path);
    m_tree->setCurrentIndex(index);
    m_tree->expand(index);
    m_tree->scrollTo(index);
    emit signalFolderChanged(path);
}

void FileSystemView::slotFolderClicked(const QModelIndex &index)
{
    slotShowFolder(m_model->filePath(index));
}

void FileSystemView::slotPathEntered()
{
    slotShowFolder(QDir::fromNativeSeparators(m_path->text()));
    m_path->setText(QDir::toNativeSeparators(m_folder)); // a folder that is not there was refused
}
