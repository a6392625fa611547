// SPDX-License-Identifier: GPL-3.0-or-later
#include "featuredelegate.h"

#include "featuretree.h"
#include "numberbox.h"

#include <QComboBox>
#include <QLineEdit>

namespace {

FeatureTree::Editor EditorOf(const QModelIndex &index)
{
    return FeatureTree::Editor(index.data(FeatureTree::EditorRole).toInt());
}

QVariant Value(const QModelIndex &index)
{
    return index.data(FeatureTree::ValueRole);
}

} // namespace

FeatureDelegate::FeatureDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{
}

QWidget *FeatureDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &, const QModelIndex &index) const
{
    switch (EditorOf(index)) {
    case FeatureTree::Editor::Number: {
        auto *box = new NumberBox(parent);
        box->setDecimals(index.data(FeatureTree::DecimalsRole).toInt());
        const double step = index.data(FeatureTree::StepRole).toDouble();
        box->setSingleStep(step > 0 ? step : 1);
        return box;
    }
    case FeatureTree::Editor::Choice: {
        auto *box = new QComboBox(parent);
        box->addItems(index.data(FeatureTree::ChoicesRole).toStringList());
        // Chosen is set: no second click is needed.
        connect(box, QOverload<int>::of(&QComboBox::activated), this, [this, box] {
            auto *self = const_cast<FeatureDelegate *>(this);
            emit self->commitData(box);
            emit self->closeEditor(box);
        });
        return box;
    }
    case FeatureTree::Editor::Text:
        return new QLineEdit(parent);
    case FeatureTree::Editor::Check:
    case FeatureTree::Editor::Command:
    case FeatureTree::Editor::None:
        break;
    }
    return nullptr; // switched or carried out by a click
}

void FeatureDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    if (auto *box = qobject_cast<NumberBox *>(editor))
        box->Show(index.data(FeatureTree::MinimumRole).toDouble(), index.data(FeatureTree::MaximumRole).toDouble(),
                  Value(index).toDouble());
    else if (auto *choice = qobject_cast<QComboBox *>(editor))
        choice->setCurrentText(Value(index).toString());
    else if (auto *edit = qobject_cast<QLineEdit *>(editor))
        edit->setText(Value(index).toString());
}

void FeatureDelegate::setModelData(QWidget *editor, QAbstractItemModel *, const QModelIndex &index) const
{
    QVariant value;
    if (auto *box = qobject_cast<NumberBox *>(editor)) {
        box->interpretText();
        value = box->value();
    } else if (auto *choice = qobject_cast<QComboBox *>(editor)) {
        value = choice->currentText();
    } else if (auto *edit = qobject_cast<QLineEdit *>(editor)) {
        value = edit->text();
    }
    if (value.isValid() && value != Value(index))
        emit signalEdited(index, value);
}
