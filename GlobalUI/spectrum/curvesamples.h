// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qcustomplot.h>

#include <QVector>

#include <utility>
#include <vector>

/// The spectrum now shown: each sample's calibrated x and its value (counts).
class CurveSamples
{
public:
    /// Calibrated x of a pixel; the pixel itself where the calibration gives no number.
    static double PixelToX(int pixel);

    /// Counts, or samples of a file, which may be negative; the values are those over `factor`.
    void Assign(const unsigned int *data, int count, double factor = 1.0) { AssignSamples(data, count, factor); }
    void Assign(const int *data, int count, double factor = 1.0) { AssignSamples(data, count, factor); }
    void Clear();

    int Count() const { return m_x.size(); }
    double Factor() const { return m_factor; }
    /// The values have no fractions: a factor below 1 only rounds large ones.
    bool AreWhole() const { return m_factor <= 1.0; }
    /// In the order of the pixels.
    const QVector<double> &X() const { return m_x; }
    const QVector<double> &Values() const { return m_values; }
    double Minimum() const { return m_minimum; }
    double Maximum() const { return m_maximum; }

    /// The x of pixel 0 and of the pixel behind the last sample, the lower one first; kept when the
    /// samples are cleared.
    const QCPRange &Ends() const { return m_ends; }

    /// The value that the tracer tells at x. Between two samples the search leans to the upper one;
    /// in front of all samples it is 0.
    double TracerValue(double x) const;

private:
    template <typename Sample>
    void AssignSamples(const Sample *data, int count, double factor);

    QVector<double> m_x;
    QVector<double> m_values;
    std::vector<std::pair<double, double>> m_byX; ///< rising x, each x once
    double m_factor = 1.0;
    double m_minimum = 0.0;
    double m_maximum = 0.0;
    QCPRange m_ends;
};
