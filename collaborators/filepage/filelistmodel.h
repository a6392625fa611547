// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fileentry.h"
#include "thumbnailqueue.h"

#include <QAbstractListModel>
#include <QCache>
#include <QPixmap>

struct FolderListing;

/// The files of a folder with their thumbnails, as far as those are at hand. Reads nothing itself. A name
/// that is edited leaves as a signal; it changes when the folder is read again.
class FileListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role
    {
        PathRole = Qt::UserRole,
        FaultRole ///< why there is no thumbnail; empty while it may come
    };

    explicit FileListModel(QObject *parent = nullptr);

    /// No file, until the next listing.
    void Clear();
    void SetListing(const FolderListing &listing);
    const FileEntry &Entry(int row) const { return m_entries.at(row); }
    QString PathOf(int row) const;
    /// -1 when there is none of that name.
    int RowOf(const QString &name) const;

    /// So many thumbnails are at hand at a time, whatever their size.
    void KeepThumbnails(int count);
    void SetThumbnails(const QVector<ThumbnailResult> &results);
    /// Those of these rows that are not at hand.
    QVector<ThumbnailStore::Subject> MissingThumbnails(const QVector<int> &rows) const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

signals:
    void signalRenameWanted(const QString &name, const QString &newName);

private:
    struct Thumbnail
    {
        qint64 modifiedMs = 0;
        QPixmap pixmap;
        QString fault;
    };

    const Thumbnail *ThumbnailOf(int row) const;
    QString ToolTip(int row) const;
    void Change(const FolderListing &listing);

    QString m_folder;
    FileEntries m_entries;
    QCache<QString, Thumbnail> m_thumbnails; ///< by path; the cost is kilobytes
};
