// SPDX-License-Identifier: GPL-3.0-or-later
#include "ricedecoder.h"

#include <algorithm>

namespace {

/// Reads bits, the highest of a byte first. Past the end it gives zeros and says so.
class BitReader
{
public:
    explicit BitReader(const QByteArray &bytes)
        : m_bytes(bytes)
        , m_bitCount(qint64(bytes.size()) * 8)
    {
    }

    bool IsPastEnd() const { return m_position > m_bitCount; }

    quint32 Read(int count)
    {
        quint32 value = 0;
        for (int i = 0; i < count; ++i)
            value = value << 1 | ReadBit();
        return value;
    }

    /// Number of zeros before the next one, which is read too.
    quint32 ReadZeros()
    {
        quint32 zeros = 0;
        while (!IsPastEnd() && ReadBit() == 0)
            ++zeros;
        return zeros;
    }

private:
    quint32 ReadBit()
    {
        const qint64 position = m_position++;
        if (position >= m_bitCount)
            return 0;
        return uchar(m_bytes[int(position / 8)]) >> (7 - position % 8) & 1u;
    }

    const QByteArray &m_bytes;
    const qint64 m_bitCount;
    qint64 m_position = 0;
};

/// Numbers of the coding that depend on the size of a sample.
struct Coding
{
    int headBits;   ///< of the number at the start of a block
    int plainLimit; ///< number of low bits that means: differences as they are
};

Coding CodingFor(int bytesPerSample)
{
    switch (bytesPerSample) {
    case 1: return {3, 6};
    case 2: return {4, 14};
    default: return {5, 25};
    }
}

quint32 ReadDifference(BitReader &reader, int lowBits, int plainLimit, int sampleBits)
{
    if (lowBits < 0)
        return 0;
    if (lowBits == plainLimit)
        return reader.Read(sampleBits);
    const quint32 high = reader.ReadZeros();
    return high << lowBits | reader.Read(lowBits);
}

double AsSample(quint32 bits, int bytesPerSample)
{
    switch (bytesPerSample) {
    case 1: return quint8(bits);
    case 2: return qint16(quint16(bits));
    default: return qint32(bits);
    }
}

} // namespace

bool DecodeRice(const QByteArray &bytes, int bytesPerSample, int blockSize, std::vector<double> &values)
{
    const Coding coding = CodingFor(bytesPerSample);
    const int sampleBits = 8 * bytesPerSample;
    BitReader reader(bytes);
    quint32 sample = reader.Read(sampleBits);
    for (size_t block = 0; block < values.size() && !reader.IsPastEnd(); block += size_t(blockSize)) {
        const int lowBits = int(reader.Read(coding.headBits)) - 1;
        const size_t end = std::min(values.size(), block + size_t(blockSize));
        for (size_t i = block; i < end; ++i) {
            const quint32 folded = ReadDifference(reader, lowBits, coding.plainLimit, sampleBits);
            sample += folded & 1 ? ~(folded >> 1) : folded >> 1; // 0, -1, 1, -2, ...
            values[i] = AsSample(sample, bytesPerSample);
        }
    }
    return !reader.IsPastEnd();
}
