// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "filefault.h"
#include "picture.h"
#include "replacingfile.h"

#include <QFile>

/// Writes the samples of pictures as text: a line for each row, columns apart by commas, three columns for a
/// pixel in colour. Lines that begin with # say what it is; numbers have a point and no grouping, whatever the
/// user's language. Nothing is left behind without Commit(). One thread.
class CsvWriter
{
public:
    explicit CsvWriter(const QString &path);

    /// `source` names the picture.
    bool Create(const QString &source, FileFault &fault);
    /// `title` tells this frame from the others; may be empty.
    bool Append(const Picture &frame, const QString &title, FileFault &fault);
    bool Commit(FileFault &fault);

private:
    bool Put(const QByteArray &text, FileFault &fault);

    ReplacingFile m_target;
    QFile m_file;
};
