// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictureresolution.h"

#include "openpicture.h"
#include "rasterresolution.h"
#include "replacingfile.h"
#include "stackorder.h"
#include "tiffhandle.h"
#include "tiffmetadata.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>

namespace {

constexpr double micrometresPerInch = 25400;
constexpr qint64 copyBytes = 1 << 20;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(SetPictureResolution)
};

bool Copy(QFile &from, QFile &to, FileFault &fault)
{
    QByteArray block;
    while (!(block = from.read(copyBytes)).isEmpty()) {
        if (to.write(block) != block.size())
            return fault.Set(to.errorString(), DiskAdvice());
    }
    return from.error() == QFile::NoError && to.flush() ? true : fault.Set(from.errorString(), DiskAdvice());
}

/// In all pages of a copy of the file.
bool WriteTiff(const QString &path, const PictureInfo &info, double dpi, FileFault &fault)
{
    const QByteArray name = QFile::encodeName(path);
    const int fd = ::open(name.constData(), O_RDWR | O_CLOEXEC);
    if (fd < 0)
        return fault.Set(qt_error_string(errno), DiskAdvice());
    TiffHandle tiff;
    const QString what = Text::tr("the resolution of page %1 could not be written");
    if (!tiff.OpenForUpdating(fd, name, QFileInfo(path).size()))
        return fault.Set(what.arg(1), DamagedAdvice(), tiff.TakeMessages());
    // ImageJ counts pixels to the micrometre and calls the unit none.
    const bool perMicrometre = IsMicrometre(ImageJValue(DescriptionOf(info.metadata), "unit"));
    for (int page = 0; page < info.frames; ++page) {
        TIFF *file = tiff.Get();
        const bool done = TIFFSetDirectory(file, tdir_t(page)) == 1
                          && TIFFSetField(file, TIFFTAG_RESOLUTIONUNIT, perMicrometre ? RESUNIT_NONE : RESUNIT_INCH) == 1
                          && TIFFSetField(file, TIFFTAG_XRESOLUTION, perMicrometre ? dpi / micrometresPerInch : dpi) == 1
                          && TIFFSetField(file, TIFFTAG_YRESOLUTION, perMicrometre ? dpi / micrometresPerInch : dpi) == 1
                          && TIFFRewriteDirectory(file) == 1;
        if (!done)
            return fault.Set(what.arg(page + 1), DamagedAdvice(), tiff.TakeMessages());
    }
    return tiff.Close() ? true : fault.Set(what.arg(info.frames), DiskAdvice(), tiff.TakeMessages());
}

/// The copy must be the same picture but for its resolution.
bool IsSamePicture(const QString &copyPath, const PictureInfo &info)
{
    QString error;
    const std::unique_ptr<PictureFile> copy = OpenPicture(copyPath, error);
    return copy && copy->Info().frames == info.frames && copy->Info().size == info.size
           && copy->Info().channels == info.channels && copy->Info().sampleType == info.sampleType;
}

bool CheckCanHold(const PictureInfo &info, FileFault &fault)
{
    if (info.format == PictureFormat::Fits || info.format == PictureFormat::Spe)
        return fault.Set(Text::tr("%1 files have no place for a resolution").arg(FormatName(info.format)),
                         Text::tr("Save the picture as TIFF or PNG first."));
    if (IsOmeDescription(DescriptionOf(info.metadata)))
        return fault.Set(Text::tr("its OME description gives the size of a pixel, which a resolution would contradict"),
                         Text::tr("Change the size of a pixel in the program that recorded it."));
    return true;
}

bool Write(const QString &path, const PictureInfo &info, double dpi, FileFault &fault)
{
    ReplacingFile target(path);
    QFile from(path);
    if (!from.open(QIODevice::ReadOnly))
        return fault.Set(from.errorString(), DiskAdvice());
    if (!target.Create(fault))
        return false;
    QFile to(target.TemporaryPath());
    if (!to.open(QIODevice::ReadWrite))
        return fault.Set(to.errorString(), DiskAdvice());
    const bool isRaster = info.format != PictureFormat::Tiff;
    if (isRaster ? !CopyWithResolution(from, to, info.format, dpi, fault) : !Copy(from, to, fault))
        return false;
    to.close();
    if (!isRaster && !WriteTiff(target.TemporaryPath(), info, dpi, fault))
        return false;
    if (!IsSamePicture(target.TemporaryPath(), info))
        return fault.Set(Text::tr("its copy with another resolution was not the same picture"), UnsupportedAdvice());
    return target.Commit(fault);
}

} // namespace

bool SetPictureResolution(const QString &path, double dpi, QString &error)
{
    const std::unique_ptr<PictureFile> file = OpenPicture(path, error);
    if (!file)
        return false;
    FileFault fault;
    if (CheckCanHold(file->Info(), fault) && Write(path, file->Info(), dpi, fault))
        return true;
    error = WriteFaultText(path, fault);
    return false;
}
