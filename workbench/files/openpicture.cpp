// SPDX-License-Identifier: GPL-3.0-or-later
#include "openpicture.h"

#include "filenametext.h"
#include "fitspicturefile.h"
#include "rasterpicturefile.h"
#include "spepicturefile.h"
#include "tiffpicturefile.h"

#include <QCoreApplication>
#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <new>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(OpenPicture)
};

/// An open regular file; closed at the end unless it was taken.
class OpenedFile
{
public:
    ~OpenedFile()
    {
        if (m_fd >= 0)
            ::close(m_fd);
    }

    bool Open(const QString &path, FileFault &fault);
    QByteArray FirstBytes() const;
    qint64 Size() const { return m_size; }
    int Take() { return std::exchange(m_fd, -1); }

private:
    int m_fd = -1;
    qint64 m_size = 0;
};

bool OpenedFile::Open(const QString &path, FileFault &fault)
{
    // A pipe must not block us, so the kind is looked at before anything is read.
    m_fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (m_fd < 0) {
        const int reason = errno;
        const QString advice = reason == ENOENT ? Text::tr("Look whether it was moved or renamed.")
                                                : Text::tr("Ask its owner for the right to read it, or copy it to a folder of yours.");
        return fault.Set(qt_error_string(reason), advice);
    }
    struct stat status = {};
    ::fstat(m_fd, &status);
    m_size = status.st_size;
    if (S_ISDIR(status.st_mode))
        return fault.Set(Text::tr("it is a folder"), Text::tr("Choose the picture files in it."));
    if (!S_ISREG(status.st_mode))
        return fault.Set(Text::tr("it is not an ordinary file"), Text::tr("Choose a picture file."));
    if (m_size == 0)
        return fault.Set(Text::tr("it is empty"), DamagedAdvice());
    return true;
}

QByteArray OpenedFile::FirstBytes() const
{
    QByteArray bytes(FormatSignatureBytes, '\0');
    const ssize_t got = ::pread(m_fd, bytes.data(), size_t(bytes.size()), 0);
    bytes.truncate(int(qMax(ssize_t(0), got)));
    return bytes;
}

bool SetUnknown(const QByteArray &firstBytes, FileFault &fault)
{
    if (firstBytes.startsWith("\x1f\x8b") || firstBytes.startsWith("PK\x03\x04") || firstBytes.startsWith("BZh"))
        return fault.Set(Text::tr("it is a compressed archive"), Text::tr("Unpack it first."));
    return fault.Set(Text::tr("its content is none of TIFF, FITS, PNG, JPEG, BMP or SPE"), UnsupportedAdvice());
}

template <typename File, typename... Arguments>
std::unique_ptr<PictureFile> Opened(std::unique_ptr<File> file, FileFault &fault, Arguments... arguments)
{
    if (!file->Open(arguments..., fault))
        return nullptr;
    return file;
}

std::unique_ptr<PictureFile> OpenContent(const QString &path, FileFault &fault)
{
    OpenedFile opened;
    if (!opened.Open(path, fault))
        return nullptr;
    const QByteArray firstBytes = opened.FirstBytes();
    const PictureFormat format = FormatOfContent(firstBytes);
    switch (format) {
    case PictureFormat::Tiff:
        return Opened(std::make_unique<TiffPictureFile>(path), fault, opened.Take(), opened.Size());
    case PictureFormat::Fits:
        return Opened(std::make_unique<FitsPictureFile>(path), fault);
    case PictureFormat::Spe:
        return Opened(std::make_unique<SpePictureFile>(path), fault);
    case PictureFormat::Unknown:
        SetUnknown(firstBytes, fault);
        return nullptr;
    default:
        return Opened(std::make_unique<RasterPictureFile>(path, format), fault);
    }
}

void WarnOfWrongEnding(PictureFile &file)
{
    const PictureFormat format = file.Info().format;
    if (FormatOfName(file.Path()) == format)
        return;
    file.AddWarning(Text::tr("\u201c%1\u201d is a %2 file, though its name does not end in \u201c.%3\u201d.")
                        .arg(FileNameTextOf(file.Path()), FormatName(format), FormatSuffixes(format).first()));
}

} // namespace

std::unique_ptr<PictureFile> OpenPicture(const QString &path, QString &error)
{
    FileFault fault;
    std::unique_ptr<PictureFile> file;
    try {
        file = OpenContent(path, fault);
    } catch (const std::bad_alloc &) {
        fault.Set(Text::tr("there is not enough memory to open it"), MemoryAdvice());
    }
    error = file ? QString() : ReadFaultText(path, fault);
    if (file)
        WarnOfWrongEnding(*file);
    return file;
}
