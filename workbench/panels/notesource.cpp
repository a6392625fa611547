// SPDX-License-Identifier: GPL-3.0-or-later
#include "notesource.h"

NoteSource::NoteSource(const QString &name, const Notes &notes, QObject *parent)
    : FieldSource(name, parent)
    , m_notes(notes)
{
}

PanelFields NoteSource::Fields() const { return m_notes(); }

void NoteSource::Set(const QString &, const QVariant &) {}
