// SPDX-License-Identifier: GPL-3.0-or-later
#include "gammatable.h"

#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

constexpr int White = 255;

/// Greys that are put together in a register and stored at once: the loop is bound by its loads and stores.
constexpr int Together = int(sizeof(quint64));

template <typename Sample>
constexpr int SamplesInWord = int(sizeof(quint64) / sizeof(Sample));

/// Grey of the k-th sample of a word of the memory.
template <typename Sample>
quint64 GreyIn(const uchar *greys, quint64 word, int k)
{
#if Q_BYTE_ORDER == Q_BIG_ENDIAN
    k = SamplesInWord<Sample> - 1 - k;
#endif
    return greys[Sample(word >> (8 * int(sizeof(Sample)) * k))];
}

template <typename Sample>
void LookUpIn(const uchar *greys, const Sample *samples, int count, uchar *grey)
{
    int i = 0;
    for (; i + Together <= count; i += Together) {
        quint64 words[sizeof(Sample)];
        std::memcpy(words, samples + i, sizeof words);
        quint64 packed = 0;
        for (int k = 0; k < Together; ++k)
            packed |= GreyIn<Sample>(greys, words[k / SamplesInWord<Sample>], k % SamplesInWord<Sample>) << (8 * k);
        packed = qToLittleEndian(packed);
        std::memcpy(grey + i, &packed, sizeof packed);
    }
    for (; i < count; ++i)
        grey[i] = greys[samples[i]];
}

} // namespace

void GammaTable::Prepare(const DisplayLevels &levels, int size)
{
    const bool isUpToDate = int(m_greys.size()) == size && m_levels.left == levels.left
                            && m_levels.right == levels.right && m_levels.gamma == levels.gamma;
    if (isUpToDate)
        return;
    m_levels = levels;
    m_greys.resize(size_t(size));
    // The grey rises with the value: each grey fills the values from its first one to the next grey's.
    int from = 0;
    for (int grey = 0; grey < White; ++grey) {
        const int next = FirstValueOf(grey + 1);
        std::fill(m_greys.begin() + from, m_greys.begin() + next, uchar(grey));
        from = next;
    }
    std::fill(m_greys.begin() + from, m_greys.end(), uchar(White));
}

/// Found by turning the formula round, and then put right by the formula itself.
int GammaTable::FirstValueOf(int grey) const
{
    const double part = std::pow((grey - 0.5) / White, m_levels.gamma);
    int value = m_levels.left + int(std::ceil(part * (m_levels.right - m_levels.left)));
    while (value > m_levels.left && GreyOf(value - 1) >= grey)
        --value;
    while (GreyOf(value) < grey)
        ++value;
    return value;
}

int GammaTable::GreyOf(int value) const
{
    if (value <= m_levels.left)
        return 0;
    if (value >= m_levels.right)
        return White;
    const double part = double(value - m_levels.left) / (m_levels.right - m_levels.left);
    return int(White * std::pow(part, 1.0 / m_levels.gamma) + 0.5);
}

void GammaTable::LookUp(const quint8 *samples, int count, uchar *grey) const
{
    LookUpIn(m_greys.data(), samples, count, grey);
}

void GammaTable::LookUp(const quint16 *samples, int count, uchar *grey) const
{
    LookUpIn(m_greys.data(), samples, count, grey);
}
