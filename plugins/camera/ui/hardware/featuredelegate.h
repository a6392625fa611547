// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>

/// Edits a feature's value as what it is: a number within its limits, a choice, a switch or a text. What was edited is
/// told once, when it is whole. GUI thread.
class FeatureDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit FeatureDelegate(QObject *parent = nullptr);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;

signals:
    void signalEdited(QModelIndex index, QVariant value) const;
};
