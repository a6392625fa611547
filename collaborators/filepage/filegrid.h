// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListView>
#include <QPersistentModelIndex>
#include <QStringList>

class FileDelegate;
class FileListModel;

/// The files of a folder in rows of thumbnails. Stays quick with a hundred thousand of them: all cells have
/// one size, and nothing is asked of a file that is not seen.
class FileGrid : public QListView
{
    Q_OBJECT

public:
    /// `model` is borrowed; `edge` is that of the thumbnails in pixels of the screen.
    FileGrid(FileListModel *model, int edge, QWidget *parent);

    /// Rows whose thumbnails are wanted: those that are seen, then those a page further down and up.
    QVector<int> WantedRows() const;
    /// The rows that are seen.
    QVector<int> SeenRows() const;
    int SelectedCount() const;
    /// In the order they are listed.
    QVector<int> SelectedRows() const;
    void SelectRows(const QVector<int> &rows, int current);

    /// As soon as the row has its place.
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;

public slots:
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                     const QVector<int> &roles = QVector<int>()) override;

signals:
    /// Other rows are seen than before.
    void signalScrolled();
    void signalSelectionChanged();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void updateGeometries() override;
    void selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) override;
    QRegion visualRegionForSelection(const QItemSelection &selection) const override;
    void scrollContentsBy(int dx, int dy) override;
    void changeEvent(QEvent *event) override;

private:
    void UpdateCellSize();
    /// The last rows have no place yet.
    bool IsLayingOut() const;
    /// The first row whose lower edge is at `y` of the viewport or below it.
    int FirstRowBelow(int y) const;

    FileDelegate *m_delegate;
    QPersistentModelIndex m_scrollTo; ///< when it has its place
};
