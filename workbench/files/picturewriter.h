// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "picture.h"
#include "pictureinfo.h"
#include "replacingfile.h"

/// How a picture file is to be written.
struct SaveOptions
{
    int frameCount = 1; ///< exactly this many frames will be appended
    bool compress = false; ///< TIFF: deflate, without loss; PNG and JPEG are always compressed
    int jpegQuality = 95; ///< 0 to 100
    double dpiX = 0; ///< pixels an inch; 0 says nothing
    double dpiY = 0;
    /// What the picture came with, usually PictureInfo::metadata of the file it was read from.
    QVector<MetadataEntry> metadata;
};

/// Writes a picture file frame by frame. The file of that name stays as it is until Commit(); without
/// Commit(), or after a failure, nothing is left behind. Made by CreatePicture(); one thread at a time.
class PictureWriter
{
public:
    virtual ~PictureWriter() = default;
    PictureWriter(const PictureWriter &) = delete;
    PictureWriter &operator=(const PictureWriter &) = delete;

    /// Makes the temporary file, so that a folder without rights is found before the first frame.
    bool Create(QString &error);
    /// Adds a frame. All frames of a file have the shape and the sample type of the first one.
    bool Append(const Picture &frame, QString &error);
    /// Puts the file, which has all of its frames, in its place.
    bool Commit(QString &error);

protected:
    PictureWriter(const QString &path, const SaveOptions &options);

    const SaveOptions &Options() const { return m_options; }
    const QString &TemporaryPath() const { return m_file.TemporaryPath(); }
    int FramesWritten() const { return m_framesWritten; }

    virtual bool Write(const Picture &frame, FileFault &fault) = 0;
    /// Brings everything to the temporary file and closes it.
    virtual bool Finish(FileFault &fault) = 0;

private:
    struct Shape
    {
        QSize size;
        int channels = 0;
        SampleType type = SampleType::U8;

        bool Fits(const Picture &frame) const
        {
            return frame.Size() == size && frame.Channels() == channels && frame.Type() == type;
        }
    };

    bool Report(bool done, const FileFault &fault, QString &error) const;

    const QString m_path;
    const SaveOptions m_options;
    ReplacingFile m_file;
    Shape m_shape; ///< of the first frame
    int m_framesWritten = 0;
};
