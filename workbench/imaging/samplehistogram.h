// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <vector>

struct SampleView;

/// How often each value occurs among the samples of a picture; a colour picture's three channels count alike.
class SampleHistogram
{
public:
    SampleHistogram() = default;
    /// Counts every `rowStep`th row, which is enough where a rough count will do. No samples, no counts.
    explicit SampleHistogram(const SampleView &samples, int rowStep = 1);

    /// Samples that were counted.
    qint64 Total() const { return m_total; }
    /// Of every value that a sample can take.
    const std::vector<quint32> &Counts() const { return m_counts; }
    /// Value of the sample that has `rank` samples before it when all are sorted; 0 <= rank < Total().
    int ValueAtRank(qint64 rank) const;
    /// Counts of `columns` equal ranges that span all values of the bit depth.
    std::vector<qint64> Condensed(int columns) const;

private:
    int m_bitDepth = 8;
    qint64 m_total = 0;
    std::vector<quint32> m_counts;
};
