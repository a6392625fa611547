// SPDX-License-Identifier: GPL-3.0-or-later
#include "runreceipt.h"

#include "runsummary.h"

#include <QCoreApplication>

namespace {

constexpr int ListedFiles = 3;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(RunReceipt)
};

} // namespace

bool RunReceipt::IsWhole() const
{
    const bool endedOnPurpose = outcome.end == RunEnd::Complete || outcome.end == RunEnd::Stopped;
    return endedOnPurpose && error.isEmpty() && outcome.counts.Lost() == 0;
}

QString RunReceipt::Text() const
{
    QString text;
    for (const auto &line : OutcomeLines(facts, outcome, stamps))
        text += line.first + ": " + line.second + '\n';
    for (const QString &file : files.size() > ListedFiles
                                   ? QStringList{ files.first(), "...", files[files.size() - 2], files.last() }
                                   : files)
        text += Text::tr("File") + ": " + file + '\n';
    if (!error.isEmpty())
        text += Text::tr("Error") + ": " + error + '\n';
    if (!warning.isEmpty())
        text += Text::tr("Warning") + ": " + warning + '\n';
    return text;
}
