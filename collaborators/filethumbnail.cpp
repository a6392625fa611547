// SPDX-License-Identifier: GPL-3.0-or-later
#include "filethumbnail.h"

#include "globalclass.h"

#include <QDir>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QSet>
#include <QSignalBlocker>

namespace {

const QStringList PictureNames{"*.png", "*.jpg", "*.jpeg", "*.bmp", "*.tif", "*.tiff",
                               "*.fit", "*.fits", "*.fts", "*.spe"};
constexpr int IconSize = 64;   // design pixels
constexpr int GridWidth = 130; // design pixels
constexpr int GridHeight = 100;
constexpr int FewestToMerge = 2;

} // namespace

FileThumbnail::FileThumbnail(QWidget *parent)
    : QWidget(parent)
    , m_files(new QListWidget(this))
    , m_mergeButton(new QPushButton(tr("Merge"), this))
    , m_watcher(new QFileSystemWatcher(this))
{
    m_files->setObjectName("listWidgetFiles");
    m_files->setViewMode(QListView::IconMode);
    m_files->setResizeMode(QListView::Adjust);
    m_files->setMovement(QListView::Static);
    m_files->setUniformItemSizes(true);
    m_files->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_files->setIconSize(QSize(GlobalClass::GetActualSize(IconSize), GlobalClass::GetActualSize(IconSize)));
    m_files->setGridSize(
        QSize(GlobalClass::GetActualSize(GridWidth), GlobalClass::GetActualSize(GridHeight)));
    m_mergeButton->setObjectName("pushButtonMerge");
    m_mergeButton->setEnabled(false);
    m_mergeButton->hide();
    auto *row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(m_mergeButton);
    auto *column = new QVBoxLayout(this);
    column->addWidget(m_files);
    column->addLayout(row);

    connect(m_files, SIGNAL(itemDoubleClicked(QListWidgetItem*)),
            this, SLOT(slotFileActivated(QListWidgetItem*)));
    connect(m_files, SIGNAL(itemSelectionChanged()), this, SLOT(slotSelectionChanged()));
    connect(m_mergeButton, SIGNAL(clicked()), this, SLOT(slotMergeClicked()));
    connect(m_watcher, SIGNAL(directoryChanged(QString)), this, SLOT(slotUpdateFiles()));
}

void FileThumbnail::StartFolderChecked()
{
    m_checked = true;
    WatchFolder();
    slotUpdateFiles();
}

void FileThumbnail::StopFolderChecked()
{
    m_checked = false;
    WatchFolder();
}

void FileThumbnail::ConnectWithThumbnailList(QWidget *thumbnailList)
{
    connect(this, SIGNAL(signalOpenImage(QString,QObject*)),
            thumbnailList, SIGNAL(signalOpenImage(QString,QObject*)));
}

void FileThumbnail::slotSetMergeButtonVisible(bool visible)
{
    m_mergeButton->setVisible(visible);
}

void FileThumbnail::slotOpenFileDirectory(QString folder)
{
    const QString path = QDir::cleanPath(folder);
    if (folder.isEmpty() || path == m_folder || !QDir(path).exists())
        return;
    m_folder = path;
    WatchFolder();
    slotUpdateFiles();
    emit signalFolderChanged(path);
}

void FileThumbnail::WatchFolder()
{
    const QStringList watched = m_watcher->directories();
    if (!watched.isEmpty())
        m_watcher->removePaths(watched);
    if (m_checked && !m_folder.isEmpty())
        m_watcher->addPath(m_folder);
}

/// Lists the folder anew; files that are still there stay selected.
void FileThumbnail::slotUpdateFiles()
{
    if (m_folder.isEmpty())
        return;
    const QList<QString> selectedBefore = SelectedFiles();
    const QSet<QString> selected(selectedBefore.begin(), selectedBefore.end());
    {
        const QSignalBlocker quiet(m_files);
        const QFileIconProvider icons;
        m_files->clear();
        const QDir::SortFlags order = QDir::Name | QDir::IgnoreCase;
        for (const QFileInfo &file :
             QDir(m_folder).entryInfoList(PictureNames, QDir::Files | QDir::Readable, order)) {
            auto *item = new QListWidgetItem(icons.icon(file), file.fileName(), m_files);
            item->setData(Qt::UserRole, file.absoluteFilePath());
            item->setToolTip(file.fileName());
            item->setSelected(selected.contains(file.absoluteFilePath()));
        }
    }
    slotSelectionChanged();
}

void FileThumbnail::slotFileActivated(QListWidgetItem *item)
{
    emit signalOpenImage(item->data(Qt::UserRole).toString(), nullptr);
}

void FileThumbnail::slotSelectionChanged()
{
    m_mergeButton->setEnabled(m_files->selectedItems().size() >= FewestToMerge);
}

void FileThumbnail::slotMergeClicked()
{
    emit signalMergeImages(SelectedFiles());
}

/// In the order they are listed.
QList<QString> FileThumbnail::SelectedFiles() const
{
    QList<QString> files;
    for (int row = 0; row < m_files->count(); ++row) {
        const QListWidgetItem *item = m_files->item(row);
        if (item->isSelected())
            files << item->data(Qt::UserRole).toString();
    }
    return files;
}
