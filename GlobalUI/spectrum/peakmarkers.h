// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>

#include <vector>

class QCPAbstractItem;
class QCustomPlot;

/// A dot on the curve and its x beside it for each peak. The plot owns the items.
class PeakMarkers
{
public:
    explicit PeakMarkers(QCustomPlot *plot);

    void Remove();
    /// `peaks` are indices of samples; those that graph 0 doesn't have are left out.
    void Show(const std::vector<int> &peaks);

private:
    void Add(double x);

    QCustomPlot *m_plot;
    QList<QCPAbstractItem *> m_items;
};
