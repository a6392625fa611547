// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "runfacts.h"

#include <QByteArray>

#include <functional>

/// The header and the image file directories of a TIFF file whose frames lie one behind the other after HeaderBytes
/// bytes, each as one uncompressed strip. TIFF 6.0 below 4 GiB, BigTIFF from there on, in the machine's byte order.
/// libtiff writes a directory only together with its samples, so these few tags are laid out here.
class TiffDirectories
{
public:
    static constexpr int HeaderBytes = 16; ///< a BigTIFF header; a short one leaves its second half empty

    TiffDirectories(const RunFacts &facts, int frames);

    /// Of the first page, in UTF-8.
    void SetFirstDescription(QByteArray text);
    bool IsBigTiff() const { return m_isBig; }
    QByteArray Header() const;
    /// Takes the next bytes; false ends the writing.
    using Sink = std::function<bool(const QByteArray &bytes)>;
    /// What is to be written behind the last frame: the description and then the directories, in pieces.
    bool Write(const Sink &sink) const;

private:
    qint64 DataEnd() const { return HeaderBytes + m_frames * m_facts.FrameBytes(); }
    /// Directories and texts begin at even places.
    qint64 DescriptionOffset() const { return DataEnd() + DataEnd() % 2; }
    qint64 FirstDirectoryOffset() const;
    QByteArray DirectoryAt(qint64 offset, int frame) const;
    void DecideKind();

    const RunFacts m_facts;
    const int m_frames;
    QByteArray m_description; ///< with its zero
    bool m_isBig = false;
};
