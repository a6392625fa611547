// SPDX-License-Identifier: GPL-3.0-or-later
#include "fitsdither.h"

#include <QtGlobal>

#include <vector>

namespace {

constexpr int sequenceLength = 10000;

const std::vector<double> &Sequence()
{
    static const std::vector<double> sequence = [] {
        constexpr quint64 factor = 16807;
        constexpr quint64 modulus = 2147483647;
        std::vector<double> numbers(sequenceLength);
        quint64 number = 1;
        for (double &entry : numbers) {
            number = number * factor % modulus;
            entry = double(float(double(number) / double(modulus))); // kept in single precision
        }
        return numbers;
    }();
    return sequence;
}

} // namespace

FitsDither::FitsDither(int tile, int seed)
    : m_start(int((qint64(tile) + seed - 1) % sequenceLength))
{
    m_start = (m_start + sequenceLength) % sequenceLength;
    Restart();
}

double FitsDither::Next()
{
    const double number = Sequence()[size_t(m_place)];
    if (++m_place == sequenceLength) {
        m_start = (m_start + 1) % sequenceLength;
        Restart();
    }
    return number;
}

void FitsDither::Restart()
{
    constexpr double places = 500;
    m_place = int(Sequence()[size_t(m_start)] * places);
}
