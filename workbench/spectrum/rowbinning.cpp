// SPDX-License-Identifier: GPL-3.0-or-later
#include "rowbinning.h"

#include "bothhalves.h"
#include "sampleview.h"

#include <algorithm>

namespace {

// Compiled into each of the functions below with that function's instruction set.
#define INLINE_LOOP inline __attribute__((always_inline))

/// From that many samples on a second thread is worth its start.
constexpr qint64 worthwhileSamples = 512 * 1024;
constexpr int rowsAtOnce = 8;

/// Sums of columns and their largest samples. Several rows at a time, so that the sums are not what is waited for. That
/// nothing overlaps is said of the parameters: the compiler believes it only there, and else adds one after the other.
template <typename Sample>
INLINE_LOOP void AddRowsLoop(const Sample *const *rows, quint32 *__restrict sums, Sample *__restrict largest, int count)
{
    for (int i = 0; i < count; ++i) {
        quint32 sum = 0;
        Sample most = largest[i];
        for (int row = 0; row < rowsAtOnce; ++row) {
            const Sample sample = rows[row][i];
            sum += sample;
            most = sample > most ? sample : most;
        }
        sums[i] += sum;
        largest[i] = most;
    }
}

#if defined(__x86_64__)

template <typename Sample>
__attribute__((target("avx2"))) void AddRowsAvx2(const Sample *const *rows, quint32 *__restrict sums, Sample *__restrict largest,
                                                 int count)
{
    AddRowsLoop(rows, sums, largest, count);
}

#endif

template <typename Sample>
auto BestAddRows() -> void (*)(const Sample *const *, quint32 *__restrict, Sample *__restrict, int)
{
#if defined(__x86_64__)
    if (__builtin_cpu_supports("avx2"))
        return AddRowsAvx2<Sample>;
#endif
    return AddRowsLoop<Sample>;
}

template <typename Sample>
struct Accumulator
{
    explicit Accumulator(int samplesPerRow)
        : sums(size_t(samplesPerRow), 0)
        , largest(size_t(samplesPerRow), 0)
        , none(size_t(samplesPerRow), 0)
    {
    }

    /// Rows that are missing in the last group are rows of nothing.
    void Add(const SampleView &picture, int top, int bottom)
    {
        static const auto addRows = BestAddRows<Sample>();
        for (int y = top; y < bottom; y += rowsAtOnce) {
            const Sample *rows[rowsAtOnce];
            for (int k = 0; k < rowsAtOnce; ++k)
                rows[k] = y + k < bottom ? reinterpret_cast<const Sample *>(picture.Row8(y + k)) : none.data();
            addRows(rows, sums.data(), largest.data(), int(sums.size()));
        }
    }

    std::vector<quint32> sums;
    std::vector<Sample> largest;
    std::vector<Sample> none; ///< a row of nothing
};

/// Pixels of a colour picture have three samples.
template <typename Sample>
void Store(const Accumulator<Sample> &columns, const SampleView &picture, BinnedLine *line)
{
    const int channels = picture.isColour ? 3 : 1;
    const auto end = Sample((1U << picture.bitDepth) - 1);
    for (size_t i = 0; i < columns.sums.size(); ++i) {
        line->sums[i / size_t(channels)] += columns.sums[i];
        line->saturated[i / size_t(channels)] |= columns.largest[i] >= end;
    }
}

template <typename Sample>
void BinRowsOf(const SampleView &picture, int top, int bottom, BinnedLine *line)
{
    const qint64 samplesPerRow = picture.SamplesPerRow();
    Accumulator<Sample> first(picture.SamplesPerRow());
    Accumulator<Sample> second(0);
    ForBothHalves(bottom - top, int(worthwhileSamples / std::max(qint64(1), samplesPerRow)), [&](int from, int to) {
        if (from > 0)
            second = Accumulator<Sample>(picture.SamplesPerRow());
        (from > 0 ? second : first).Add(picture, top + from, top + to);
    });
    Store(first, picture, line);
    Store(second, picture, line);
}

template <typename Sample>
void BinColumnsOf(const SampleView &picture, int left, int right, BinnedLine *line)
{
    const int channels = picture.isColour ? 3 : 1;
    const auto end = Sample((1U << picture.bitDepth) - 1);
    for (int y = 0; y < picture.height; ++y) {
        const auto *row = reinterpret_cast<const Sample *>(picture.Row8(y));
        quint32 sum = 0;
        Sample largest = 0;
        for (int i = left * channels; i < right * channels; ++i) {
            sum += row[i];
            largest = std::max(largest, row[i]);
        }
        line->sums[size_t(y)] = sum;
        line->saturated[size_t(y)] = left < right && largest >= end;
    }
}

} // namespace

void BinRows(const SampleView &picture, int top, int bottom, BinnedLine *line)
{
    line->sums.assign(size_t(std::max(0, picture.width)), 0);
    line->saturated.assign(line->sums.size(), 0);
    top = qBound(0, top, picture.height);
    bottom = qBound(top, bottom, picture.height);
    if (picture.IsEmpty() || top == bottom)
        return;
    if (picture.Has16BitSamples())
        BinRowsOf<quint16>(picture, top, bottom, line);
    else
        BinRowsOf<quint8>(picture, top, bottom, line);
}

void BinColumns(const SampleView &picture, int left, int right, BinnedLine *line)
{
    line->sums.assign(size_t(std::max(0, picture.height)), 0);
    line->saturated.assign(line->sums.size(), 0);
    left = qBound(0, left, picture.width);
    right = qBound(left, right, picture.width);
    if (picture.IsEmpty())
        return;
    if (picture.Has16BitSamples())
        BinColumnsOf<quint16>(picture, left, right, line);
    else
        BinColumnsOf<quint8>(picture, left, right, line);
}
