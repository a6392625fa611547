// SPDX-License-Identifier: GPL-3.0-or-later
#include "speheader.h"

#include <algorithm>

namespace {

/// Six numbers each: first and last column, columns that became one, and the same of the rows.
constexpr int regionsOffset = 1512;
constexpr int regionBytes = 12;

} // namespace

SpeHeader::SpeHeader(const QByteArray &bytes)
    : m_bytes(bytes)
{
}

/// An experiment may have more of them than the list has room for.
int SpeHeader::Regions() const
{
    const int inList = Number<qint16>(1510);
    const int inExperiment = Number<qint16>(1488);
    return std::max(1, inList < mostRegionsTold ? inList : std::max(inList, inExperiment));
}

SpeSensorRegion SpeHeader::Region(int index) const
{
    const auto number = [this, index](int place) {
        return int(Number<quint16>(regionsOffset + regionBytes * index + 2 * place));
    };
    const QPoint first(number(0), number(3)); // from 1, both ends within
    const QPoint last(number(1), number(4));
    const QSize binning(number(2), number(5));
    const int columns = Number<quint16>(6); // of the detector; 0 when the file does not say
    const int rows = Number<quint16>(18);
    const bool isWithin = (columns == 0 || last.x() <= columns) && (rows == 0 || last.y() <= rows);
    if (first.x() < 1 || first.y() < 1 || last.x() < first.x() || last.y() < first.y() || binning.isEmpty()
        || !isWithin)
        return SpeSensorRegion();
    return { QRect(first - QPoint(1, 1), last - QPoint(1, 1)), binning };
}
