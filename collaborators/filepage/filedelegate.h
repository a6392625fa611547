// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>

/// Paints a file of the grid, its thumbnail above its name, and edits the name.
class FileDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// `edge` is that of the thumbnails in pixels of the screen.
    FileDelegate(int edge, QObject *parent);

    /// One size for all files.
    QSize CellSize(const QFont &font) const;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    QRect NameRect(const QRect &cell, const QFont &font) const;
    void PaintPicture(QPainter *painter, const QRect &frame, const QStyleOptionViewItem &option,
                      const QModelIndex &index) const;

    const int m_edge;
};
