// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturethumbnails.h"

#include "filenametext.h"
#include "openpicture.h"
#include "scaledsamples.h"

#include <QCoreApplication>
#include <QMutexLocker>

#include <new>

namespace {

constexpr double LargeBytes = 64 << 20;
constexpr double MostBytes = 1 << 30;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(PictureThumbnails)
};

double BytesOf(const PictureInfo &info)
{
    return double(info.size.width()) * info.size.height() * info.channels * BytesPerSample(info.sampleType);
}

QImage Thumbnail(const Picture &frame, int edge)
{
    // What has 8 bits was made for the eye.
    const SampleRange range = frame.Type() == SampleType::U8 ? SampleRange{0, 255} : ScaledSamples::TypicalRange(frame);
    const QImage image = ScaledSamples::Image(frame, range, 1);
    if (image.isNull() || (image.width() <= edge && image.height() <= edge))
        return image;
    const QSize size = image.size().scaled(edge, edge, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

QStringList PictureThumbnails::Suffixes() const
{
    return OpenableSuffixes();
}

QImage PictureThumbnails::Make(const QString &path, int edge, QString &fault)
{
    try {
        const std::unique_ptr<PictureFile> file = OpenPicture(path, fault);
        if (!file)
            return QImage();
        const double bytes = BytesOf(file->Info());
        if (bytes > MostBytes) {
            fault = Text::tr("\u201c%1\u201d is too large for a thumbnail. It can still be opened.").arg(FileNameTextOf(path));
            return QImage();
        }
        QMutexLocker lock(bytes > LargeBytes ? &m_large : nullptr);
        Picture frame;
        return file->ReadFrame(0, frame, fault) ? Thumbnail(frame, edge) : QImage();
    } catch (const std::bad_alloc &) {
        fault = Text::tr("There is not enough memory for a thumbnail of \u201c%1\u201d.").arg(FileNameTextOf(path));
        return QImage();
    }
}
