// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "histogramcurve.h"
#include "panelservicesexport.h"

#include <QWidget>

/// A strip with the histogram of the raw samples and the levels in it: what lies left of the first mark is black, right
/// of the second white, and the curve between them is the grey. GUI thread.
class WORKBENCH_PANELSERVICES_EXPORT HistogramView : public QWidget
{
    Q_OBJECT

public:
    explicit HistogramView(QWidget *parent = nullptr);

    void SetCurve(const HistogramCurve &curve);
    QSize sizeHint() const override;

    /// Height of a column for its count, 0 to 1: the logarithm, so that the few bright samples of a dark picture are
    /// seen too.
    static double ColumnHeight(qint64 count, qint64 mostCount);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    /// What the width spans: the histogram, and levels that were set beyond it.
    double From() const;
    double To() const;
    double PositionOf(double value) const;
    void PaintColumns(QPainter &painter);
    void PaintLevels(QPainter &painter);

    HistogramCurve m_curve;
};
