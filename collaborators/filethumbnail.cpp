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
#include <QTimer>

namespace {

const QStringList PictureNames{"*.png", "*.jpg", "*.jpeg", "*.bmp", "*.tif", "*.tiff",
                               "*.fit", "*.fits", "*.fts", "*.spe"};
constexpr int IconSize = 64;   // design pixels
constexpr int GridWidth = 130; // design pixels
constexpr int GridHeight = 100;
constexpr int FewestToMerge = 2;
constexpr int UpdateDelayMs = 200;

QListWidgetItem *NewItem(const QFileInfo &file, const QIcon &icon)
{
    auto *item = new QListWidgetItem(icon, file.fileName());
    item->setData(Qt::UserRole, file.absoluteFilePath());
    item->setToolTip(file.fileName());
    return item;
}

} // namespace

FileThumbnail::FileThumbnail(QWidget *parent)
    : QWidget(parent)
    , m_files(new QListWidget(this))
    , m_mergeButton(new QPushButton(tr("Merge"), this))
    , m_watcher(new QFileSystemWatcher(this))
    , m_updateTimer(new QTimer(this))
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
    m_updateTimer->setSingleShot(true);
    m_updateTimer->setInterval(UpdateDelayMs);
    connect(m_watcher, SIGNAL(directoryChanged(QString)), this, SLOT(slotFolderChanged()));
    connect(m_updateTimer, SIGNAL(timeout()), this, SLOT(slotUpdateFiles()));
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
    m_updateTimer->stop();
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
    m_files->clear();
    WatchFolder();
    slotUpdateFiles();
    emit signalFolderChanged(path);
}

/// The folder itself; while it is gone the nearest one above it, which sees it come back.
void FileThumbnail::WatchFolder()
{
    const QStringList watched = m_watcher->directories();
    if (!watched.isEmpty())
        m_watcher->removePaths(watched);
    if (!m_checked || m_folder.isEmpty())
        return;
    QString path = m_folder;
    while (!m_watcher->addPath(path) && !QDir(path).isRoot())
        path = QFileInfo(path).path();
}

void FileThumbnail::slotFolderChanged()
{
    if (!m_updateTimer->isActive())
        m_updateTimer->start();
}

/// Lists what is new and drops what is gone; the others stay as they are, selected or current.
void FileThumbnail::slotUpdateFiles()
{
    if (m_folder.isEmpty())
        return;
    if (m_checked && !m_watcher->directories().contains(m_folder))
        WatchFolder();
    const QFileInfoList files = QDir(m_folder).entryInfoList(PictureNames, QDir::Files | QDir::Readable,
                                                             QDir::Name | QDir::IgnoreCase);
    QSet<QString> names;
    for (const QFileInfo &file : files)
        names.insert(file.fileName());
    for (int row = m_files->count() - 1; row >= 0; --row) {
        if (!names.contains(m_files->item(row)->text()))
            delete m_files->takeItem(row);
    }
    const QFileIconProvider icons;
    for (int row = 0; row < files.size(); ++row) {
        const QListWidgetItem *item = m_files->item(row);
        if (!item || item->text() != files.at(row).fileName())
            m_files->insertItem(row, NewItem(files.at(row), icons.icon(files.at(row))));
    }
    // Names that differ in case only may have changed places.
    while (m_files->count() > files.size())
        delete m_files->takeItem(files.size());
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
