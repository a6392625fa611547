// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "thumbnaillist.h"

class ComparisonSaving;
class OpenedPicture;
class PictureDocument;
class PictureShelf;
class QAction;
class QLabel;
class QListWidget;
class QListWidgetItem;
class QMenu;
class QPushButton;

/// The list of opened pictures: a row of thumbnails with their names. A click shows a picture, F2 renames
/// its file, Del closes it; the menu of the right button has the rest. What the user wants leaves as
/// signals; what is shown follows the shelf. Made by the services; the tab that shows it owns it. GUI
/// thread.
class PictureList : public ThumbnailList
{
    Q_OBJECT

public:
    /// Both are borrowed and outlive this object.
    PictureList(PictureShelf *shelf, const OpenedPicture *mainPicture, QWidget *parent = nullptr);

    void SetCompareSubMenuChecked(bool checked) override;
    CompareSaver *GetCompareSaver() const override;

public slots:
    /// The button that checks all pictures.
    void slotSetSelectButtonVisible(bool visible) override;
    /// Of the picture that is shown.
    void slotAddThumbnail(QImage thumbnail) override;
    /// Opens the file without showing it.
    void slotAddToThumbnailList(QString fileName) override;

private slots:
    void slotAdded(PictureDocument *document);
    void slotRemoved(PictureDocument *document);
    void slotShown();
    void slotDocumentChanged();
    void slotItemClicked(QListWidgetItem *item);
    void slotItemChanged(QListWidgetItem *item);
    void slotSelectionChanged();
    void slotCheckAll(bool checked);
    void slotShowMenu(const QPoint &place);
    void slotOpen();
    void slotRename();
    void slotCompare();
    void slotShowInFolder();
    void slotClose();

private:
    void BuildList();
    void BuildMenu();
    QAction *AddAction(const QString &text, const char *slot);
    QListWidgetItem *ItemOf(const QObject *document) const;
    PictureDocument *DocumentOf(const QListWidgetItem *item) const;
    PictureDocument *CurrentDocument() const;
    void Update(QListWidgetItem *item);
    void UpdateEmpty();

    PictureShelf *m_shelf;
    const OpenedPicture *m_mainPicture;
    ComparisonSaving *m_comparisonSaving;
    QLabel *m_empty;
    QListWidget *m_list;
    QPushButton *m_checkAll;
    QMenu *m_menu;
    QAction *m_compare = nullptr;
    bool m_isComparing = false;
    QAction *m_saveComparison = nullptr;
};
