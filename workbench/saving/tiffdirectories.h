// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "runfacts.h"

#include <QByteArray>

/// The header and the image file directories of a TIFF file whose frames lie one behind the other after HeaderBytes
/// bytes, each as one uncompressed strip. TIFF 6.0 below 4 GiB, BigTIFF from there on, in the machine's byte order.
/// libtiff writes a directory only together with its samples, so these few tags are laid out here.
class TiffDirectories
{
public:
    static constexpr int HeaderBytes = 16; ///< a BigTIFF header; a short one leaves its second half empty

    TiffDirectories(const RunFacts &facts, int frames);

    /// Of the first page, in UTF-8.
    void SetFirstDescription(const QByteArray &text);
    bool IsBigTiff() const { return m_isBig; }
    QByteArray Header() const;
    /// To be written behind the last frame.
    QByteArray Bytes() const;

private:
    qint64 DataEnd() const { return HeaderBytes + m_frames * m_facts.FrameBytes(); }
    void DecideKind();

    const RunFacts m_facts;
    const int m_frames;
    QByteArray m_description;
    bool m_isBig = false;
};
