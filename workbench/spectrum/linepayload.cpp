// SPDX-License-Identifier: GPL-3.0-or-later
#include "linepayload.h"

#include <QMutexLocker>

#include <algorithm>
#include <cmath>
#include <limits>

unsigned int PlotValue(double value, SpectrumQuantity quantity)
{
    constexpr double perUnit = 10000;
    const double scaled = std::floor((quantity == SpectrumQuantity::Counts ? value : value * perUnit) + 0.5);
    if (!(scaled > 0))
        return 0;
    return unsigned(std::min(scaled, double(std::numeric_limits<unsigned int>::max())));
}

SpectrumLinePayload *LinePayload::Fill(const std::vector<const Spectrum *> &lines, int width, SpectrumQuantity quantity)
{
    // Nobody draws while we are here: both sides run in the GUI thread.
    const size_t room = std::max(size_t(1), lines.size()) * WidestFrame;
    const QMutexLocker lock(&m_mutex);
    if (m_first.size() < room) {
        m_first.assign(room, 0);
        m_second.assign(room, 0);
        m_record.fill = m_first.data();
        m_record.show = m_second.data();
        m_record.lock = &m_mutex;
    }
    unsigned int least = lines.empty() ? 0 : std::numeric_limits<unsigned int>::max();
    unsigned int most = 0;
    for (size_t k = 0; k < lines.size(); ++k) {
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
