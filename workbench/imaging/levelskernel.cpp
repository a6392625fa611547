// SPDX-License-Identifier: GPL-3.0-or-later
#include "levelskernel.h"

namespace {

// Compiled into each of the functions below with that function's instruction set.
#define INLINE_LOOP inline __attribute__((always_inline))

constexpr int kFractionBits = 24; // the largest fraction for which white still fits in 32 bits

/// 255 / range in fixed point, rounded up so that exact halves round up too.
quint32 ScaleFor(quint32 range) { return ((255u << kFractionBits) + range - 1) / range; }

template <typename Sample>
INLINE_LOOP void MapLoop(const Sample *samples, int count, Sample left, Sample range, quint32 scale,
                         quint8 *grey)
{
    constexpr quint32 half = 1u << (kFractionBits - 1);
    for (int i = 0; i < count; ++i) {
        const Sample sample = samples[i];
        Sample above = sample > left ? Sample(sample - left) : Sample(0);
        above = above < range ? above : range;
        grey[i] = quint8((above * scale + half) >> kFractionBits);
    }
}

template <typename Sample>
INLINE_LOOP void RangeLoop(const Sample *samples, int count, Sample *least, Sample *most)
{
    Sample low = *least;
    Sample high = *most;
    for (int i = 0; i < count; ++i) {
        low = samples[i] < low ? samples[i] : low;
        high = samples[i] > high ? samples[i] : high;
    }
    *least = low;
    *most = high;
}

template <typename Sample>
struct Loops
{
    void (*map)(const Sample *, int, Sample, Sample, quint32, quint8 *);
    void (*range)(const Sample *, int, Sample *, Sample *);
};

#if defined(__x86_64__)

#define AVX2 __attribute__((target("avx2")))
#define AVX512 __attribute__((target("avx512f,avx512bw,avx512vl,prefer-vector-width=512")))

template <typename Sample>
AVX2 void MapAvx2(const Sample *samples, int count, Sample left, Sample range, quint32 scale, quint8 *grey)
{
    MapLoop(samples, count, left, range, scale, grey);
}

template <typename Sample>
AVX2 void RangeAvx2(const Sample *samples, int count, Sample *least, Sample *most)
{
    RangeLoop(samples, count, least, most);
}

template <typename Sample>
AVX512 void MapAvx512(const Sample *samples, int count, Sample left, Sample range, quint32 scale,
                      quint8 *grey)
{
    MapLoop(samples, count, left, range, scale, grey);
}

template <typename Sample>
AVX512 void RangeAvx512(const Sample *samples, int count, Sample *least, Sample *most)
{
    RangeLoop(samples, count, least, most);
}

#endif

template <typename Sample>
Loops<Sample> BestLoops()
{
#if defined(__x86_64__)
    if (__builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw")
        && __builtin_cpu_supports("avx512vl"))
        return { MapAvx512<Sample>, RangeAvx512<Sample> };
    if (__builtin_cpu_supports("avx2"))
        return { MapAvx2<Sample>, RangeAvx2<Sample> };
#endif
    return { MapLoop<Sample>, RangeLoop<Sample> };
}

template <typename Sample>
void Map(const Sample *samples, int count, int left, int right, quint8 *grey)
{
    static const Loops<Sample> loops = BestLoops<Sample>();
    loops.map(samples, count, Sample(left), Sample(right - left), ScaleFor(quint32(right - left)), grey);
}

template <typename Sample>
void Find(const Sample *samples, int count, int *least, int *most)
{
    static const Loops<Sample> loops = BestLoops<Sample>();
    auto low = Sample(*least);
    auto high = Sample(*most);
    loops.range(samples, count, &low, &high);
    *least = low;
    *most = high;
}

} // namespace

namespace LevelsKernel {

void MapLinear(const quint8 *samples, int count, int left, int right, quint8 *grey)
{
    Map(samples, count, left, right, grey);
}

void MapLinear(const quint16 *samples, int count, int left, int right, quint8 *grey)
{
    Map(samples, count, left, right, grey);
}

void FindRange(const quint8 *samples, int count, int *least, int *most) { Find(samples, count, least, most); }

void FindRange(const quint16 *samples, int count, int *least, int *most)
{
    Find(samples, count, least, most);
}

} // namespace LevelsKernel
