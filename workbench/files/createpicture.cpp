// SPDX-License-Identifier: GPL-3.0-or-later
#include "createpicture.h"

#include "fitspicturewriter.h"
#include "pictureformat.h"
#include "rasterpicturewriter.h"
#include "tiffpicturewriter.h"

#include <QCoreApplication>

namespace {

std::unique_ptr<PictureWriter> WriterFor(const QString &path, const SaveOptions &options)
{
    const PictureFormat format = FormatOfName(path);
    switch (format) {
    case PictureFormat::Tiff: return std::make_unique<TiffPictureWriter>(path, options);
    case PictureFormat::Fits: return std::make_unique<FitsPictureWriter>(path, options);
    case PictureFormat::Png:
    case PictureFormat::Jpeg: return std::make_unique<RasterPictureWriter>(path, format, options);
    default: return nullptr;
    }
}

} // namespace

std::unique_ptr<PictureWriter> CreatePicture(const QString &path, const SaveOptions &options, QString &error)
{
    std::unique_ptr<PictureWriter> writer = WriterFor(path, options);
    if (!writer) {
        FileFault fault;
        fault.Set(QCoreApplication::translate("CreatePicture", "its name ends in no format that can be written"),
                  QCoreApplication::translate("CreatePicture", "End the name in .tif, .fits, .png or .jpg."));
        error = WriteFaultText(path, fault);
        return nullptr;
    }
    if (!writer->Create(error))
        return nullptr;
    return writer;
}

bool SavePicture(const QString &path, const Picture &frame, const SaveOptions &options, QString &error)
{
    const std::unique_ptr<PictureWriter> writer = CreatePicture(path, options, error);
    return writer && writer->Append(frame, error) && writer->Commit(error);
}
