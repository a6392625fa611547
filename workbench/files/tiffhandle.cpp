// SPDX-License-Identifier: GPL-3.0-or-later
#include "tiffhandle.h"

#include <memory>
#include <unistd.h>

namespace {

// A damaged file can have a message for each of a million strips; the first ones tell the reason.
constexpr int keptMessages = 3;

/// What libtiff allocates for itself are tables that stand in the file (at most four times as large in memory)
/// and raw strips.
qint64 LargestAllocation(qint64 fileSize)
{
    constexpr qint64 smallTables = 8 << 20;
    return smallTables + 4 * fileSize;
}

} // namespace

TiffHandle::~TiffHandle()
{
    Close();
}

bool TiffHandle::OpenForReading(int fd, const QByteArray &name, qint64 fileSize)
{
    return Open(fd, name, "rmhD", LargestAllocation(fileSize));
}

bool TiffHandle::OpenForUpdating(int fd, const QByteArray &name, qint64 fileSize)
{
    return Open(fd, name, "r+mhD", LargestAllocation(fileSize));
}

bool TiffHandle::OpenForWriting(int fd, const QByteArray &name, bool bigTiff)
{
    return Open(fd, name, bigTiff ? "w8" : "w4", 0);
}

bool TiffHandle::Open(int fd, const QByteArray &name, const char *mode, qint64 largestAllocation)
{
    Close();
    m_errors.clear();
    const std::unique_ptr<TIFFOpenOptions, void (*)(TIFFOpenOptions *)> options(TIFFOpenOptionsAlloc(), TIFFOpenOptionsFree);
    TIFFOpenOptionsSetErrorHandlerExtR(options.get(), KeepError, this);
    TIFFOpenOptionsSetWarningHandlerExtR(options.get(), DropWarning, nullptr);
    TIFFOpenOptionsSetMaxSingleMemAlloc(options.get(), largestAllocation);
    m_tiff = TIFFFdOpenExt(fd, name.constData(), mode, options.get());
    if (!m_tiff)
        ::close(fd);
    return m_tiff != nullptr;
}

bool TiffHandle::Close()
{
    if (!m_tiff)
        return true;
    const bool flushed = TIFFFlush(m_tiff) == 1;
    TIFFClose(m_tiff);
    m_tiff = nullptr;
    return flushed && m_errors.isEmpty();
}

QString TiffHandle::TakeMessages()
{
    const QString text = m_errors.join("; ");
    m_errors.clear();
    return text;
}

int TiffHandle::KeepError(TIFF *, void *handle, const char *, const char *format, va_list arguments)
{
    QStringList &errors = static_cast<TiffHandle *>(handle)->m_errors;
    QString text = QString::vasprintf(format, arguments);
    while (text.endsWith('.'))
        text.chop(1);
    if (errors.size() < keptMessages && !errors.contains(text))
        errors << text;
    return 1; // handled: the global handler is not called
}

int TiffHandle::DropWarning(TIFF *, void *, const char *, const char *, va_list)
{
    return 1; // unknown tags of other programs and the like
}
