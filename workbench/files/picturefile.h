// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "filefault.h"
#include "framerows.h"
#include "picture.h"
#include "pictureinfo.h"
#include "spectralaxis.h"

/// An open picture file. It is kept open, so that a file deleted or replaced meanwhile can still be
/// browsed; nothing but the frame asked for is read. Made by OpenPicture(); one thread at a time.
class PictureFile
{
public:
    virtual ~PictureFile() = default;
    PictureFile(const PictureFile &) = delete;
    PictureFile &operator=(const PictureFile &) = delete;

    const QString &Path() const { return m_path; }
    const PictureInfo &Info() const { return m_info; }
    /// Where a frame belongs in a stack, "channel 2 of 3, slice 5 of 7"; empty if the file does not say.
    virtual QString FrameDescription(int index) const;
    /// What the columns, or the rows, of a frame mean; empty if the file does not say.
    virtual SpectralAxis AxisOf(int index) const;

    /// Decodes frame `index` (from 0). `frame` gives its buffer for the new samples when it fits. On
    /// failure `frame` is undefined and `error` says what, where and what to do. Samples that lie in the file as they
    /// are in a Picture are told to `rows`, which is borrowed, as they come.
    bool ReadFrame(int index, Picture &frame, QString &error, FrameRows *rows = nullptr);

    /// Adds a message to Info().warning.
    void AddWarning(const QString &message);

protected:
    explicit PictureFile(const QString &path);

    /// What frames of the size of the first one mean by this metadata; says what cannot be used of it.
    SpectralAxis AxisOfFirst(const QVector<MetadataEntry> &metadata);

    /// `rows` may be null.
    virtual bool Decode(int index, Picture &frame, FrameRows *rows, FileFault &fault) = 0;
    PictureInfo &MutableInfo() { return m_info; }

private:
    const QString m_path;
    PictureInfo m_info;
};
