// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "collaboratorsexport.h"

#include <QString>
#include <QWidget>

class FolderTreeModel;
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
    /// Goes to a folder. Of one that is not there the tree shows the nearest one above it; the thumbnail
    /// view says what is the matter.
    void slotShowFolder(QString folder);

signals:
    void sglSwitchToPreviousView();
    void signalFolderChanged(QString folder);

private slots:
    void slotFolderClicked(const QModelIndex &index);
    void slotPathEntered();
    void slotNearer();

private:
    FolderTreeModel *m_model;
    QTreeView *m_tree = nullptr;
    QLineEdit *m_path;
    QString m_folder;
};
