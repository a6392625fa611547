// SPDX-License-Identifier: GPL-3.0-or-later
#include "trackfinder.h"

#include "spectrumnoise.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

/// Dark rows are the darkest fifth at least.
constexpr double darkShare = 0.2;
constexpr double leastDeviations = 8;
constexpr double leastShareOfBrightest = 0.01;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(TrackFinder)
};

double QuantileOf(std::vector<double> values, double share)
{
    const auto at = values.begin() + ptrdiff_t(share * double(values.size() - 1));
    std::nth_element(values.begin(), at, values.end());
    return *at;
}

/// The rows of a band that have at least half of its brightest one.
RowBand Trimmed(const std::vector<double> &profile, int from, int to, double dark)
{
    const double half = (dark + *std::max_element(profile.begin() + from, profile.begin() + to)) / 2;
    RowBand band;
    band.top = from;
    band.bottom = to;
    while (profile[size_t(band.top)] < half)
        ++band.top;
    while (profile[size_t(band.bottom - 1)] < half)
        --band.bottom;
    for (int row = band.top; row < band.bottom; ++row)
        band.light += profile[size_t(row)] - dark;
    return band;
}

} // namespace

std::vector<RowBand> FindBands(const std::vector<double> &profile)
{
    std::vector<RowBand> bands;
    if (profile.size() < 3)
        return bands;
    const double dark = QuantileOf(profile, darkShare / 2);
    const double brightest = *std::max_element(profile.begin(), profile.end());
    const double threshold = dark + std::max(leastDeviations * EstimateNoise(profile), 0.05 * (brightest - dark));
    for (int row = 0; row < int(profile.size()); ++row) {
        const int from = row;
        while (row < int(profile.size()) && profile[size_t(row)] > threshold)
            ++row;
        if (row > from)
            bands.push_back(Trimmed(profile, from, row, dark));
    }
    double most = 0;
    for (const RowBand &band : bands)
        most = std::max(most, band.light);
    const auto isFaint = [&](const RowBand &band) { return band.light < leastShareOfBrightest * most; };
    bands.erase(std::remove_if(bands.begin(), bands.end(), isFaint), bands.end());
    return bands;
}

bool HaveSameRows(const std::vector<RowBand> &tracks, const std::vector<RowBand> &others)
{
    return std::equal(tracks.begin(), tracks.end(), others.begin(), others.end(),
                      [](const RowBand &a, const RowBand &b) { return a.top == b.top && a.bottom == b.bottom; });
}

QString TracksFault(const QList<QRectF> &tracks, QSize frame, int most)
{
    if (tracks.isEmpty())
        return Text::tr("There are no tracks: draw them on the picture or have them found.");
    if (tracks.size() > most)
        return Text::tr("There are %1 tracks and the plot shows %2 at most: take some away.").arg(tracks.size()).arg(most);
    for (int i = 0; i < tracks.size(); ++i) {
        const QRectF &track = tracks[i];
        if (!(track.height() >= 1) || !(track.top() >= 0) || !(track.bottom() <= frame.height()))
            return Text::tr("Track %1 (rows %2 to %3) lies outside the sensor of %4 rows: move or remove it.")
                .arg(i + 1).arg(track.top(), 0, 'f', 0).arg(track.bottom(), 0, 'f', 0).arg(frame.height());
        for (int k = 0; k < i; ++k) {
            if (track.top() < tracks[k].bottom() && tracks[k].top() < track.bottom())
                return Text::tr("Tracks %1 and %2 overlap: move or remove one of them.").arg(k + 1).arg(i + 1);
        }
    }
    return QString();
}
