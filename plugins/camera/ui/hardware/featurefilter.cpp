// SPDX-License-Identifier: GPL-3.0-or-later
#include "featurefilter.h"

#include "featuretree.h"

FeatureFilter::FeatureFilter(QObject *parent)
    : QSortFilterProxyModel(parent)
{
    setRecursiveFilteringEnabled(true);
}

void FeatureFilter::Search(const QString &text)
{
    m_words = text.simplified().split(' ', Qt::SkipEmptyParts);
    invalidateFilter();
}

void FeatureFilter::SetShowsExpert(bool shows)
{
    m_showsExpert = shows;
    invalidateFilter();
}

/// Each word of the search, anywhere.
bool FeatureFilter::IsFound(const QString &text) const
{
    for (const QString &word : m_words) {
        if (!text.contains(word, Qt::CaseInsensitive))
            return false;
    }
    return true;
}

bool FeatureFilter::filterAcceptsRow(int row, const QModelIndex &parent) const
{
    const QModelIndex index = sourceModel()->index(row, 0, parent);
    if (!parent.isValid())
        return false; // a category is there for its features
    if (index.data(FeatureTree::ExpertRole).toBool() && !m_showsExpert)
        return false;
    return IsFound(index.data(FeatureTree::SearchRole).toString())
        || (!m_words.isEmpty() && IsFound(parent.data().toString()));
}
