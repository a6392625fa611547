// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "collaboratorsexport.h"

#include <QList>
#include <QString>
#include <QWidget>

class QFileSystemWatcher;
class QListWidget;
class QListWidgetItem;
class QPushButton;
class QTimer;

/// The pictures of a folder, in the centre of the file page.
class GLOBALUI_COLLABORATORS_EXPORT FileThumbnail : public QWidget
{
    Q_OBJECT

public:
    explicit FileThumbnail(QWidget *parent);

    /// Begin and end to watch the shown folder.
    void StartFolderChecked();
    void StopFolderChecked();
    /// A picture that is opened here goes to the list of opened pictures.
    void ConnectWithThumbnailList(QWidget *thumbnailList);

public slots:
    void slotSetMergeButtonVisible(bool visible);
    /// Shows a folder; one that is not there is ignored.
    void slotOpenFileDirectory(QString folder);

signals:
    void signalMergeImages(QList<QString> fileNames);
    /// `image` is null: the file is not open yet.
    void signalOpenImage(QString fileName, QObject *image);
    void signalFolderChanged(QString folder);

private slots:
    void slotFolderChanged();
    void slotUpdateFiles();
    void slotFileActivated(QListWidgetItem *item);
    void slotSelectionChanged();
    void slotMergeClicked();

private:
    void WatchFolder();
    QList<QString> SelectedFiles() const;

    QListWidget *m_files;
    QPushButton *m_mergeButton;
    QFileSystemWatcher *m_watcher;
    QTimer *m_updateTimer; ///< many changes one after the other are shown together
    QString m_folder;
    bool m_checked = false; ///< the folder is being watched
};
