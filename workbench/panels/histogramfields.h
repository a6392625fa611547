// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fieldsource.h"

class LiveHistogram;

/// How the samples of the live picture are spread, as long as the page of it is in front. GUI thread.
class HistogramFields : public FieldSource
{
    Q_OBJECT

public:
    /// `histogram` is borrowed and outlives this object.
    explicit HistogramFields(LiveHistogram *histogram, QObject *parent = nullptr);

    PanelFields Fields() const override;
    /// There is nothing to set.
    void Set(const QString &key, const QVariant &value) override;
    void SetWatched(bool watched) override;

private:
    LiveHistogram *m_histogram;
};
