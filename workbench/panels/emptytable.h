// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fieldsource.h"

#include <QStandardItemModel>

#include <functional>

/// A table that nothing fills yet: its headings, and the sentence that says so. GUI thread.
class EmptyTable : public FieldSource
{
    Q_OBJECT

public:
    using Note = std::function<QString()>;

    EmptyTable(const QString &name, const QStringList &headings, const Note &note, QObject *parent = nullptr);

    PanelFields Fields() const override;
    /// There is nothing to set.
    void Set(const QString &key, const QVariant &value) override;
    QAbstractItemModel *Table() override;
    QString TableNote() const override;

private:
    QStandardItemModel m_table;
    Note m_note;
};
