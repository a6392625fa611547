// SPDX-License-Identifier: GPL-3.0-or-later
#include "linepayload.h"

#include "payloadlocker.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <new>

unsigned int PlotValue(double value, SpectrumQuantity quantity)
{
    constexpr double perUnit = 10000;
    const double scaled = std::floor((quantity == SpectrumQuantity::Counts ? value : value * perUnit) + 0.5);
    if (!(scaled > 0))
        return 0;
    return unsigned(std::min(scaled, double(std::numeric_limits<unsigned int>::max())));
}

LinePayload::LinePayload(int mostLines)
    : m_mostLines(mostLines)
    , m_first(MakeBuffer(mostLines))
    , m_second(MakeBuffer(mostLines))
{
    m_record.fill = m_first.get();
    m_record.show = m_second.get();
    m_record.lock = &m_mutex;
}

/// Zeroed pages that cost nothing until they are written.
LinePayload::Buffer LinePayload::MakeBuffer(int mostLines)
{
    Buffer buffer(static_cast<unsigned int *>(std::calloc(size_t(mostLines) * WidestFrame, sizeof(unsigned int))));
    if (!buffer)
        throw std::bad_alloc();
    return buffer;
}

SpectrumLinePayload *LinePayload::Fill(const std::vector<const Spectrum *> &lines, int width, SpectrumQuantity quantity)
{
    // Nobody draws while we are here: both sides run in the GUI thread.
    const PayloadLocker locker(&m_mutex);
    width = qBound(0, width, WidestFrame);
    const size_t count = std::min(lines.size(), size_t(m_mostLines));
    unsigned int least = count == 0 || width == 0 ? 0 : std::numeric_limits<unsigned int>::max();
    unsigned int most = 0;
    for (size_t k = 0; k < count; ++k) {
        unsigned int *target = m_record.fill + k * size_t(width);
        const std::vector<double> &values = lines[k]->values;
        for (int i = 0; i < width; ++i) {
            target[i] = i < int(values.size()) ? PlotValue(values[size_t(i)], quantity) : 0;
            least = std::min(least, target[i]);
            most = std::max(most, target[i]);
        }
    }
    constexpr auto limit = unsigned(std::numeric_limits<qint32>::max());
    m_record.minimum = qint32(std::min(least, limit));
    m_record.maximum = qint32(std::min(most, limit));
    return &m_record;
}
