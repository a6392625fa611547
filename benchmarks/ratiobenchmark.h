// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVector>

#include <functional>

/// One figure of the table: what was measured, in `unit`, against its floor, and the bound.
struct BenchmarkResult
{
    QString name;
    QString unit;       ///< "us", "ms", "MB"
    double floor = 0.0; ///< 0 where the bound is the figure itself
    double value = 0.0;
    double bound = 0.0; ///< of value / floor, or of value where there is no floor

    /// What is held against the bound.
    double Figure() const;
    bool IsWithinBound() const;
};

/// Times `subject` against `floor` in turns, so that both meet the same machine, and gives the
/// lower quartile of each in microseconds. Each is called `rounds` times after three to warm up;
/// with one round more for `floor` first and `subject` first in turns. `settle` is called before each and not timed:
/// what one of them left to another thread is done when the clock starts.
BenchmarkResult MeasureRatio(const QString &name, double bound, int rounds, const std::function<void()> &floor,
                             const std::function<void()> &subject, const std::function<void()> &settle = [] {});

/// Times `work`, called `rounds` times after three to warm up, and gives the median in milliseconds.
BenchmarkResult MeasureTime(const QString &name, double boundMs, int rounds, const std::function<void()> &work);

/// The table for people, and the same as JSON.
QString ResultTable(const QVector<BenchmarkResult> &results);
QByteArray ResultJson(const QVector<BenchmarkResult> &results);
