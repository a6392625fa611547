// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "runfacts.h"

#include <QStringList>

/// What a run has come to, for the user.
struct RunReceipt
{
    QStringList files; ///< the summary last; empty when nothing was saved
    RunFacts facts;
    RunOutcome outcome;
    QVector<FrameStamp> stamps;
    QString error;   ///< in words, when something went wrong
    QString warning; ///< in words, of what is wrong beside the frames

    /// Every frame that was to be recorded is in the files.
    bool IsWhole() const;
    /// A line each, as the command line prints them.
    QString Text() const;
};

Q_DECLARE_METATYPE(RunReceipt)
