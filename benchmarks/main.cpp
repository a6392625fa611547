// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarks.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QLoggingCategory>
#include <QTextStream>

#include <algorithm>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription("Times what the program exists for against floors timed in the same run.");
    parser.addHelpOption();
    const QCommandLineOption json("json", "Print JSON instead of a table.");
    const QCommandLineOption check("check", "End with 1 when a figure is past its bound.");
    const QCommandLineOption only("only", "Run the groups whose name contains <text>.", "text");
    parser.addOptions({json, check, only});
    parser.process(application);

    QLoggingCategory::setFilterRules("default.debug=false");
    QVector<BenchmarkResult> results;
    for (const BenchmarkGroup &group : BenchmarkGroups()) {
        if (QString(group.name).contains(parser.value(only)))
            results += group.run();
    }

    QTextStream out(stdout);
    out << (parser.isSet(json) ? QString::fromUtf8(ResultJson(results)) : ResultTable(results));
    const bool allWithin = std::all_of(results.cbegin(), results.cend(),
                                       [](const BenchmarkResult &result) { return result.IsWithinBound(); });
    return parser.isSet(check) && !allWithin ? 1 : 0;
}
