// SPDX-License-Identifier: GPL-3.0-or-later
#include "featureview.h"

#include "featuredelegate.h"
#include "featurefilter.h"
#include "featuretree.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTreeView>
#include <QVBoxLayout>

FeatureView::FeatureView(FeatureTree *tree, QWidget *parent)
    : QWidget(parent)
    , m_tree(tree)
    , m_filter(new FeatureFilter(this))
    , m_view(new QTreeView)
    , m_fault(new QLabel(this))
{
    auto *search = new QLineEdit(this);
    search->setObjectName("lineEditSearch");
    search->setPlaceholderText(tr("Search"));
    search->setAccessibleName(tr("Search"));
    search->setClearButtonEnabled(true);
    auto *expert = new QCheckBox(tr("For experts too"), this);
    expert->setObjectName("checkBoxExpert");
    m_fault->setObjectName("labelFault");
    m_fault->setWordWrap(true);
    m_fault->hide();

    auto *column = new QVBoxLayout(this);
    column->addWidget(search);
    column->addWidget(expert);
    column->addWidget(m_view, 1);
    column->addWidget(m_fault);
    if (!tree) {
        m_fault->setText(tr("This program does not show panels its camera's features."));
        m_fault->show();
        return;
    }
    BuildTree();
    connect(search, &QLineEdit::textChanged, this, &FeatureView::slotSearch);
    connect(expert, &QCheckBox::toggled, m_filter, &FeatureFilter::SetShowsExpert);
    connect(tree, &FeatureTree::signalFault, this, &FeatureView::slotFault);
}

void FeatureView::BuildTree()
{
    m_filter->setSourceModel(m_tree->Model());
    m_view->setObjectName("treeFeatures");
    m_view->setAccessibleName(tr("Features of the camera"));
    m_view->setModel(m_filter);
    m_view->setUniformRowHeights(true);
    m_view->setAlternatingRowColors(true);
    m_view->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed
                            | QAbstractItemView::SelectedClicked);
    m_view->header()->setSectionResizeMode(FeatureTree::TextColumn, QHeaderView::Stretch);
    m_view->header()->setSectionResizeMode(FeatureTree::ValueColumn, QHeaderView::Stretch);
    m_view->header()->setStretchLastSection(false);
    auto *delegate = new FeatureDelegate(m_view);
    m_view->setItemDelegateForColumn(FeatureTree::ValueColumn, delegate);
    connect(delegate, &FeatureDelegate::signalEdited, this, &FeatureView::slotEdited);
    // New categories come open.
    connect(m_filter, &QAbstractItemModel::rowsInserted, m_view, [view = m_view](const QModelIndex &parent) {
        if (!parent.isValid())
            view->expandAll();
    });
    connect(m_view, &QTreeView::activated, this, &FeatureView::slotActivated);
}

void FeatureView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_tree)
        m_tree->SetWatched(true);
}

void FeatureView::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (m_tree)
        m_tree->SetWatched(false);
}

void FeatureView::slotSearch(const QString &text)
{
    m_filter->Search(text);
    if (!text.isEmpty())
        m_view->expandAll();
}

void FeatureView::slotActivated(const QModelIndex &index)
{
    const QModelIndex value = index.sibling(index.row(), FeatureTree::ValueColumn);
    switch (FeatureTree::Editor(value.data(FeatureTree::EditorRole).toInt())) {
    case FeatureTree::Editor::Check:
        slotEdited(value, !value.data(FeatureTree::ValueRole).toBool());
        break;
    case FeatureTree::Editor::Command:
        slotEdited(value, true);
        break;
    default:
        break;
    }
}

void FeatureView::slotEdited(const QModelIndex &index, const QVariant &value)
{
    if (m_tree)
        m_tree->Set(m_filter->mapToSource(index), value);
}

void FeatureView::slotFault(const QString &text)
{
    m_fault->setText(text);
    m_fault->setVisible(!text.isEmpty());
}
