// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSortFilterProxyModel>

/// Leaves the features that a search finds, and those for experts out unless they are asked for. A category stays with
/// what is left of it; one whose own name is found stays whole. GUI thread.
class FeatureFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit FeatureFilter(QObject *parent = nullptr);

    void Search(const QString &text);
    void SetShowsExpert(bool shows);

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    bool IsFound(const QString &text) const;

    QStringList m_words;
    bool m_showsExpert = false;
};
