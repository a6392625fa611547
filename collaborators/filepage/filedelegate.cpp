// SPDX-License-Identifier: GPL-3.0-or-later
#include "filedelegate.h"

#include "filelistmodel.h"

#include <QApplication>
#include <QLineEdit>
#include <QPainter>
#include <QTimer>

namespace {

constexpr int Margin = 6;

/// The place of a picture of this size in the middle of the frame, never enlarged.
QRect Placed(const QSize &size, const QRect &frame)
{
    QSize fitted = size;
    if (fitted.width() > frame.width() || fitted.height() > frame.height())
        fitted.scale(frame.size(), Qt::KeepAspectRatio);
    QRect place(QPoint(), fitted);
    place.moveCenter(frame.center());
    return place;
}

} // namespace

FileDelegate::FileDelegate(int edge, QObject *parent)
    : QStyledItemDelegate(parent)
    , m_edge(edge)
{
}

QSize FileDelegate::CellSize(const QFont &font) const
{
    return {m_edge + 4 * Margin, m_edge + QFontMetrics(font).height() + 5 * Margin};
}

QRect FileDelegate::NameRect(const QRect &cell, const QFont &font) const
{
    const int height = QFontMetrics(font).height() + Margin;
    return {cell.left() + Margin, cell.bottom() - height - Margin / 2, cell.width() - 2 * Margin, height};
}

void FileDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem cell = option;
    cell.rect.adjust(Margin / 2, Margin / 2, -Margin / 2, -Margin / 2);
    const QStyle *style = option.widget ? option.widget->style() : QApplication::style();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, option.widget);

    const QRect frame(option.rect.left() + (option.rect.width() - m_edge) / 2, option.rect.top() + 2 * Margin, m_edge,
                      m_edge);
    PaintPicture(painter, frame, cell, index);

    const QRect nameRect = NameRect(option.rect, option.font);
    const QString name = option.fontMetrics.elidedText(index.data().toString(), Qt::ElideMiddle, nameRect.width());
    painter->setPen(option.palette.color(option.state & QStyle::State_Selected ? QPalette::HighlightedText
                                                                               : QPalette::Text));
    painter->drawText(nameRect, Qt::AlignCenter | Qt::TextSingleLine, name);
    if (option.state & QStyle::State_HasFocus) {
        painter->setPen(QPen(option.palette.color(QPalette::Highlight), 1, Qt::DotLine));
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(cell.rect.adjusted(0, 0, -1, -1));
    }
}

/// The thumbnail; until it is there an empty frame, and a crossed one when it will not come.
void FileDelegate::PaintPicture(QPainter *painter, const QRect &frame, const QStyleOptionViewItem &option,
                                const QModelIndex &index) const
{
    const QPixmap thumbnail = index.data(Qt::DecorationRole).value<QPixmap>();
    if (!thumbnail.isNull()) {
        painter->drawPixmap(Placed(thumbnail.size(), frame), thumbnail);
        return;
    }
    const QRect sheet = Placed(frame.size() * 3 / 4, frame);
    painter->setPen(option.palette.color(QPalette::Disabled, QPalette::Text));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(sheet);
    if (!index.data(FileListModel::FaultRole).toString().isEmpty()) {
        painter->drawLine(sheet.topLeft(), sheet.bottomRight());
        painter->drawLine(sheet.topRight(), sheet.bottomLeft());
    }
}

QSize FileDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    return CellSize(option.font);
}

void FileDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    auto *line = qobject_cast<QLineEdit *>(editor);
    const QString name = index.data(Qt::DisplayRole).toString();
    line->setText(name);
    // The ending stays unless one wants to change it. The view selects all behind us.
    const int length = name.contains('.') ? name.lastIndexOf('.') : name.size();
    QTimer::singleShot(0, line, [line, length] { line->setSelection(0, length); });
}

void FileDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    const auto *line = qobject_cast<QLineEdit *>(editor);
    // What is shown of a name with control characters is not the name.
    if (line->isModified() && line->text() != index.data(Qt::DisplayRole).toString())
        model->setData(index, line->text(), Qt::EditRole);
}

void FileDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option, const QModelIndex &) const
{
    QRect place = NameRect(option.rect, option.font);
    const int height = qMax(place.height(), editor->sizeHint().height());
    place.setTop(place.bottom() - height);
    editor->setGeometry(place);
}
