// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "collaboratorsexport.h"

#include <QSet>
#include <QString>
#include <QWidget>

class QFileSystemModel;
class QLineEdit;
class QModelIndex;
class QTreeView;

/// The folder tree at the left of the file page.
class GLOBALUI_COLLABORATORS_EXPORT FileSystemView : public QWidget
{
    Q_OBJECT

public:
    explicit FileSystemView(QWidget *parent);

    /// Begin and end to watch the shown folder.
    void StartFolderChecked();
    void StopFolderChecked();
    /// Lets the thumbnail view follow the folder chosen here, and the other way round.
    void BindingConnectionsWithWidget(QWidget *fileThumbnail);

public slots:
    /// Goes to a folder; one that is not there is ignored.
    void slotShowFolder(QString folder);

signals:
    void sglSwitchToPreviousView();
    void signalFolderChanged(QString folder);

private slots:
    void slotFolderClicked(const QModelIndex &index);
    void slotPathEntered();
    void slotFolderRead(QString folder);

private:
    /// The tree begins again with what is on the disk now.
    void ReadFolders(bool watch);
    void ShowCurrentFolder();

    QFileSystemModel *m_model = nullptr;
    QTreeView *m_tree;
    QLineEdit *m_path;
    QString m_folder;
    QSet<QString> m_foldersRead; ///< by the model, since it began
    bool m_checked = false;      ///< the folders are being watched
};
