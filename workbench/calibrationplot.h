// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qcustomplot.h>

class CalibrationModel;

/// The lamp spectrum of a calibration with its peaks and the lines assigned to them, and beneath it how far each point
/// lies from the fit. The wheel and dragging show a part of it. GUI thread.
class CalibrationPlot : public QCustomPlot
{
    Q_OBJECT

public:
    /// `model` is borrowed and outlives this object.
    CalibrationPlot(const CalibrationModel *model, QWidget *parent = nullptr);

    /// Marks a pixel that is about to become a point.
    void SetPicked(double pixel);
    QSize sizeHint() const override;

public slots:
    void slotShow();

signals:
    /// The user clicked there: the pixel, with fractions, as far as the mouse tells.
    void signalPicked(double pixel);

protected:
    void changeEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void AddAxes();
    void AddGraphs();
    void SetColours();
    void SetColoursOf(QCPAxis *axis);
    void ShowSpectrum();
    void ShowPoints();
    void PlaceLabels();
    double ValueAt(double pixel) const;

    const CalibrationModel *m_model;
    QCPAxisRect *m_residualRect;
    QCPGraph *m_spectrum;
    QCPGraph *m_peaks;
    QCPGraph *m_points;
    QCPGraph *m_residuals;
    QCPItemStraightLine *m_picked;
    QCPItemStraightLine *m_zero;
    QVector<QCPItemText *> m_labels;
    QPoint m_pressed;
    size_t m_shownCount = 0; ///< samples
};
