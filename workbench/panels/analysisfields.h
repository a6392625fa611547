// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fieldsource.h"

class LiveHistogram;

/// The picture that is worked on: what it is, the numbers of its samples when it is the live one, and what was measured in
/// it. GUI thread.
class AnalysisFields : public FieldSource
{
    Q_OBJECT

public:
    /// `histogram` is borrowed and outlives this object.
    explicit AnalysisFields(LiveHistogram *histogram, QObject *parent = nullptr);

    PanelFields Fields() const override;
    /// There is nothing to set.
    void Set(const QString &key, const QVariant &value) override;
    void SetWatched(bool watched) override;

private:
    LiveHistogram *m_histogram;
};
