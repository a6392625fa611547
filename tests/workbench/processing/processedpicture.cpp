// SPDX-License-Identifier: GPL-3.0-or-later
#include "processedpicture.h"

#include "randompicture.h"

#include <QTest>

#include <algorithm>
#include <cmath>

using RandomPicture::At;
using RandomPicture::Set;

namespace {

/// Extreme of the samples of a square or a disc that are in the picture.
double ExtremeAt(const Picture &picture, int x, int y, int channel, int radius, bool isDisc, bool largest)
{
    double extreme = largest ? -INFINITY : INFINITY;
    for (int j = -radius; j <= radius; ++j) {
        for (int i = -radius; i <= radius; ++i) {
            const bool isInside = x + i >= 0 && y + j >= 0 && x + i < picture.Width() && y + j < picture.Height();
            if (!isInside || (isDisc && i * i + j * j > radius * radius))
                continue;
            const double value = At(picture, x + i, y + j, channel);
            extreme = largest ? std::max(extreme, value) : std::min(extreme, value);
        }
    }
    return extreme;
}

} // namespace

namespace ProcessedPicture {

bool NoReference(const QString &, Picture &, QString &error)
{
    error = "no reference";
    return false;
}

Picture Done(const Picture &picture, const ProcessSettings &settings, QString *error, const ReferenceReader &read)
{
    QString text;
    const Picture result = Processed(picture, settings, read, [] { return false; }, text);
    if (error)
        *error = text;
    return result;
}

Picture Filled(Picture picture)
{
    for (int channel = 0; channel < picture.Channels(); ++channel) {
        int source = -1;
        for (int pass = 0; pass < 2; ++pass) {
            for (int y = 0; y < picture.Height(); ++y) {
                double last = 0;
                bool hasLast = false;
                for (int x = 0; x < picture.Width() && !hasLast; ++x) {
                    hasLast = std::isfinite(At(picture, x, y, channel));
                    last = hasLast ? At(picture, x, y, channel) : last;
                }
                if (hasLast && source < 0)
                    source = y;
                for (int x = 0; x < picture.Width(); ++x) {
                    const double value = At(picture, x, y, channel);
                    if (hasLast && !std::isfinite(value))
                        Set(picture, x, y, channel, last);
                    else if (hasLast)
                        last = value;
                    else if (y > 0 && source >= 0 && source < y)
                        Set(picture, x, y, channel, At(picture, x, y - 1, channel));
                    else if (pass == 1)
                        Set(picture, x, y, channel, source < 0 ? 0 : At(picture, x, source, channel));
                }
            }
        }
    }
    return picture;
}

double Repeated(const Picture &picture, int x, int y, int channel)
{
    return At(picture, qBound(0, x, picture.Width() - 1), qBound(0, y, picture.Height() - 1), channel);
}

Picture Extremes(const Picture &picture, int radius, bool isDisc, bool largest)
{
    Picture result = picture;
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) {
            for (int channel = 0; channel < picture.Channels(); ++channel)
                Set(result, x, y, channel, ExtremeAt(picture, x, y, channel, radius, isDisc, largest));
        }
    }
    return result;
}

double Digits(SampleType type)
{
    if (type == SampleType::F32)
        return 2e-3; // of values up to 1000 and filters of a few hundred terms
    return type == SampleType::F64 ? 1e-9 : 0;
}

double RoundedDigits(SampleType type) { return IsFloat(type) ? Digits(type) : 1; }

Picture RowPicture(int gaps)
{
    QFETCH(QSize, size);
    QFETCH(int, channels);
    QFETCH(int, type);
    const int most = size.width() * size.height() / 4;
    return RandomPicture::Make(size, channels, SampleType(type), quint32(size.width() * 100 + type), qMin(gaps, most));
}

double OrGap(const Picture &picture, int x, int y, int channel, double value)
{
    return std::isfinite(At(picture, x, y, channel)) ? value : NAN;
}

} // namespace ProcessedPicture
