// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

#include <array>

/// The pictures that were made last, for the sake of their memory: once nobody else holds one, the next is written into
/// it. To get fresh memory from the system for each takes as long as to fill it. For one thread that makes pictures;
/// those that were given away may be held anywhere.
class UsedPictures
{
public:
    /// A picture of this size that nobody else holds, its pixels undefined; null if there is none.
    QImage Take(const QSize &size);
    /// Remembers a picture that is about to be given away, unless it is so large that its memory should not stay.
    void Remember(const QImage &picture);

private:
    /// One is looked at, one is on its way to it, one is made.
    static constexpr size_t Most = 3;
    static constexpr qsizetype LargestBytes = 64 << 20;

    std::array<QImage, Most> m_pictures;
    size_t m_oldest = 0;
};
