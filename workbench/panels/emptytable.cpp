// SPDX-License-Identifier: GPL-3.0-or-later
#include "emptytable.h"

EmptyTable::EmptyTable(const QString &name, const QStringList &headings, const Note &note, QObject *parent)
    : FieldSource(name, parent)
    , m_note(note)
{
    m_table.setHorizontalHeaderLabels(headings);
}

PanelFields EmptyTable::Fields() const { return {}; }

void EmptyTable::Set(const QString &, const QVariant &) {}

QAbstractItemModel *EmptyTable::Table() { return &m_table; }

QString EmptyTable::TableNote() const { return m_note(); }
