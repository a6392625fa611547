// SPDX-License-Identifier: GPL-3.0-or-later
#include "filegrid.h"

#include "filedelegate.h"
#include "filelistmodel.h"

#include <QEvent>
#include <QScrollBar>

#include <algorithm>

namespace {
constexpr int RowsAtOnce = 10000;
}

FileGrid::FileGrid(FileListModel *model, int edge, QWidget *parent)
    : QListView(parent)
    , m_delegate(new FileDelegate(edge, this))
{
    setModel(model);
    setItemDelegate(m_delegate);
    // Rows of cells that wrap: unlike the icon mode it keeps no record of every item.
    setViewMode(QListView::ListMode);
    setFlow(QListView::LeftToRight);
    setWrapping(true);
    setResizeMode(QListView::Adjust);
    setUniformItemSizes(true);
    // A part of a long list is laid out at a time, and none of it twice for a scroll bar that comes.
    setLayoutMode(QListView::Batched);
    setBatchSize(RowsAtOnce);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setSelectionRectVisible(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers); // F2 is an action, which knows what is selected
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
    UpdateCellSize();
}

void FileGrid::UpdateCellSize()
{
    setGridSize(m_delegate->CellSize(font()));
    verticalScrollBar()->setSingleStep(gridSize().height() / 3);
}

void FileGrid::changeEvent(QEvent *event)
{
    QListView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        UpdateCellSize();
}

int FileGrid::FirstRowBelow(int y) const
{
    int first = 0;
    int behind = model()->rowCount();
    while (first < behind) {
        const int middle = (first + behind) / 2;
        const QRect cell = visualRect(model()->index(middle, 0));
        if (!cell.isEmpty() && cell.bottom() < y) // empty: it has no place yet
            first = middle + 1;
        else
            behind = middle;
    }
    return first;
}

QVector<int> FileGrid::SeenRows() const
{
    QVector<int> rows;
    const int height = viewport()->height();
    for (int row = FirstRowBelow(0); row < model()->rowCount(); ++row) {
        const QRect cell = visualRect(model()->index(row, 0));
        if (cell.isEmpty() || cell.top() > height)
            break;
        rows.append(row);
    }
    return rows;
}

QVector<int> FileGrid::WantedRows() const
{
    QVector<int> rows = SeenRows();
    if (rows.isEmpty())
        return rows;
    const int page = rows.size();
    const int first = rows.first();
    const int last = rows.last();
    for (int row = last + 1; row <= last + page && row < model()->rowCount(); ++row)
        rows.append(row);
    for (int row = first - 1; row >= first - page && row >= 0; --row)
        rows.append(row);
    return rows;
}

int FileGrid::SelectedCount() const
{
    int count = 0;
    for (const QItemSelectionRange &range : selectionModel()->selection())
        count += range.height();
    return count;
}

QVector<int> FileGrid::SelectedRows() const
{
    QVector<int> rows;
    for (const QItemSelectionRange &range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.append(row);
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

void FileGrid::SelectRows(const QVector<int> &rows, int current)
{
    QItemSelection selection;
    for (int i = 0; i < rows.size();) {
        int behind = i + 1;
        while (behind < rows.size() && rows[behind] == rows[behind - 1] + 1)
            ++behind;
        selection.append(QItemSelectionRange(model()->index(rows[i], 0), model()->index(rows[behind - 1], 0)));
        i = behind;
    }
    if (current >= 0)
        selectionModel()->setCurrentIndex(model()->index(current, 0), QItemSelectionModel::NoUpdate);
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

/// To be painted anew. Looking for the places of all files costs more than painting those that are seen.
QRegion FileGrid::visualRegionForSelection(const QItemSelection &selection) const
{
    return selection.isEmpty() ? QRegion() : QRegion(viewport()->rect());
}

void FileGrid::resizeEvent(QResizeEvent *event)
{
    QListView::resizeEvent(event);
    emit signalScrolled();
}

void FileGrid::showEvent(QShowEvent *event)
{
    QListView::showEvent(event);
    emit signalScrolled();
}

bool FileGrid::IsLayingOut() const
{
    const int count = model()->rowCount();
    return count > 0 && visualRect(model()->index(count - 1, 0)).isEmpty();
}

/// A scroll bar that ended with the part laid out so far would lose the place of whoever is beyond it.
void FileGrid::updateGeometries()
{
    if (!IsLayingOut()) {
        QListView::updateGeometries();
        if (m_scrollTo.isValid())
            QListView::scrollTo(m_scrollTo);
        m_scrollTo = QModelIndex();
    }
    emit signalScrolled();
}

void FileGrid::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    const bool hasPlace = !index.isValid() || !visualRect(index).isEmpty();
    m_scrollTo = hasPlace ? QModelIndex() : index;
    if (hasPlace)
        QListView::scrollTo(index, hint);
}

/// All cells have one size: what is in them moves none, so nothing is laid out anew.
void FileGrid::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight, const QVector<int> &roles)
{
    QAbstractItemView::dataChanged(topLeft, bottomRight, roles);
}

void FileGrid::scrollContentsBy(int dx, int dy)
{
    QListView::scrollContentsBy(dx, dy);
    emit signalScrolled();
}

void FileGrid::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    QListView::selectionChanged(selected, deselected);
    emit signalSelectionChanged();
}
