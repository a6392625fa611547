// SPDX-License-Identifier: GPL-3.0-or-later
#include "filesystemview.h"

#include <QDir>
#include <QFileSystemModel>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardPaths>
#include <QTimer>
#include <QTreeView>

FileSystemView::FileSystemView(QWidget *parent)
    : QWidget(parent)
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

    m_tree->setHeaderHidden(true);
    ReadFolders(false);

    connect(m_tree, SIGNAL(clicked(QModelIndex)), this, SLOT(slotFolderClicked(QModelIndex)));
    connect(m_tree, SIGNAL(activated(QModelIndex)), this, SLOT(slotFolderClicked(QModelIndex)));
    connect(m_path, SIGNAL(returnPressed()), this, SLOT(slotPathEntered()));
    connect(backButton, SIGNAL(clicked()), this, SIGNAL(sglSwitchToPreviousView()));
}

void FileSystemView::StartFolderChecked()
{
    if (m_checked)
        return;
    m_checked = true;
    ReadFolders(true);
    m_model->setRootPath(QDir::rootPath());
    if (!m_folder.isEmpty()) {
        ShowCurrentFolder();
        return;
    }
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    slotShowFolder(QDir(pictures).exists() ? pictures : QDir::homePath());
}

void FileSystemView::StopFolderChecked()
{
    m_checked = false;
    m_model->setOption(QFileSystemModel::DontWatchForChanges);
}

// A model that has stopped watching never watches again what it has read by then, so each start takes
// a new one.
void FileSystemView::ReadFolders(bool watch)
{
    auto *model = new QFileSystemModel(this);
    model->setFilter(QDir::Dirs | QDir::Drives | QDir::NoDotAndDotDot);
    model->setOption(QFileSystemModel::DontWatchForChanges, !watch);
    model->setOption(QFileSystemModel::DontUseCustomDirectoryIcons);
    connect(model, SIGNAL(directoryLoaded(QString)), this, SLOT(slotFolderRead(QString)));
    m_tree->setModel(model);
    for (int column = 1; column < model->columnCount(); ++column)
        m_tree->hideColumn(column);
    delete m_model;
    m_model = model;
    m_foldersRead.clear();
}

void FileSystemView::ShowCurrentFolder()
{
    const QModelIndex index = m_model->index(m_folder);
    m_tree->setCurrentIndex(index);
    m_tree->expand(index);
    m_tree->scrollTo(index);
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
    ShowCurrentFolder();
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

// Folders are read one after the other; what comes before the shown one pushes it out of sight.
void FileSystemView::slotFolderRead(QString folder)
{
    const bool isFirstTime = !m_foldersRead.contains(folder);
    m_foldersRead.insert(folder);
    if (!isFirstTime || !m_folder.startsWith(folder))
        return;
    // The model puts what it has read into order a moment later.
    QTimer::singleShot(0, this, [this] { m_tree->scrollTo(m_tree->currentIndex()); });
}
