// SPDX-License-Identifier: GPL-3.0-or-later
#include "filelistmodel.h"

#include "filenametext.h"
#include "folderworker.h"

#include <QDateTime>
#include <QLocale>

#include <algorithm>

namespace {

constexpr int UsualThumbnailKilobytes = 64 * 1024; ///< more only where more are seen
constexpr int SmallestKilobytes = 1; ///< of a fault

int KilobytesOf(const QSize &size)
{
    return SmallestKilobytes + size.width() * size.height() * 4 / 1024;
}

} // namespace

FileListModel::FileListModel(QObject *parent)
    : QAbstractListModel(parent)
    , m_thumbnails(UsualThumbnailKilobytes)
{
}

void FileListModel::Clear()
{
    beginResetModel();
    m_entries.clear();
    endResetModel();
}

void FileListModel::SetListing(const FolderListing &listing)
{
    if (listing.changes.isReset || listing.folder != m_folder) {
        beginResetModel();
        m_folder = listing.folder;
        m_entries = listing.entries;
        endResetModel();
    } else {
        Change(listing);
    }
}

void FileListModel::Change(const FolderListing &listing)
{
    for (const RowChanges::Range &range : listing.changes.removed) {
        beginRemoveRows(QModelIndex(), range.first, range.first + range.count - 1);
        m_entries.remove(range.first, range.count);
        endRemoveRows();
    }
    for (const RowChanges::Range &range : listing.changes.inserted) {
        beginInsertRows(QModelIndex(), range.first, range.first + range.count - 1);
        m_entries.insert(range.first, range.count, FileEntry());
        std::copy_n(listing.entries.begin() + range.first, range.count, m_entries.begin() + range.first);
        endInsertRows();
    }
    m_entries = listing.entries;
    for (const int row : listing.changes.altered)
        emit dataChanged(index(row), index(row));
}

QString FileListModel::PathOf(int row) const
{
    return m_folder.endsWith('/') ? m_folder + Entry(row).name : m_folder + '/' + Entry(row).name;
}

int FileListModel::RowOf(const QString &name) const
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&](const FileEntry &entry) { return entry.name == name; });
    return found == m_entries.end() ? -1 : int(found - m_entries.begin());
}

void FileListModel::KeepThumbnails(int count)
{
    const int largest = KilobytesOf(QSize(ThumbnailStore::LargeEdge, ThumbnailStore::LargeEdge));
    m_thumbnails.setMaxCost(qMax(UsualThumbnailKilobytes, count * largest));
}

void FileListModel::SetThumbnails(const QVector<ThumbnailResult> &results)
{
    for (const ThumbnailResult &result : results) {
        auto *thumbnail = new Thumbnail; // the cache owns it
        thumbnail->modifiedMs = result.subject.modifiedMs;
        thumbnail->pixmap = QPixmap::fromImage(result.image);
        thumbnail->fault = result.fault;
        m_thumbnails.insert(result.subject.path, thumbnail, KilobytesOf(thumbnail->pixmap.size()));
    }
    // Finding the rows would cost more than painting those that are seen.
    if (!m_entries.isEmpty())
        emit dataChanged(index(0), index(m_entries.size() - 1), {Qt::DecorationRole, Qt::ToolTipRole, FaultRole});
}

QVector<ThumbnailStore::Subject> FileListModel::MissingThumbnails(const QVector<int> &rows) const
{
    QVector<ThumbnailStore::Subject> missing;
    for (const int row : rows) {
        if (!Entry(row).isBrokenLink && !Entry(row).isMisspelt && !ThumbnailOf(row))
            missing.append({PathOf(row), Entry(row).modifiedMs, Entry(row).bytes});
    }
    return missing;
}

/// Null when there is none, or one of an older state of the file.
const FileListModel::Thumbnail *FileListModel::ThumbnailOf(int row) const
{
    const Thumbnail *thumbnail = m_thumbnails.object(PathOf(row));
    return thumbnail && thumbnail->modifiedMs == Entry(row).modifiedMs ? thumbnail : nullptr;
}

int FileListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_entries.size();
}

QVariant FileListModel::data(const QModelIndex &index, int role) const
{
    const int row = index.row();
    if (row < 0 || row >= m_entries.size())
        return QVariant();
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
        return FileNameText(Entry(row).name);
    case Qt::EditRole:
        return Entry(row).name;
    case PathRole:
        return PathOf(row);
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return ToolTip(row);
    case Qt::DecorationRole:
        if (const Thumbnail *thumbnail = ThumbnailOf(row))
            return thumbnail->pixmap;
        return QVariant();
    case FaultRole: {
        if (Entry(row).isBrokenLink)
            return tr("A link to a file that is not there any more.");
        if (Entry(row).isMisspelt)
            return tr("Its name is written in another encoding, as on old disks, and the file cannot be reached by it. Give "
                      "it another name, for example in a terminal.");
        const Thumbnail *thumbnail = ThumbnailOf(row);
        return thumbnail ? thumbnail->fault : QString();
    }
    default:
        return QVariant();
    }
}

QString FileListModel::ToolTip(int row) const
{
    const FileEntry &entry = Entry(row);
    QStringList lines(FileNameText(entry.name));
    if (!entry.isBrokenLink) {
        const QLocale locale;
        lines << tr("%1, changed %2").arg(locale.formattedDataSize(entry.bytes),
                                          locale.toString(QDateTime::fromMSecsSinceEpoch(entry.modifiedMs),
                                                          QLocale::ShortFormat));
    }
    const QString fault = index(row).data(FaultRole).toString();
    if (!fault.isEmpty())
        lines << fault;
    // Names may look like markup.
    return "<p style='white-space:pre-wrap'>" + lines.join('\n').toHtmlEscaped() + "</p>";
}

bool FileListModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || role != Qt::EditRole)
        return false;
    const QString newName = value.toString();
    if (newName != Entry(index.row()).name)
        emit signalRenameWanted(Entry(index.row()).name, newName);
    return false;
}

Qt::ItemFlags FileListModel::flags(const QModelIndex &index) const
{
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemNeverHasChildren
                           : Qt::NoItemFlags;
}
