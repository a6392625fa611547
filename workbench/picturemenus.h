// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class PictureDialogs;
class QAction;
class QMenu;
class WorkbenchServices;

/// The commands for opened pictures in the menus: open, save and close in File, undo and redo in Edit,
/// compare in View. GUI thread.
class PictureMenus : public QObject
{
    Q_OBJECT

public:
    /// All are borrowed and outlive this object.
    PictureMenus(WorkbenchServices *services, PictureDialogs *dialogs, QObject *parent);

    void FillFileMenu(QMenu *menu);
    void FillEditMenu(QMenu *menu);
    /// Adds the page of opened pictures and the comparison to the views at the top of the menu.
    void FillViewMenu(QMenu *menu);

private slots:
    void slotUpdate();
    void slotSaveAs();
    void slotClose();
    void slotCrop();
    void slotInformation();
    void slotImage();
    void slotCompare();

private:
    WorkbenchServices *m_services;
    PictureDialogs *m_dialogs;
    QAction *m_save = nullptr;
    QAction *m_image = nullptr;
    QAction *m_compare = nullptr;
    QList<QAction *> m_forPictures; ///< need an opened picture on the image page
};
