// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framecache.h"
#include "picturefile.h"

#include <list>
#include <memory>

/// Frames of opened files. A handful of files, those used last, is kept open, and one that was found deleted or
/// replaced until it is closed, so that it can still be browsed and saved; frames already decoded are kept up to a set
/// number of bytes, but of a file whose samples are not compressed three: the system keeps the file at hand, and memory
/// that was just used is filled soonest. One thread.
class PictureAccess
{
public:
    /// Which file: a number that stays with it under any name, and the name it has now.
    struct FileName
    {
        quint64 id = 0;
        QString path;
    };

    PictureAccess(int mostOpenFiles, qint64 cacheBytes);

    /// The open file; null when it cannot be opened, and then `error` says why.
    PictureFile *Open(const FileName &name, QString &error);
    /// `rows` may be null; a frame that is at hand is not told to it.
    bool ReadFrame(const FileName &name, int index, Picture &frame, QString &error, FrameRows *rows = nullptr);
    /// Keeps a frame of a file that is open for the time when it is asked for. Nothing when it is there already, when
    /// it cannot be read, which is told when it is asked for, and when it would push out the frame used last.
    void ReadAhead(quint64 id, int index);
    /// What happened to the file on the disk since it was opened; empty when nothing did or when it was
    /// told already.
    QString TakeNews(const FileName &name);
    /// Forgets the file and its frames: the next read opens it anew.
    void Close(quint64 id);
    /// The open file has a new name.
    void Rename(quint64 id, const QString &path);

private:
    /// What tells a file on the disk from another of the same name.
    struct Identity
    {
        quint64 device = 0;
        quint64 inode = 0;
        qint64 size = -1; ///< -1: there is none
        qint64 changedNs = 0;

        bool operator==(const Identity &other) const;
    };
    struct OpenFile
    {
        FileName name;
        std::unique_ptr<PictureFile> file;
        Identity identity;
        bool isLost = false; ///< deleted or replaced: it could not be opened again
    };
    using OpenFiles = std::list<OpenFile>;

    static Identity IdentityOf(const QString &path);
    OpenFiles::iterator Find(quint64 id);
    /// That of a frame that goes when the next one of this file is kept; null when none goes.
    Picture MemoryForFrame(const OpenFile &file);
    void CloseSuperfluous();

    const int m_mostOpenFiles;
    FrameCache m_cache;
    OpenFiles m_files; ///< the one used last comes first
};
