// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QWidget>

class FeatureFilter;
class FeatureTree;
class QLabel;
class QModelIndex;
class QTreeView;

/// A search field over the tree of features. Numbers, choices and texts are edited in their place; a switch changes and
/// a command is carried out by a double click or Return. GUI thread.
class FeatureView : public QWidget
{
    Q_OBJECT

public:
    /// `tree` may be null, and may go before this object.
    explicit FeatureView(FeatureTree *tree, QWidget *parent = nullptr);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private slots:
    void slotSearch(const QString &text);
    void slotActivated(const QModelIndex &index);
    void slotEdited(const QModelIndex &index, const QVariant &value);
    void slotFault(const QString &text);

private:
    void BuildTree();

    QPointer<FeatureTree> m_tree;
    FeatureFilter *m_filter;
    QTreeView *m_view;
    QLabel *m_fault;
};
