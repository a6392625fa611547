// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <tiffio.h>

/// An open TIFF file of libtiff. The library's messages are kept here instead of being printed.
/// Used by one thread at a time.
class TiffHandle
{
public:
    TiffHandle() = default;
    ~TiffHandle();
    TiffHandle(const TiffHandle &) = delete;
    TiffHandle &operator=(const TiffHandle &) = delete;

    /// Takes the descriptor. No directory is read yet; a mapping is never made, because a file that is
    /// cut short while it is mapped would end the program.
    bool OpenForReading(int fd, const QByteArray &name, qint64 fileSize);
    /// Takes the descriptor of an empty file.
    bool OpenForWriting(int fd, const QByteArray &name, bool bigTiff);
    /// Takes the descriptor. Pages that are there can be read and written anew.
    bool OpenForUpdating(int fd, const QByteArray &name, qint64 fileSize);
    /// Flushes what was written; false when that failed.
    bool Close();

    TIFF *Get() const { return m_tiff; }
    /// The messages since the last call, the first few of them.
    QString TakeMessages();

private:
    bool Open(int fd, const QByteArray &name, const char *mode, qint64 largestAllocation);
    static int KeepError(TIFF *, void *handle, const char *module, const char *format, va_list arguments);
    static int DropWarning(TIFF *, void *, const char *, const char *, va_list);

    TIFF *m_tiff = nullptr;
    QStringList m_errors;
};
