// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturecurves.h"

#include "picturedisplay.h"
#include "picturelevels.h"
#include "sampleview.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

/// The visible part, in samples; all of them for what is no part.
void ShowPart(double from, double to, PictureCurves::Curve *curve)
{
    const int size = int(curve->values.size());
    const bool isPart = from < to && from < 1 && to > 0; // false for what is no number
    curve->offset = isPart ? int(std::max(from, 0.0) * size) : 0;
    const int end = isPart ? int(std::min(to, 1.0) * size) : size;
    curve->count = std::max(0, end - curve->offset);
}

/// The pixel that a place lies in, or the nearest.
int PixelAt(double place, int size)
{
    return int(std::clamp(std::floor(place), 0.0, double(size - 1)));
}

template <typename Sample>
double PixelValue(const Sample *samples, int channels)
{
    double sum = 0;
    for (int channel = 0; channel < channels; ++channel)
        sum += double(samples[channel]);
    return sum / channels;
}

/// Of counts it is a count; of what is no number or infinite, 0.
double MeanOf(double sum, int count, bool isWhole)
{
    const double mean = sum / count;
    if (!std::isfinite(mean))
        return 0;
    return isWhole ? std::round(mean) : mean;
}

} // namespace

void PictureCurves::Pick(const QPointF &point, const QRectF &region)
{
    if (!qIsFinite(point.x()) || !qIsFinite(point.y()))
        return;
    m_isPicked = true;
    m_point = point;
    m_region = region;
}

void PictureCurves::SetLines(int lines) { m_lines = std::clamp(lines, 1, PickedProfiles::MostLines); }

bool PictureCurves::Make(const Picture &picture)
{
    if (!m_isPicked || picture.IsNull())
        return false;
    const QPoint point(PixelAt(m_point.x(), picture.Width()), PixelAt(m_point.y(), picture.Height()));
    if (PictureDisplay::IsLikeLive(picture))
        TakeUnsigned(picture, point);
    else
        TakeAny(picture, point);
    // In the width and height slots it has right and bottom.
    ShowPart(m_region.x(), m_region.width(), &m_row);
    ShowPart(m_region.y(), m_region.height(), &m_column);
    return true;
}

double PictureCurves::Curve::FinestFactor() const
{
    constexpr int mostDigits = 8; // in front of the point; an int holds some more
    constexpr int mostZeros = 300;
    double largest = 0;
    bool areWhole = true;
    for (const double value : values) {
        largest = std::max(largest, std::abs(value));
        areWhole = areWhole && value == std::floor(value);
    }
    if (areWhole && largest <= double(std::numeric_limits<int>::max()))
        return 1;
    const int zeros = mostDigits - 1 - int(std::floor(std::log10(largest)));
    return std::pow(10.0, std::clamp(zeros, -mostZeros, mostZeros));
}

void PictureCurves::Curve::Tell(double factor)
{
    samples.resize(values.size());
    std::transform(values.begin(), values.end(), samples.begin(),
                   [factor](double value) { return PictureLevels::Rounded(value * factor); });
}

void PictureCurves::Curve::ShowAll()
{
    offset = 0;
    count = int(values.size());
}

ProfileBand PictureCurves::RowBand(const QSize &picture) const
{
    return BandAround(PixelAt(m_point.y(), picture.height()), m_lines, picture.height());
}

ProfileBand PictureCurves::ColumnBand(const QSize &picture) const
{
    return BandAround(PixelAt(m_point.x(), picture.width()), m_lines, picture.width());
}

std::vector<quint8> PictureCurves::Saturated(const Picture &picture, bool alongRow) const
{
    if (!m_isPicked || picture.IsNull() || IsFloat(picture.Type()))
        return {};
    const ProfileBand all{0, alongRow ? picture.Width() : picture.Height()};
    const ProfileBand band = alongRow ? RowBand(picture.Size()) : ColumnBand(picture.Size());
    const ProfileBand rows = alongRow ? band : all;
    const ProfileBand columns = alongRow ? all : band;
    const int channels = picture.Channels();
    std::vector<quint8> flags(size_t(all.end), 0);
    VisitSampleType(picture.Type(), [&](auto sample) {
        constexpr auto most = std::numeric_limits<decltype(sample)>::max();
        for (int y = rows.first; y < rows.end; ++y) {
            const auto *samples = picture.Samples<decltype(sample)>(y);
            for (int i = columns.first * channels; i < columns.end * channels; ++i)
                flags[size_t(alongRow ? i / channels : y)] |= quint8(samples[i] == most);
        }
    });
    const bool isKnown = BytesPerSample(picture.Type()) == 1 || std::find(flags.begin(), flags.end(), 1) != flags.end();
    return isKnown ? flags : std::vector<quint8>();
}

void PictureCurves::TakeUnsigned(const Picture &picture, const QPoint &point)
{
    m_profiles.Extract(PictureDisplay::ViewOf(picture), point, m_lines);
    m_row.values.assign(m_profiles.Row().begin(), m_profiles.Row().end());
    m_column.values.assign(m_profiles.Column().begin(), m_profiles.Column().end());
}

void PictureCurves::TakeAny(const Picture &picture, const QPoint &point)
{
    const ProfileBand rows = BandAround(point.y(), m_lines, picture.Height());
    const ProfileBand columns = BandAround(point.x(), m_lines, picture.Width());
    const int channels = picture.Channels();
    const bool isWhole = !IsFloat(picture.Type());
    m_row.values.assign(size_t(picture.Width()), 0);
    m_column.values.resize(size_t(picture.Height()));
    VisitSampleType(picture.Type(), [&](auto sample) {
        for (int y = 0; y < picture.Height(); ++y) {
            const auto *samples = picture.Samples<decltype(sample)>(y);
            double sum = 0;
            for (int x = columns.first; x < columns.end; ++x)
                sum += PixelValue(samples + qptrdiff(x) * channels, channels);
            m_column.values[size_t(y)] = MeanOf(sum, columns.Count(), isWhole);
            for (int x = 0; x < picture.Width() && y >= rows.first && y < rows.end; ++x)
                m_row.values[size_t(x)] += PixelValue(samples + qptrdiff(x) * channels, channels);
        }
    });
    for (double &value : m_row.values)
        value = MeanOf(value, rows.Count(), isWhole);
}
