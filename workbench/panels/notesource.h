// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fieldsource.h"

#include <functional>

/// A source that only tells. GUI thread.
class NoteSource : public FieldSource
{
    Q_OBJECT

public:
    using Notes = std::function<PanelFields()>;

    /// `notes` is asked whenever the lines are shown.
    NoteSource(const QString &name, const Notes &notes, QObject *parent = nullptr);

    PanelFields Fields() const override;
    /// There is nothing to set.
    void Set(const QString &key, const QVariant &value) override;

private:
    Notes m_notes;
};
