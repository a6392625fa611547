// SPDX-License-Identifier: GPL-3.0-or-later
#include "sampleswap.h"

#include "picture.h"

#include <QtEndian>

void SwapSampleBytes(Picture &picture)
{
    const int sampleBytes = BytesPerSample(picture.Type());
    const qint64 count = picture.ByteCount() / sampleBytes;
    uchar *samples = picture.Data();
    if (sampleBytes == 2)
        qbswap<2>(samples, count, samples);
    else if (sampleBytes == 4)
        qbswap<4>(samples, count, samples);
    else if (sampleBytes == 8)
        qbswap<8>(samples, count, samples);
}
