// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "collaboratorsexport.h"

#include <QList>
#include <QString>
#include <QVector>
#include <QWidget>

class FileCommands;
class FileGrid;
class FileListModel;
class FilePageBar;
class FolderContent;
class QAction;
class QKeySequence;
class QLabel;
class QMenu;
class QModelIndex;
class QPushButton;
class QStackedWidget;
class QTimer;
class QUndoStack;
class ThumbnailMaker;
class ThumbnailQueue;
struct FolderListing;
struct ThumbnailResult;

/// The pictures of a folder, in the centre of the file page. Reads folders and makes thumbnails in the
/// background; what cannot be done is said on the page. GUI thread.
class GLOBALUI_COLLABORATORS_EXPORT FileThumbnail : public QWidget
{
    Q_OBJECT

public:
    explicit FileThumbnail(QWidget *parent);
    ~FileThumbnail() override;

    /// Begin and end to watch the shown folder.
    void StartFolderChecked();
    void StopFolderChecked();
    /// A picture that is opened here goes to the list of opened pictures.
    void ConnectWithThumbnailList(QWidget *thumbnailList);

    /// What opens picture files; borrowed, and taken out again with null before it goes. Without one files
    /// of the usual formats are listed, without thumbnails.
    void SetThumbnailMaker(ThumbnailMaker *maker);
    /// In the order they are listed.
    QList<QString> SelectedFiles() const;
    /// Renamings and deletions of files.
    QUndoStack *UndoStack() const;

public slots:
    void slotSetMergeButtonVisible(bool visible);
    /// Shows a folder; why one cannot be shown is said on the page.
    void slotOpenFileDirectory(QString folder);
    /// A sentence on the page, until another folder is shown or the user takes it away.
    void slotShowNotice(const QString &text);

signals:
    void signalMergeImages(QList<QString> fileNames);
    /// `image` is null: the file is not open yet.
    void signalOpenImage(QString fileName, QObject *image);
    void signalFolderChanged(QString folder);
    void signalCompareImages(QString one, QString other);
    void signalConvertToCSV(QList<QString> fileNames);
    void signalModifyDPI(QList<QString> fileNames);
    void signalFileMoved(QString from, QString to);
    /// A sentence for the status bar.
    void signalMessage(QString text);

private slots:
    void slotListed(const FolderListing &listing);
    void slotThumbnailsReady(const QVector<ThumbnailResult> &results);
    void slotWantThumbnails();
    void slotWatchSeenFiles();
    void slotArrange();
    void slotSelectionChanged();
    void slotShowMenu(const QPoint &place);
    void slotOpen();
    void slotOpenOne(const QModelIndex &index);
    void slotRename();
    void slotRenameTo(const QString &name, const QString &newName);
    void slotTrash();
    void slotCompare();
    void slotMerge();
    void slotConvertToCSV();
    void slotModifyDPI();
    void slotReadAnew();
    void slotMoved(const QString &from, const QString &to);

private:
    void BuildActions();
    void BuildPage();
    void Connect();
    QAction *AddAction(const QString &text, const QKeySequence &key, const char *slot);
    void ShowListing(const FolderListing &listing);
    QString EmptyText(const FolderListing &listing) const;

    FolderContent *m_content;
    FileListModel *m_model;
    ThumbnailQueue *m_queue;
    FileCommands *m_commands;
    FilePageBar *m_bar;
    QStackedWidget *m_pages; ///< the grid, or why there is none
    FileGrid *m_grid;
    QLabel *m_empty;
    QPushButton *m_openButton = nullptr;
    QPushButton *m_compareButton = nullptr;
    QPushButton *m_mergeButton = nullptr;
    QMenu *m_menu;
    QAction *m_open = nullptr;
    QAction *m_rename = nullptr;
    QAction *m_trash = nullptr;
    QAction *m_compare = nullptr;
    QAction *m_merge = nullptr;
    QAction *m_convert = nullptr;
    QAction *m_modifyDpi = nullptr;
    QTimer *m_wantTimer;  ///< one look at what is seen for many steps of a scroll bar
    QTimer *m_watchTimer; ///< when it has come to rest
    int m_total = 0;      ///< files of the folder, shown or not
    QString m_renamed;    ///< to be selected when it comes
};
