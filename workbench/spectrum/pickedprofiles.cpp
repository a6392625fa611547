// SPDX-License-Identifier: GPL-3.0-or-later
#include "pickedprofiles.h"

#include "sampleview.h"

#include <algorithm>

namespace {

void TakeMeans(const std::vector<quint32> &sums, quint32 count, std::vector<int> *means)
{
    means->resize(sums.size());
    std::transform(sums.begin(), sums.end(), means->begin(),
                   [count](quint32 sum) { return int((quint64(sum) + count / 2) / count); });
}

} // namespace

ProfileBand BandAround(int centre, int lines, int size)
{
    centre = std::clamp(centre, 0, size - 1);
    lines = std::clamp(lines, 1, size);
    const int first = centre - lines / 2;
    return { std::max(0, first), std::min(size, first + lines) };
}

bool PickedProfiles::Extract(const SampleView &picture, const QPoint &point, int lines)
{
    m_row.clear();
    m_column.clear();
    if (picture.IsEmpty())
        return false;
    const quint32 channels = picture.isColour ? 3 : 1;
    const ProfileBand rows = BandAround(point.y(), lines, picture.height);
    BinRows(picture, rows.first, rows.end, &m_binned);
    TakeMeans(m_binned.sums, quint32(rows.Count()) * channels, &m_row);
    const ProfileBand columns = BandAround(point.x(), lines, picture.width);
    BinColumns(picture, columns.first, columns.end, &m_binned);
    TakeMeans(m_binned.sums, quint32(columns.Count()) * channels, &m_column);
    return true;
}
