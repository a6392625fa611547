// SPDX-License-Identifier: GPL-3.0-or-later
#include "ratiobenchmark.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

#include <algorithm>
#include <vector>

namespace {

constexpr int WarmUpRounds = 3;
constexpr double LowerQuartile = 0.25;
constexpr double Median = 0.5;

double Microseconds(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return double(timer.nsecsElapsed()) / 1000.0;
}

/// The time that this part of the calls kept.
double TimeKeptBy(double part, std::vector<double> times)
{
    const auto kept = times.begin() + std::ptrdiff_t(double(times.size()) * part);
    std::nth_element(times.begin(), kept, times.end());
    return *kept;
}

} // namespace

double BenchmarkResult::Figure() const
{
    return floor > 0.0 ? value / floor : value;
}

bool BenchmarkResult::IsWithinBound() const
{
    return Figure() <= bound;
}

BenchmarkResult MeasureRatio(const QString &name, double bound, int rounds, const std::function<void()> &floor,
                             const std::function<void()> &subject, const std::function<void()> &settle)
{
    std::vector<double> floorTimes;
    std::vector<double> subjectTimes;
    for (int round = -WarmUpRounds; round < rounds; ++round) {
        const bool floorFirst = round % 2 == 0;
        settle();
        double first = Microseconds(floorFirst ? floor : subject);
        settle();
        double second = Microseconds(floorFirst ? subject : floor);
        if (!floorFirst)
            std::swap(first, second);
        if (round >= 0) {
            floorTimes.push_back(first);
            subjectTimes.push_back(second);
        }
    }
    return {name, "us", TimeKeptBy(LowerQuartile, floorTimes), TimeKeptBy(LowerQuartile, subjectTimes), bound};
}

BenchmarkResult MeasureTime(const QString &name, double boundMs, int rounds, const std::function<void()> &work)
{
    std::vector<double> times;
    for (int round = -WarmUpRounds; round < rounds; ++round) {
        const double time = Microseconds(work);
        if (round >= 0)
            times.push_back(time);
    }
    return {name, "ms", 0.0, TimeKeptBy(Median, times) / 1000.0, boundMs};
}

QString ResultTable(const QVector<BenchmarkResult> &results)
{
    QString table;
    QTextStream out(&table);
    out << QString("%1 %2 %3 %4 %5\n").arg("what", -52).arg("floor", 14).arg("measured", 14).arg("figure", 9).arg("bound", 9);
    for (const BenchmarkResult &result : results) {
        const QString floor = result.floor > 0.0 ? QString("%1 %2").arg(result.floor, 0, 'f', 1).arg(result.unit) : "-";
        out << QString("%1 %2 %3 %4 %5 %6\n")
                   .arg(result.name, -52)
                   .arg(floor, 14)
                   .arg(QString("%1 %2").arg(result.value, 0, 'f', 1).arg(result.unit), 14)
                   .arg(result.Figure(), 9, 'f', 2)
                   .arg(result.bound, 9, 'f', 2)
                   .arg(result.IsWithinBound() ? "" : "PAST ITS BOUND");
    }
    return table;
}

QByteArray ResultJson(const QVector<BenchmarkResult> &results)
{
    QJsonArray rows;
    for (const BenchmarkResult &result : results) {
        rows.append(QJsonObject{{"name", result.name},
                                {"unit", result.unit},
                                {"floor", result.floor},
                                {"value", result.value},
                                {"figure", result.Figure()},
                                {"bound", result.bound},
                                {"withinBound", result.IsWithinBound()}});
    }
    return QJsonDocument(rows).toJson();
}
