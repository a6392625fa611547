// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Why a file could not be read or written, for the user: what is wrong and where, and what to do next.
struct FileFault
{
    QString what;   ///< a clause without a full stop: "page 3: strip 0 lies beyond the end of the file"
    QString advice; ///< a sentence
    QString detail; ///< what the library beneath said; may be empty
    bool isDiskFull = false; ///< less data may still find room
    bool isNameTaken = false; ///< another name may be free

    /// Always false, for "return fault.Set(...)".
    bool Set(const QString &what, const QString &advice, const QString &detail = QString());
};

/// The whole message: “cells.tif” cannot be read: … (…). …
QString ReadFaultText(const QString &path, const FileFault &fault);
QString WriteFaultText(const QString &path, const FileFault &fault);

/// The usual next steps.
QString DamagedAdvice();
QString UnsupportedAdvice();
QString DiskAdvice();
QString MemoryAdvice();
