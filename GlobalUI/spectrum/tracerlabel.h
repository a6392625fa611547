// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QString>

class QCPItemText;
class QCPItemTracer;
class QCustomPlot;

/// Cross-hair on the curve with a label of position and value. The plot owns both items.
class TracerLabel
{
    Q_DECLARE_TR_FUNCTIONS(Spectrum2DDrawFrameBase)

public:
    explicit TracerLabel(QCustomPlot *plot);

    /// "[Pos : 1234, Value : 56]"; positions up to 1.0 have six decimals, and values seven digits unless they are whole
    /// numbers of at most fifteen digits.
    static QString Text(double x, double value, bool isWhole = true);

    void Remove();
    /// In plot coordinates; the place before is left.
    void Show(double x, double value, bool isWhole = true);

private:
    QCustomPlot *m_plot;
    QCPItemText *m_text = nullptr;
    QCPItemTracer *m_tracer = nullptr;
};
